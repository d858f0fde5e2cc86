#ifndef DXMD_QUERYSERVICE_QSPARAMVALUEITEMSIMPLEHELPER_H
#define DXMD_QUERYSERVICE_QSPARAMVALUEITEMSIMPLEHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryservice/QsParamValueItemHelper.h>

/// A single value: the value to use, and the text to display for it, which is read but never written.
///
/// An item is used by one thread at a time.
class DXMD_API QsParamValueItemSimpleHelper : public QsParamValueItemHelper {
 public:
  /// An empty, inclusive value.
  QsParamValueItemSimpleHelper();

  /// @param inclusive  non-zero when the value itself belongs to the range it bounds.
  /// @param use        the value.
  QsParamValueItemSimpleHelper(int inclusive, const I18NString& use);
  ~QsParamValueItemSimpleHelper() override;

  /// Sets the text to display, which is not written.
  void SetDisplay(const I18NString& display) { m_display = display; }

  /// The text to display, read from "display"; empty at first. Valid as long as the item.
  const I18NString& GetDisplay() const { return m_display; }

  /// Sets the value, the text of "use"; an empty one is not written.
  void SetUse(const I18NString& use) { m_use = use; }

  /// The value, read from "use"; empty at first. Valid as long as the item.
  const I18NString& GetUse() const { return m_use; }

  /// Hands back a new "item" with its properties.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// Reads "inclusive", "use" and "display"; a text that the item lacks stays as it was.
  void doTake(TRNIDOM_Element& elmValueItem) override;

  /// `kValueItemSimple`.
  EValueItem GetType() const override { return kValueItemSimple; }

  /// "bus:simpleParmValueItem".
  const I18NString& GetTarvoType() const override { return ToString(kTarvoItemSimple); }

  /// Writes "inclusive" and, unless empty, "use".
  void makeProperties(TRNIDOM_Element& target) const override;

 private:
  I18NString m_use;
  I18NString m_display;
};

#endif
