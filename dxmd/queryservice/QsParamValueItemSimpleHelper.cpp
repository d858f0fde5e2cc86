#include <dxmd/queryservice/QsParamValueItemSimpleHelper.h>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/queryservice/GetSimpleNodeValue.h>
#include <dxmd/resources/Vocabulary.h>

QsParamValueItemSimpleHelper::QsParamValueItemSimpleHelper() : QsParamValueItemHelper(1) {}

QsParamValueItemSimpleHelper::QsParamValueItemSimpleHelper(int inclusive, const I18NString& use)
    : QsParamValueItemHelper(inclusive), m_use(use) {}

QsParamValueItemSimpleHelper::~QsParamValueItemSimpleHelper() = default;

void QsParamValueItemSimpleHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  QsParamValueItemHelper::doMake(doc, elem);
  makeProperties(elem);
}

void QsParamValueItemSimpleHelper::makeProperties(TRNIDOM_Element& target) const {
  QsParamValueItemHelper::makeProperties(target);
  if (!m_use.empty()) TRNIDOM_Helper::findOrCreateElementWithText(target, STR_use, m_use);
}

void QsParamValueItemSimpleHelper::doTake(TRNIDOM_Element& elmValueItem) {
  QsParamValueItemHelper::doTake(elmValueItem);
  GetSimpleNodeValue(elmValueItem, STR_use, m_use);
  GetSimpleNodeValue(elmValueItem, STR_display, m_display);
}
