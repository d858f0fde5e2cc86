#ifndef DXMD_UPDATEOBJECT_DXACTIONFEEDBACKHELPER_H
#define DXMD_UPDATEOBJECT_DXACTIONFEEDBACKHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/updateobject/DXFeedbackEntry.h>

/// What a model action reports back: the "feedback" document, a tree of messages.
///
/// Written: build and hand back, from the entries added. Read: `Take` keeps the element for `Render` and makes no
/// entries of it, so writing and reading do not meet in one helper.
///
/// A helper is used by one thread at a time.
class DXMD_API DXActionFeedbackHelper : public ActionHandlerBase {
 public:
  /// A feedback without messages.
  DXActionFeedbackHelper();
  ~DXActionFeedbackHelper() override;

  /// Appends a message and returns it for the caller to add messages below it. Valid as long as the helper.
  /// @param entryClass  "class"
  /// @param text        what the entry says.
  /// @param name        a label, "name"; empty for none.
  DXFeedbackEntry* AddEntry(DXFeedbackEntry::EEntryClass entryClass, const I18NString& text, const I18NString& name);

  /// Appends a message below the parent, which must not be null, and returns it. Valid as long as the parent.
  DXFeedbackEntry* AddEntry(DXFeedbackEntry* parent, DXFeedbackEntry::EEntryClass entryClass, const I18NString& text,
                            const I18NString& name);

  /// Whether no message was added. A received element does not count.
  bool IsEmpty() const { return m_entries.empty(); }

  /// Appends the received feedback as plain text, one line per entry of any depth in document order, each begun with a
  /// line feed and none indented. Without a received element `out` stays as it is.
  void Render(I18NString& out);

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;
  void doTake(TRNIDOM_Element& elem) override;

 private:
  dxmd::OwnedList<DXFeedbackEntry> m_entries;
  TRNIDOM_Element m_feedback;
};

#endif
