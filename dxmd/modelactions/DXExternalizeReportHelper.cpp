#include <dxmd/modelactions/DXExternalizeReportHelper.h>

#include <memory>
#include <utility>

#include <trn/TRNAssert.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

I18NString lastFilePath(const TRNIDOM_Element& entryElem) {
  I18NString path;
  for (const TRNIDOM_Element& file : ChildElements(entryElem, STR_file)) path = file.getAttribute(STR_path);
  return path;
}

}  // namespace

DXExternalizeReportHelper::DXExternalizeReportHelper() = default;
DXExternalizeReportHelper::~DXExternalizeReportHelper() = default;

void DXExternalizeReportHelper::AddEntry(Entry* pEntry) {
  TRN_ASSERT(pEntry);
  m_entries.adopt(std::unique_ptr<Entry>(pEntry));
}

void DXExternalizeReportHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_externalizeReport);
  for (const Entry* entry : m_entries) {
    TRNIDOM_Element entryElem = appendElement(elem, STR_entry, STR_objectID, entry->objectID);
    entryElem.setAttribute(STR_method, entry->method);
    entryElem.setAttribute(STR_error, entry->error);
    entryElem.setAttribute(STR_path, entry->path);
  }
}

void DXExternalizeReportHelper::doTake(TRNIDOM_Element& elem) {
  for (const TRNIDOM_Element& entryElem : DescendantElements(elem, STR_entry)) {
    auto entry = std::make_unique<Entry>();
    entry->objectID = entryElem.getAttribute(STR_objectID);
    entry->method = entryElem.getAttribute(STR_method);
    entry->path = lastFilePath(entryElem);
    m_entries.adopt(std::move(entry));
  }
}
