#include <dxmd/queryengine/VqeExpandParameterHelper.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

VqeExpandParameterHelper::VqeExpandParameterHelper(const I18NString& modelPath) : QFDXCommandHelper(modelPath) {}

VqeExpandParameterHelper::~VqeExpandParameterHelper() = default;

void VqeExpandParameterHelper::SetParameterisedValue(const I18NString& value) {
  m_parameterisedValue = value;
}

void VqeExpandParameterHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  TRNIDOM_Element expand = doc.createElement(STR_expand);
  appendElementWithText(expand, STR_expression, m_parameterisedValue);
  QFDXCommandHelper::Incorporate(doc, elem, expand);
}

void VqeExpandParameterHelper::doTake(TRNIDOM_Element& elem) {
  m_response = elem;
}

I18NString VqeExpandParameterHelper::GetExpandedQuery() const {
  if (m_response.isNull()) return STR_empty;
  const TRNIDOM_NodeList resultList = m_response.getElementsByTagName(STR_expansionResult);
  // `resultList` is spelt as the assertion's text has it.
  TRN_ASSERT(resultList.getLength() == 1 && resultList.item(0).getNodeType() == TRNIDOM_Node::ELEMENT_NODE &&
             resultList.item(0).getFirstChild().getNodeType() == TRNIDOM_Node::TEXT_NODE);
  return resultList.item(0).getFirstChild().getNodeValue();
}
