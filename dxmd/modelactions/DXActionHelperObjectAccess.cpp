#include <dxmd/modelactions/DXActionHelperObjectAccess.h>

#include <algorithm>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/EnumTexts.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

using Access = DXActionHelperObjectAccess;

const I18NString STR_objectAccess("objectAccess");
const I18NString STR_unspecified("unspecified");
const I18NString STR_allow("allow");
const I18NString STR_deny("deny");

constexpr EnumTexts<Access::EObjectAccessRule, 3> kRules({{Access::kUnspecified, STR_unspecified},
                                                          {Access::kAllow, STR_allow},
                                                          {Access::kDeny, STR_deny}});

}  // namespace

DXActionHelperObjectAccess::DXActionHelperObjectAccess() = default;
DXActionHelperObjectAccess::~DXActionHelperObjectAccess() = default;

I18NString DXActionHelperObjectAccess::getObjectAccessRuleStr(const EObjectAccessRule& rule) {
  return kRules.text(rule, STR_unspecified);
}

DXActionHelperObjectAccess::EObjectAccessRule DXActionHelperObjectAccess::getObjectAccessRule(const I18NString& text) {
  return kRules.value(text);
}

DXActionHelperObjectAccess::EObjectAccessRule DXActionHelperObjectAccess::getObjectAccessRule(
    TRNIDOM_Element& element) {
  return getObjectAccessRule(TRNIDOM_Helper::getElementText(TRNIDOM_Helper::findChildElement(element, STR_rule)));
}

void DXActionHelperObjectAccess::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const {
  domRequest = doc.createElement(STR_objectAccess);  // spelt as the assertion's text has it, which cannot fail
  TRN_ASSERT(!domRequest.isNull());
  doc.appendChild(domRequest);
  m_requestRoot = domRequest;
}

void DXActionHelperObjectAccess::addEntry(const DXActionHelperSecurityObject& object, const EObjectAccessRule& rule) {
  if (object.cmSearchPath.empty()) return;

  if (!m_requestRoot.isNull()) {
    // Elements are spelt as the assertions' texts have them, neither of which can fail.
    //
    // What follows the child that was last is new: this tells created from found without a search of its own.
    const bool wasEmpty = !m_requestRoot.hasChildNodes();
    const TRNIDOM_Node lastBefore = m_requestRoot.getLastChild();
    TRNIDOM_Element securityObjectElem = TRNIDOM_Helper::findOrCreateElementWithAttribute(
        m_requestRoot, STR_securityObject, STR_cmSearchPath, object.cmSearchPath);
    EObjectAccessRule effectiveRule = rule;
    if (wasEmpty || !lastBefore.getNextSibling().isNull()) {
      securityObjectElem.setAttribute(STR_displayPath, object.displayPath);
      securityObjectElem.setAttribute(STR_type, object.type);
    } else {
      effectiveRule = std::max(rule, getObjectAccessRule(securityObjectElem));
    }
    TRN_ASSERT(!securityObjectElem.isNull());

    TRNIDOM_Element ruleElem = TRNIDOM_Helper::findChildElement(securityObjectElem, STR_rule);
    if (!ruleElem.isNull()) securityObjectElem.removeChild(ruleElem);
    ruleElem = TRNIDOM_Helper::findOrCreateElementWithText(securityObjectElem, STR_rule,
                                                           getObjectAccessRuleStr(effectiveRule));
    TRN_ASSERT(!ruleElem.isNull());
  }

  m_entries.push_back({new DXActionHelperSecurityObject(object), rule});
}

void DXActionHelperObjectAccess::getEntries(std::vector<SecurityObjectAccess>& entries) const {
  if (!m_requestRoot.isNull()) buildAccessVector();
  entries.insert(entries.end(), m_entries.begin(), m_entries.end());
}

bool DXActionHelperObjectAccess::isUnspecifiedForAllEntries() const {
  if (!m_requestRoot.isNull()) buildAccessVector();
  return std::all_of(m_entries.begin(), m_entries.end(),
                     [](const SecurityObjectAccess& entry) { return entry.rule == kUnspecified; });
}

void DXActionHelperObjectAccess::doTake(TRNIDOM_Element& elem) {
  m_requestRoot = elem;
  TRN_ASSERT(!m_requestRoot.isNull());
}

void DXActionHelperObjectAccess::buildAccessVector() const {
  TRN_ASSERT(!m_requestRoot.isNull());
  m_entries.clear();
  TRNIDOM_Element securityObjectElem = TRNIDOM_Helper::findChildElement(m_requestRoot, STR_securityObject);
  while (!securityObjectElem.isNull()) {
    const TRNSmartPointer<DXActionHelperSecurityObject> object(new DXActionHelperSecurityObject(securityObjectElem));
    m_entries.push_back({object, getObjectAccessRule(securityObjectElem)});
    securityObjectElem = securityObjectElem.getNextSibling();
  }
}
