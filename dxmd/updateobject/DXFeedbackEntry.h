#ifndef DXMD_UPDATEOBJECT_DXFEEDBACKENTRY_H
#define DXMD_UPDATEOBJECT_DXFEEDBACKENTRY_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>

/// One message of a feedback with the messages below it, to any depth: an "entry" element.
///
/// An entry is used by one thread at a time.
class DXMD_API DXFeedbackEntry {
 public:
  /// What kind of message it is, with the text of the attribute "class".
  enum EEntryClass : int {
    kEntryUnknown = 0,  ///< "unknown"
    kEntryInfo = 1,     ///< "info"
    kEntryWarning = 2,  ///< "warning"
    kEntryError = 3,    ///< "error"
    kEntryTrace = 4     ///< "trace"
  };

  /// An entry without entries below it.
  /// @param entryClass  "class"
  /// @param text        what the entry says.
  /// @param name        a label, "name"; empty for none.
  DXFeedbackEntry(EEntryClass entryClass, const I18NString& text, const I18NString& name);
  ~DXFeedbackEntry();

  DXFeedbackEntry(const DXFeedbackEntry&) = delete;
  DXFeedbackEntry& operator=(const DXFeedbackEntry&) = delete;

  /// Appends a message below this one and returns it for the caller to nest further. Valid as long as this entry.
  DXFeedbackEntry* AddEntry(EEntryClass entryClass, const I18NString& text, const I18NString& name);

  /// Hands back a new "entry" with attribute "class", "name" unless empty, the text and the entries below.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const;

  /// Appends the line of one received entry to `out`: a line feed, the indent, "*** Error:" for the class "error" or
  /// "--- " for any other, and the text that the entry begins with. Entries below it are no part of its line.
  /// @param elem    an "entry"; of a null one the line has no text.
  /// @param indent  what the line begins with.
  /// @param out     what the line is appended to.
  static void Render(TRNIDOM_Element& elem, const I18NString& indent, I18NString& out);

 private:
  EEntryClass m_entryClass;
  I18NString m_text;
  I18NString m_name;
  dxmd::OwnedList<DXFeedbackEntry> m_children;
};

/// The text of an entry class; "unknown" for any other value.
/// @relates DXFeedbackEntry
DXMD_API I18NString ToString(DXFeedbackEntry::EEntryClass entryClass);

#endif
