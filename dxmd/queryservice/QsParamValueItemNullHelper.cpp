#include <dxmd/queryservice/QsParamValueItemNullHelper.h>

#include <dxmd/resources/Vocabulary.h>

QsParamValueItemNullHelper::QsParamValueItemNullHelper() : QsParamValueItemHelper(1) {}

QsParamValueItemNullHelper::~QsParamValueItemNullHelper() = default;

void QsParamValueItemNullHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_item);
  elem.setAttribute(STR_xsi_nil, STR_true);
}
