#include <dxmd/queryframework/QFUpdateCommandHelper.h>

#include <memory>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

QFUpdateCommandHelper::QFUpdateCommandHelper(const I18NString& modelPath) : QFCommandHelper(modelPath) {}

QFUpdateCommandHelper::~QFUpdateCommandHelper() = default;

void QFUpdateCommandHelper::AddUpdateSubject(const I18NString& name, const I18NString& text) {
  m_updateSubjects.adopt(std::make_unique<UpdateSubj>(UpdateSubj{name, text}));
}

void QFUpdateCommandHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& element) const {
  TRNIDOM_Element update = doc.createElement(STR_update);
  TRNIDOM_Element updateSet = appendElement(update, STR_updateSet);
  MakeModelPath(updateSet);
  for (const UpdateSubj* subject : m_updateSubjects) {
    const TRNIDOM_Element updateSubject = appendElement(updateSet, STR_updateSubject, STR_name, subject->name);
    appendText(updateSubject, subject->text);
  }
  Incorporate(doc, element, update);
}
