#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>

#include <utility>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Descendants.h>
#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

DXActionHelperRetargetObjectReferences::DXActionHelperRetargetObjectReferences() = default;
DXActionHelperRetargetObjectReferences::~DXActionHelperRetargetObjectReferences() = default;

void DXActionHelperRetargetObjectReferences::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const {
  domRequest = doc.createElement(STR_retargetObjectReferences);  // spelt as the assertion's text has it
  TRN_ASSERT(!domRequest.isNull());
  doc.appendChild(domRequest);
  m_requestRoot = domRequest;
}

void DXActionHelperRetargetObjectReferences::addEntry(const I18NString& currentRefValue, const I18NString& newRefValue,
                                                      const std::vector<ItemToUpdate>& itemsToUpdate) {
  // Elements and the iterator are spelt as the assertions' texts have them.
  const TRNIDOM_Element entryElem =
      TRNIDOM_Helper::findOrCreateElementWithAttribute(m_requestRoot, STR_entry, STR_currentRefValue, currentRefValue);
  TRN_ASSERT(!entryElem.isNull());
  const TRNIDOM_Element updateInfoElem =
      TRNIDOM_Helper::findOrCreateElementWithAttribute(entryElem, STR_updateInfo, STR_newRefValue, newRefValue);
  TRN_ASSERT(!updateInfoElem.isNull());

  for (auto itemsToUpdateIterator = itemsToUpdate.begin(); itemsToUpdateIterator != itemsToUpdate.end();
       ++itemsToUpdateIterator) {
    TRN_ASSERT(!itemsToUpdateIterator->m_itemID.empty());
    TRNIDOM_Element itemToUpdateElem =
        TRNIDOM_Helper::findOrCreateElementWithText(updateInfoElem, STR_itemToUpdate, itemsToUpdateIterator->m_itemID);
    TRN_ASSERT(!itemToUpdateElem.isNull());
    itemToUpdateElem.setAttribute(STR_processDescendants, toText(itemsToUpdateIterator->m_processDescendants == 1));
  }
}

void DXActionHelperRetargetObjectReferences::addEntry(const I18NString& currentRefValue, const I18NString& newRefValue,
                                                      std::initializer_list<ItemToUpdate> itemsToUpdate) {
  addEntry(currentRefValue, newRefValue, std::vector<ItemToUpdate>(itemsToUpdate));
}

void DXActionHelperRetargetObjectReferences::addEntry(const I18NString& currentRefValue, const I18NString& newRefValue,
                                                      const ItemToUpdate& itemToUpdate) {
  addEntry(currentRefValue, newRefValue, std::vector<ItemToUpdate>(1, itemToUpdate));
}

void DXActionHelperRetargetObjectReferences::addEntry(const I18NString& currentRefValue, const UpdateInfo& updateInfo) {
  addEntry(currentRefValue, updateInfo.m_newRefValue, updateInfo.m_itemsToUpdate);
}

void DXActionHelperRetargetObjectReferences::doTake(TRNIDOM_Element& elem) {
  m_requestRoot = elem;
}

std::vector<DXActionHelperRetargetObjectReferences::Entry> DXActionHelperRetargetObjectReferences::getEntries() const {
  const auto* const pLocaleThis = this;  // spelt as the assertion's text has it, as are the locals below
  TRN_ASSERT(!pLocaleThis->m_requestRoot.isNull() && !pLocaleThis->m_requestRoot.getOwnerDocument().isNull());

  enum Name { kEntry, kUpdateInfo, kItem };
  const Descendants all(m_requestRoot, {STR_entry, STR_updateInfo, STR_itemToUpdate});
  std::vector<Entry> entries;
  for (const auto& entryElem : all.below(all.root(), kEntry)) {
    Entry entry;
    entry.m_currentRefValue = entryElem.element.getAttribute(STR_currentRefValue);
    for (const auto& updateInfoElem : all.below(entryElem, kUpdateInfo)) {
      UpdateInfo updateInfo;
      updateInfo.m_newRefValue = updateInfoElem.element.getAttribute(STR_newRefValue);
      TRN_ASSERT(!updateInfo.m_newRefValue.empty());
      for (const auto& itemElem : all.below(updateInfoElem, kItem)) {
        const I18NString itemID = TRNIDOM_Helper::getElementText(itemElem.element);
        const I18NString processDescendants = itemElem.element.getAttribute(STR_processDescendants);
        TRN_ASSERT(!itemID.empty() && !processDescendants.empty());
        updateInfo.m_itemsToUpdate.push_back({itemID, processDescendants == STR_true ? 1 : 0});
      }
      entry.m_updateInfoList.push_back(std::move(updateInfo));
    }
    TRN_ASSERT(entry.m_updateInfoList.size() > 0);
    entries.push_back(std::move(entry));
  }
  TRN_ASSERT(entries.size() > 0);
  return entries;
}
