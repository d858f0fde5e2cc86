#ifndef DXMD_QUERYSERVICE_QSPARAMVALUEITEMHELPER_H
#define DXMD_QUERYSERVICE_QSPARAMVALUEITEMHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>

/// Base of a parameter's values: a simple value, a range, a hierarchical value, or null. Each is an "item" element
/// whose "xsi:type" tells its kind.
///
/// Written: build and hand back. The enclosing document declares the prefixes "xsi" and "bus".
/// Read: `Take` keeps a handle to the item; bounds, values and sub-nodes are read from it at the first call of their
/// getter, and until then the item is written without them.
/// An item owns the items in it. An item is used by one thread at a time.
class DXMD_API QsParamValueItemHelper : public ActionHandlerBase {
 public:
  /// The kinds of items.
  enum EValueItem : int {
    kValueItemSimple = 1,     ///< a QsParamValueItemSimpleHelper
    kValueItemRange = 2,      ///< a QsParamValueItemRangeHelper
    kValueItemHierarchy = 3,  ///< a QsParamValueItemHierarchyHelper
    kValueItemNull = 4        ///< a QsParamValueItemNullHelper
  };

  /// The kinds of items on the wire, where a range goes by the bounds it has.
  enum ETarvoItemType : int {
    kTarvoItemUnknown = 0,         ///< any other "xsi:type"
    kTarvoItemSimple = 1,          ///< "bus:simpleParmValueItem"
    kTarvoItemBoundRange = 2,      ///< "bus:boundRangeParmValueItem": a range with both bounds
    kTarvoItemUnboundedStart = 3,  ///< "bus:unboundedStartParmValueItem": a range with an end only
    kTarvoItemUnboundedEnd = 4,    ///< "bus:unboundedEndParmValueItem": a range without an end
    kTarvoItemHierarchical = 5,    ///< "bus:hierarchicalParmValueItem"
    kTarvoItemNil = 6              ///< "xsi:nil": no value
  };

  /// The type's text in "xsi:type"; "unknown" for any other value.
  static const I18NString& ToString(ETarvoItemType type);

  /// Makes an empty item of the kind that a received item's "xsi:type" names; the caller owns it and hands it the
  /// element with `Take`. Null for "xsi:nil" and for an empty type.
  /// @throws TRNAssertError for any other type.
  static QsParamValueItemHelper* Create(const I18NString& xsiType, TRNIDOM_Element& element);

  /// @param inclusive  non-zero when the value itself belongs to the range it bounds.
  explicit QsParamValueItemHelper(int inclusive);
  ~QsParamValueItemHelper() override;

  /// Creates "item" with its "xsi:type".
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// Keeps the element and reads "inclusive": only the text "false" clears it.
  /// @throws TRNAssertError when the element is null. Its argument is spelt as the assertion's text has it.
  void doTake(TRNIDOM_Element& elmValueItem) override;

  /// The kind of item, which is the class: what a caller may cast to.
  virtual EValueItem GetType() const = 0;

  /// The text of "xsi:type" as the item would be written now.
  virtual const I18NString& GetTarvoType() const = 0;

  /// Writes the value's properties into an element: "inclusive".
  virtual void makeProperties(TRNIDOM_Element& target) const;

  /// Non-zero when the value itself belongs to the range it bounds, as it does at first and unless a received item has
  /// "false" in "inclusive".
  int IsInclusive() const { return m_inclusive; }

  /// Sets what "inclusive" says: "false" for 0, else "true".
  void SetInclusive(int inclusive) { m_inclusive = inclusive; }

 protected:
  /// The item last taken; null until then.
  const TRNIDOM_Element& element() const { return m_element; }

 private:
  TRNIDOM_Element m_element;
  int m_inclusive;
};

#endif
