#include <dxmd/queryengine/VqeRefineObjectsHelper.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

VqeRefineObjectsHelper::VqeRefineObjectsHelper(const I18NString& modelPath) : QFDXCommandHelper(modelPath) {}

VqeRefineObjectsHelper::~VqeRefineObjectsHelper() = default;

void VqeRefineObjectsHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  m_requestRoot = doc.createElement(STR_refinePublishedModel);
  QFDXCommandHelper::Incorporate(doc, elem, m_requestRoot);
}

void VqeRefineObjectsHelper::addRequestObject(const I18NString& objectID) {
  TRN_ASSERT(!objectID.empty());
  TRN_ASSERT(!m_requestRoot.isNull());
  // Spelt as the assertion's text has it, which cannot fail: what was created is not null.
  TRNIDOM_Element objElem = appendElement(m_requestRoot, STR_expression);
  TRN_ASSERT(!objElem.isNull());
  appendText(objElem, objectID);
}

void VqeRefineObjectsHelper::doTake(TRNIDOM_Element& domResponse) {
  TRN_ASSERT(!domResponse.isNull());
  m_currentResponseObject = TRNIDOM_Helper::findFirstElement(domResponse, STR_expression);
  TRN_ASSERT(m_currentResponseObject.isNull() ||
             m_currentResponseObject.getParentNode().getNodeName() == dxmd_actionhelper_resources_response_str);
}

bool VqeRefineObjectsHelper::getResponseObject(I18NString& objectID) {
  if (m_currentResponseObject.isNull()) return false;
  TRNIDOM_Helper::getElementText(m_currentResponseObject, objectID);
  TRN_ASSERT(!objectID.empty());
  m_currentResponseObject = m_currentResponseObject.getNextSibling();
  TRN_ASSERT(m_currentResponseObject.isNull() ||
             m_currentResponseObject.getNodeName() == dxmd_actionhelper_resources_expression_str);
  return true;
}
