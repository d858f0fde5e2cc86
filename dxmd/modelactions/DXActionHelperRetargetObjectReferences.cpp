#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>

#include <cstddef>
#include <utility>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

namespace {

const I18NString kElemNameRoot("retargetObjectReferences");
const I18NString kElemNameEntry("entry");
const I18NString kAttrNameRefCurrentValue("currentRefValue");
const I18NString kElemNameUpdateInfo("updateInfo");
const I18NString kAttrNameRefNewValue("newRefValue");
const I18NString kElemNameUpdateItem("itemToUpdate");
const I18NString kAttrNameProcessDescendants("processDescendants");

// Elements of one name in document order, each with the range that what is below it has in the list of another name.
class Holders {
 public:
  struct Holder {
    TRNIDOM_Element element;
    std::size_t begin;
    std::size_t end;
  };

  void enter(const TRNIDOM_Node& element, std::size_t begin) {
    m_open.push_back(m_holders.size());
    m_holders.push_back({element, begin, begin});
  }

  void leave(const TRNIDOM_Node& element, std::size_t end) {
    if (m_open.empty() || m_holders[m_open.back()].element != element) return;
    m_holders[m_open.back()].end = end;
    m_open.pop_back();
  }

  const Holder& operator[](std::size_t index) const { return m_holders[index]; }
  std::size_t size() const { return m_holders.size(); }
  auto begin() const { return m_holders.begin(); }
  auto end() const { return m_holders.end(); }

 private:
  std::vector<Holder> m_holders;
  std::vector<std::size_t> m_open;
};

// All that is read, found in one walk: entries nest to any depth, and searching below each of them anew would cost the
// square of that depth.
struct Content {
  Holders entries;      // hold update infos
  Holders updateInfos;  // hold items
  std::vector<TRNIDOM_Element> items;

  explicit Content(const TRNIDOM_Node& root) {
    TRNIDOM_Node node = root.getFirstChild();
    while (!node.isNull()) {
      enter(node);
      TRNIDOM_Node next = node.getFirstChild();
      while (next.isNull() && node != root) {
        leave(node);
        next = node.getNextSibling();
        if (next.isNull()) node = node.getParentNode();
      }
      node = std::move(next);
    }
  }

 private:
  void enter(const TRNIDOM_Node& node) {
    if (!dxmd::isElement(node)) return;
    const I18NString name = node.getNodeName();
    if (name == kElemNameEntry) entries.enter(node, updateInfos.size());
    if (name == kElemNameUpdateInfo) updateInfos.enter(node, items.size());
    if (name == kElemNameUpdateItem) items.emplace_back(node);
  }

  void leave(const TRNIDOM_Node& node) {
    entries.leave(node, updateInfos.size());
    updateInfos.leave(node, items.size());
  }
};

}  // namespace

DXActionHelperRetargetObjectReferences::DXActionHelperRetargetObjectReferences() = default;
DXActionHelperRetargetObjectReferences::~DXActionHelperRetargetObjectReferences() = default;

void DXActionHelperRetargetObjectReferences::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const {
  domRequest = doc.createElement(kElemNameRoot);
  TRN_ASSERT(!domRequest.isNull());
  doc.appendChild(domRequest);
  m_requestRoot = domRequest;
}

void DXActionHelperRetargetObjectReferences::addEntry(const I18NString& currentRefValue, const I18NString& newRefValue,
                                                      const std::vector<ItemToUpdate>& itemsToUpdate) {
  const TRNIDOM_Element entryElem = TRNIDOM_Helper::findOrCreateElementWithAttribute(
      m_requestRoot, kElemNameEntry, kAttrNameRefCurrentValue, currentRefValue);
  TRN_ASSERT(!entryElem.isNull());
  const TRNIDOM_Element updateInfoElem = TRNIDOM_Helper::findOrCreateElementWithAttribute(
      entryElem, kElemNameUpdateInfo, kAttrNameRefNewValue, newRefValue);
  TRN_ASSERT(!updateInfoElem.isNull());

  for (auto itemsToUpdateIterator = itemsToUpdate.begin(); itemsToUpdateIterator != itemsToUpdate.end();
       ++itemsToUpdateIterator) {
    TRN_ASSERT(!itemsToUpdateIterator->m_itemID.empty());
    TRNIDOM_Element itemToUpdateElem = TRNIDOM_Helper::findOrCreateElementWithText(updateInfoElem, kElemNameUpdateItem,
                                                                                   itemsToUpdateIterator->m_itemID);
    TRN_ASSERT(!itemToUpdateElem.isNull());
    itemToUpdateElem.setAttribute(kAttrNameProcessDescendants,
                                  dxmd::toText(itemsToUpdateIterator->m_processDescendants == 1));
  }
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
  const auto* const pLocaleThis = this;
  TRN_ASSERT(!pLocaleThis->m_requestRoot.isNull() && !pLocaleThis->m_requestRoot.getOwnerDocument().isNull());

  const Content content(m_requestRoot);
  std::vector<Entry> entries;
  for (const auto& entryElem : content.entries) {
    Entry entry;
    entry.m_currentRefValue = entryElem.element.getAttribute(kAttrNameRefCurrentValue);
    for (std::size_t info = entryElem.begin; info != entryElem.end; ++info) {
      const auto& updateInfoElem = content.updateInfos[info];
      UpdateInfo updateInfo;
      updateInfo.m_newRefValue = updateInfoElem.element.getAttribute(kAttrNameRefNewValue);
      TRN_ASSERT(!updateInfo.m_newRefValue.empty());
      for (std::size_t item = updateInfoElem.begin; item != updateInfoElem.end; ++item) {
        const I18NString itemID = TRNIDOM_Helper::getElementText(content.items[item]);
        const I18NString processDescendants = content.items[item].getAttribute(kAttrNameProcessDescendants);
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
