#include <dxmd/materialize/DXMaterializeResponseHelper.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

DXMaterializeResponseHelper::DXMaterializeResponseHelper() = default;

DXMaterializeResponseHelper::~DXMaterializeResponseHelper() = default;

bool DXMaterializeResponseHelper::GetResponse(DXMaterializeRequestHelper::ETasks task, I18NString& response) {
  // Spelt as the assertion's text has it, which cannot fail: what has a tag name is an element.
  const TRNIDOM_Node nodeTemp =
      TRNIDOM_Helper::findFirstElement(m_responseRoot, DXMaterializeRequestHelper::GetTaskName(task));
  if (nodeTemp.isNull()) return false;
  TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
  const TRNIDOM_Node text = firstText(TRNIDOM_Helper::findFirstElement(nodeTemp, STR_response));
  if (text.isNull()) return false;
  response = text.getNodeValue();
  return true;
}

void DXMaterializeResponseHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_materializeResponse);
}

void DXMaterializeResponseHelper::doTake(TRNIDOM_Element& elem) {
  m_responseRoot = elem;
}
