#ifndef DXMD_CORE_DIMENSIONINFOHELPER_H
#define DXMD_CORE_DIMENSIONINFOHELPER_H

#include <vector>

#include <trn/I18NString.h>

#include <dxmd/core/ActionHandlerBase.h>

/// The levels and hierarchies of a dimension: the "dimInfo" element.
///
/// Written: build and hand back; the element is not attached to its document. Levels precede hierarchies, and a list
/// without members writes no element. The "externalName" of a level or hierarchy is its name again.
/// Not read.
///
/// A helper is used by one thread at a time.
class DXMD_API DimensionInfoHelper : public ActionHandlerBase {
 public:
  /// A level, its key and its attributes.
  struct LevelInfo {
    I18NString name;                     ///< text of "name" and, again, of "externalName"
    int isUniqueKey;                     ///< non-zero when the key identifies a member uniquely: "isUniqueKey"
    I18NString keyName;                  ///< text of the key's "name"
    std::vector<I18NString> keyItems;    ///< references of the query items that form the key, each a "refobj"
    std::vector<I18NString> attributes;  ///< references of the attributes' query items, each a "refobj"
  };

  /// A hierarchy and the references of its levels in order.
  struct HierarchyInfo {
    I18NString name;                 ///< text of "name" and, again, of "externalName"
    std::vector<I18NString> levels;  ///< references of the levels from the top down, each a "refobj"
  };

  /// A dimension without levels and hierarchies.
  DimensionInfoHelper();
  ~DimensionInfoHelper() override;

  /// Appends a level and returns its name. Nothing is merged.
  /// @param name         what the level is called.
  /// @param keyName      what its key is called.
  /// @param keyItems     references of the query items that form the key.
  /// @param isUniqueKey  non-zero when the key identifies a member uniquely.
  /// @param attributes   references of the attributes' query items.
  I18NString AddLevel(const I18NString& name, const I18NString& keyName, const std::vector<I18NString>& keyItems,
                      int isUniqueKey, const std::vector<I18NString>& attributes);

  /// Appends a hierarchy with the references of its levels from the top down. Nothing is merged.
  void AddHierarchy(const I18NString& name, const std::vector<I18NString>& levels);

  /// Appends to the parent, which must belong to the document, an element that holds one text node, also when the text
  /// is empty.
  void AddTextElementNode(TRNIDOM_Document& doc, TRNIDOM_Element& parent, const I18NString& name,
                          const I18NString& text) const;

  /// The first "levels" below the element, or null.
  TRNIDOM_Element getLevelsElement(TRNIDOM_Element& element) const;

  /// The first "hierarchies" below the element, or null.
  TRNIDOM_Element getHierarchiesElement(TRNIDOM_Element& element) const;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// Does nothing.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  std::vector<HierarchyInfo> m_hierarchies;
  std::vector<LevelInfo> m_levels;
};

#endif
