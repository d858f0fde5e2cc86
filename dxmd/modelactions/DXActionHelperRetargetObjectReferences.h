#ifndef DXMD_MODELACTIONS_DXACTIONHELPERRETARGETOBJECTREFERENCES_H
#define DXMD_MODELACTIONS_DXACTIONHELPERRETARGETOBJECTREFERENCES_H

#include <cstdint>
#include <initializer_list>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>

/// Object references to be pointed at new targets: the "retargetObjectReferences" element.
///
/// Written: incrementally. `Make` hands back an empty element, the document element of a document of its own, and
/// remembers it; each `addEntry` merges into it. The element stays the caller's to change between calls.
/// Read: lazily. `Take` remembers the element, into which `addEntry` then writes as well; each `getEntries` reads it
/// anew.
///
/// A helper is used by one thread at a time.
class DXMD_API DXActionHelperRetargetObjectReferences : public ActionHandlerBase {
 public:
  /// An item whose references are updated.
  struct ItemToUpdate {
    I18NString m_itemID;                    ///< the item's id, the text of "itemToUpdate"; never empty
    std::int32_t m_processDescendants = 0;  ///< "processDescendants"; 1: its descendants as well; any other value: not
  };

  /// A new reference value and the items that get it.
  struct UpdateInfo {
    I18NString m_newRefValue;                   ///< "newRefValue"; never empty when read
    std::vector<ItemToUpdate> m_itemsToUpdate;  ///< may be empty
  };

  /// A reference value and what replaces it.
  struct Entry {
    I18NString m_currentRefValue;              ///< "currentRefValue"; empty without the attribute
    std::vector<UpdateInfo> m_updateInfoList;  ///< never empty when read
  };

  /// A helper without an element: `Make` or `Take` comes first.
  DXActionHelperRetargetObjectReferences();
  ~DXActionHelperRetargetObjectReferences() override;

  /// Writes items into the element last made or taken. There is one "entry" for each current value, in it one
  /// "updateInfo" for each new value, in that one "itemToUpdate" for each item, whose flag is that of the last call.
  /// Without items, entry and update info are written all the same.
  /// @throws TRNAssertError when nothing was made or taken before, and for an item without id; what precedes that item
  ///         is written then.
  void addEntry(const I18NString& currentRefValue, const I18NString& newRefValue,
                const std::vector<ItemToUpdate>& itemsToUpdate);

  /// The same for items in braces, of which there may be none.
  void addEntry(const I18NString& currentRefValue, const I18NString& newRefValue,
                std::initializer_list<ItemToUpdate> itemsToUpdate);

  /// The same for a single item.
  void addEntry(const I18NString& currentRefValue, const I18NString& newRefValue, const ItemToUpdate& itemToUpdate);

  /// The same for a new value with its items.
  void addEntry(const I18NString& currentRefValue, const UpdateInfo& updateInfo);

  /// What the element last made or taken says now: its entries at any depth, with their update infos at any depth, with
  /// their items at any depth.
  /// @throws TRNAssertError when nothing was made or taken, when there is no entry, and for an entry without update
  ///         info, an update info without new value and an item without id or flag.
  std::vector<Entry> getEntries() const;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const override;

  /// Remembers the element, also a null one, with which the next call of another operation fails.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  mutable TRNIDOM_Element m_requestRoot;  // "retargetObjectReferences", last made or taken
};

#endif
