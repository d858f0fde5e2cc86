// Holds the response with its tasks, issues and objects, which write one document together.

#include <dxmd/modelanalysis/DXModelAnalysisResponseHelper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

const I18NString STR_id("id");
const I18NString STR_refclass("refclass");
const I18NString STR_subtype("subtype");
const I18NString STR_measure("measure");
const I18NString STR_messages("messages");
const I18NString STR_relatedObjects("relatedObjects");
const I18NString STR_relatedObject("relatedObject");

// Appends an element with the attributes that an object and a related object have in common.
TRNIDOM_Element appendObject(const TRNIDOM_Element& parent, const I18NString& elementName, const I18NString& name,
                             const I18NString& id, const I18NString& className, const I18NString& path) {
  TRNIDOM_Element object = appendElement(parent, elementName, STR_name, name);
  object.setAttribute(STR_id, id);
  object.setAttribute(STR_class, className);
  object.setAttribute(STR_path, path);
  return object;
}

}  // namespace

DXAnalyzeResponseIssueObjectHelper::DXAnalyzeResponseIssueObjectHelper(const I18NString& name, const I18NString& id,
                                                                       const I18NString& className,
                                                                       const I18NString& path,
                                                                       const I18NString& refclass, ESubType subtype,
                                                                       const std::vector<I18NString>& messages)
    : m_name(name),
      m_id(id),
      m_className(className),
      m_path(path),
      m_refclass(refclass),
      m_subtype(subtype),
      m_messages(messages) {}

void DXAnalyzeResponseIssueObjectHelper::AddRelatedObject(const I18NString& name, const I18NString& id,
                                                          const I18NString& className, const I18NString& path) {
  m_relatedObjects.adopt(std::make_unique<SObject>(SObject{name, id, className, path}));
}

void DXAnalyzeResponseIssueObjectHelper::doMake(TRNIDOM_Document&, TRNIDOM_Element& elem) const {
  TRNIDOM_Element object = appendObject(elem, STR_object, m_name, m_id, m_className, m_path);
  object.setAttribute(STR_refclass, m_refclass);
  object.setAttribute(STR_subtype, m_subtype == kSubTypeMeasure ? STR_measure : STR_empty);
  const TRNIDOM_Element messages = appendElement(object, STR_messages);
  for (const I18NString& message : m_messages) appendElementWithTextNode(messages, STR_message, message);
  const TRNIDOM_Element relatedObjects = appendElement(object, STR_relatedObjects);
  for (const SObject* related : m_relatedObjects)
    appendObject(relatedObjects, STR_relatedObject, related->name, related->id, related->className, related->path);
}

DXAnalyzeResponseIssueHelper::DXAnalyzeResponseIssueHelper(const I18NString& name) : m_name(name) {}

DXAnalyzeResponseIssueObjectHelper* DXAnalyzeResponseIssueHelper::AddObject(
    const I18NString& name, const I18NString& id, const I18NString& className, const I18NString& path,
    const I18NString& refclass, DXAnalyzeResponseIssueObjectHelper::ESubType subtype,
    const std::vector<I18NString>& messages) {
  return m_objects.emplace(name, id, className, path, refclass, subtype, messages);
}

void DXAnalyzeResponseIssueHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_issue);
  elem.setAttribute(STR_name, m_name);
  for (const DXAnalyzeResponseIssueObjectHelper* object : m_objects) object->doMake(doc, elem);
}

DXAnalyzeResponseTaskHelper::DXAnalyzeResponseTaskHelper(DXAnalyzeRequestTaskHelper::ETask task) : m_task(task) {}

DXAnalyzeResponseIssueHelper* DXAnalyzeResponseTaskHelper::AddIssue(const I18NString& name) {
  return m_issues.emplace(name);
}

void DXAnalyzeResponseTaskHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_task);
  elem.setAttribute(STR_name, DXAnalyzeRequestTaskHelper::ToString(m_task));
  elem.setAttribute(STR_status, m_success != 0 ? STR_success : STR_failure);
  for (const DXAnalyzeResponseIssueHelper* issue : m_issues) appendMade(elem, doc, *issue);
}

const I18NString DXModelAnalysisResponseHelper::STR_refTopicURL("refTopicURL");

DXModelAnalysisResponseHelper::DXModelAnalysisResponseHelper() = default;

DXModelAnalysisResponseHelper::~DXModelAnalysisResponseHelper() = default;

DXAnalyzeResponseTaskHelper* DXModelAnalysisResponseHelper::AddTask(DXAnalyzeRequestTaskHelper::ETask task) {
  return m_tasks.emplace(task);
}

void DXModelAnalysisResponseHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_analyzeModelResponse);
  const TRNIDOM_Element tasks = appendElement(elem, STR_tasks);
  for (const DXAnalyzeResponseTaskHelper* task : m_tasks) appendMade(tasks, doc, *task);
}
