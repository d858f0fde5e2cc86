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
  enum EValueItem : int { kValueItemSimple = 1, kValueItemRange = 2, kValueItemHierarchy = 3, kValueItemNull = 4 };

  /// The kinds of items on the wire, where a range goes by the bounds it has.
  enum ETarvoItemType : int {
    kTarvoItemUnknown = 0,
    kTarvoItemSimple = 1,
    kTarvoItemBoundRange = 2,
    kTarvoItemUnboundedStart = 3,
    kTarvoItemUnboundedEnd = 4,
    kTarvoItemHierarchical = 5,
    kTarvoItemNil = 6
  };

  /// The type's text in "xsi:type"; "unknown" for any other value.
  static const I18NString& ToString(ETarvoItemType type);

  /// Makes an empty item of the kind that a received item's "xsi:type" names; the caller owns it and hands it the
  /// element with `Take`. Null for "xsi:nil" and for an empty type.
  /// @throws TRNAssertError for any other type.
  static QsParamValueItemHelper* Create(const I18NString& xsiType, TRNIDOM_Element& element);

  explicit QsParamValueItemHelper(int inclusive);
  ~QsParamValueItemHelper() override;

  /// Creates "item" with its "xsi:type".
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// Keeps the element and reads "inclusive": only the text "false" clears it.
  /// @throws TRNAssertError when the element is null. Its argument is spelt as the assertion's text has it.
  void doTake(TRNIDOM_Element& elmValueItem) override;

  virtual EValueItem GetType() const = 0;

  /// The text of "xsi:type".
  virtual const I18NString& GetTarvoType() const = 0;

  /// Writes the value's properties into an element: "inclusive".
  virtual void makeProperties(TRNIDOM_Element& target) const;

  /// Whether the value itself belongs to the range it bounds.
  int IsInclusive() const { return m_inclusive; }
  void SetInclusive(int inclusive) { m_inclusive = inclusive; }

 protected:
  /// The item last taken; null until then.
  const TRNIDOM_Element& element() const { return m_element; }

 private:
  TRNIDOM_Element m_element;
  int m_inclusive;
};

#endif
