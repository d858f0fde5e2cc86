// Holds the principal, the list of views and the view: an assertion names its source file, and theirs name this one.
// In all of it locals are spelt as the assertions' texts have them; what was just created is never null.

#include <dxmd/modelactions/DXActionHelperSecurityObject.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/modelactions/DXActionHelperSecurityObjectSpec.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

const I18NString DXActionHelperSecurityObjectSpec::kElemNameRoot("securityObjects");
const I18NString DXActionHelperSecurityObjectSpec::kElemNameView("view");
const I18NString DXActionHelperSecurityObjectSpec::kElemNameViewRef("viewref");
const I18NString DXActionHelperSecurityObjectSpec::kElemNamePackageRef("packageref");

DXActionHelperSecurityObject::DXActionHelperSecurityObject(const I18NString& searchPath, const I18NString& readablePath,
                                                           const EAccessType& accessType)
    : DXActionHelperSecurityObject(searchPath, readablePath, getAccessTypeStr(accessType)) {}

DXActionHelperSecurityObject::DXActionHelperSecurityObject(const I18NString& searchPath, const I18NString& readablePath,
                                                           const I18NString& accessType)
    : cmSearchPath(searchPath), displayPath(readablePath), type(accessType) {}

DXActionHelperSecurityObject::DXActionHelperSecurityObject(TRNIDOM_Element& securityObjectElem)
    : type(securityObjectElem.getAttribute(STR_type)) {
  const I18NString securityObjectElemName = securityObjectElem.getNodeName();
  TRNIDOM_Element cmSearchPathElem;
  if (securityObjectElemName != STR_access) {
    TRN_ASSERT(securityObjectElemName == dxmd_actionhelper_resources_securityObject_str);
    cmSearchPathElem = TRNIDOM_Helper::findFirstElement(securityObjectElem, STR_cmSearchPath);
  }

  if (cmSearchPathElem.isNull()) {
    cmSearchPath = securityObjectElem.getAttribute(STR_cmSearchPath);
    displayPath = securityObjectElem.getAttribute(STR_displayPath);
  } else {
    TRNIDOM_Helper::getElementText(cmSearchPathElem, cmSearchPath);
    TRNIDOM_Helper::getElementText(TRNIDOM_Helper::findFirstElement(securityObjectElem, STR_displayPath), displayPath);
  }
}

DXActionHelperSecurityObject::~DXActionHelperSecurityObject() = default;

I18NString DXActionHelperSecurityObject::getAccessTypeStr(const EAccessType& eAccessType) {
  if (eAccessType == kRole) return STR_role;
  if (eAccessType == kGroup) return STR_group;
  TRN_ASSERT(eAccessType == DXActionHelperSecurityObject::kUser);
  return STR_account;
}

DXActionHelperSecurityObjectSpec::ViewInfo::ViewInfo(const I18NString& viewRef) : m_viewRef(viewRef) {
  TRN_ASSERT(!m_viewRef.empty());
}

DXActionHelperSecurityObjectSpec::ViewInfo::ViewInfo(TRNIDOM_Element& viewElem) {
  TRN_ASSERT(!viewElem.isNull());

  const TRNIDOM_Element viewRefElem = TRNIDOM_Helper::findFirstElement(viewElem, kElemNameViewRef);
  TRN_ASSERT(!viewRefElem.isNull());
  TRNIDOM_Helper::getElementText(viewRefElem, m_viewRef);
  TRN_ASSERT(!m_viewRef.empty());

  for (const TRNIDOM_Element& packageRefElem : DescendantElements(viewElem, kElemNameView))
    addPackageRef(TRNIDOM_Helper::getElementText(packageRefElem));
}

void DXActionHelperSecurityObjectSpec::ViewInfo::addPackageRef(const I18NString& packageRef) {
  TRN_ASSERT(!packageRef.empty());
  m_packageRefs.push_back(packageRef);
}

void DXActionHelperSecurityObjectSpec::ViewInfo::getPackageRefs(std::vector<I18NString>& packageRefs) const {
  packageRefs.insert(packageRefs.end(), m_packageRefs.begin(), m_packageRefs.end());
}

DXActionHelperSecurityObjectSpec::DXActionHelperSecurityObjectSpec() = default;
DXActionHelperSecurityObjectSpec::~DXActionHelperSecurityObjectSpec() = default;

void DXActionHelperSecurityObjectSpec::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const {
  domRequest = doc.createElement(kElemNameRoot);
  TRN_ASSERT(!domRequest.isNull());
  doc.appendChild(domRequest);
  m_requestRoot = domRequest;
}

void DXActionHelperSecurityObjectSpec::addEntry(const DXActionHelperSecurityObject& object,
                                                const std::vector<ViewInfo>& views) {
  TRN_ASSERT(!m_requestRoot.isNull());
  TRNIDOM_Document domDoc = m_requestRoot.getOwnerDocument();
  TRN_ASSERT(!domDoc.isNull());
  if (object.cmSearchPath.empty()) return;

  TRNIDOM_Element securityObjectElem = domDoc.createElement(STR_securityObject);
  TRN_ASSERT(!securityObjectElem.isNull());
  m_requestRoot.appendChild(securityObjectElem);
  if (!object.displayPath.empty()) appendElementWithText(securityObjectElem, STR_displayPath, object.displayPath);
  appendElementWithText(securityObjectElem, STR_cmSearchPath, object.cmSearchPath);
  securityObjectElem.setAttribute(STR_type, object.type);

  for (const ViewInfo& view : views) {
    TRNIDOM_Element viewElem = domDoc.createElement(kElemNameView);
    TRN_ASSERT(!viewElem.isNull());
    securityObjectElem.appendChild(viewElem);
    const TRNIDOM_Element viewRefElem = appendElementWithText(viewElem, kElemNameViewRef, view.getViewRef());
    TRN_ASSERT(!viewRefElem.isNull());

    std::vector<I18NString> packageRefs;
    view.getPackageRefs(packageRefs);
    for (const I18NString& packageRef : packageRefs)
      TRNIDOM_Helper::findOrCreateElementWithText(viewElem, kElemNamePackageRef, packageRef);
  }
}

void DXActionHelperSecurityObjectSpec::doTake(TRNIDOM_Element& elem) {
  m_requestRoot = elem;
  if (m_requestRoot.isNull()) return;
  m_currentSecurityObjectElem = TRNIDOM_Helper::findFirstElement(m_requestRoot, STR_securityObject);
  TRN_ASSERT(m_currentSecurityObjectElem.isNull() || m_currentSecurityObjectElem.getParentNode().getNodeName() == kElemNameRoot);
}

TRNSmartPointer<DXActionHelperSecurityObject> DXActionHelperSecurityObjectSpec::getEntry(std::vector<ViewInfo>& views) {
  TRNSmartPointer<DXActionHelperSecurityObject> object;
  if (!m_currentSecurityObjectElem.isNull()) {
    object = new DXActionHelperSecurityObject(m_currentSecurityObjectElem);
    for (TRNIDOM_Element& viewElem : DescendantElements(m_currentSecurityObjectElem, kElemNameView))
      views.emplace_back(viewElem);
    m_currentSecurityObjectElem = m_currentSecurityObjectElem.getNextSibling();
  }
  TRN_ASSERT(m_currentSecurityObjectElem.isNull() || m_currentSecurityObjectElem.getNodeName() == dxmd_actionhelper_resources_securityObject_str);
  return object;
}
