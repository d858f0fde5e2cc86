#ifndef DXMD_MODELACTIONS_DXEXTERNALIZEREPORTHELPER_H
#define DXMD_MODELACTIONS_DXEXTERNALIZEREPORTHELPER_H

#include <vector>

#include <trn/I18NString.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/OwnedList.h>

/// How each model object was externalised and to which file: the "externalizeReport" element.
///
/// Written: build and hand back; the element is not attached to its document. All four texts become attributes.
/// Read: eagerly, every "entry" at any depth, added to those already held. The path comes from the last child "file",
/// and no error is read: a report written here reads back without paths and errors.
///
/// A helper is used by one thread at a time.
class DXMD_API DXExternalizeReportHelper : public ActionHandlerBase {
 public:
  /// One model object.
  struct Entry {
    I18NString objectID;  ///< "objectID" of the object
    I18NString method;    ///< "method": how it was externalised
    I18NString path;      ///< written as "path"; read from "path" of the last child "file", and empty without one
    I18NString error;     ///< "error"; written, not read
  };

  /// A report without entries.
  DXExternalizeReportHelper();
  ~DXExternalizeReportHelper() override;

  /// Takes ownership of an entry made with `new`, also when it throws std::bad_alloc.
  /// @throws TRNAssertError for a null pointer.
  /// The argument is spelt as the assertion's text has it.
  void AddEntry(Entry* pEntry);

  /// The entries in the order added or read; they stay owned by the helper and live as long as it.
  const std::vector<Entry*>& GetEntries() const { return m_entries.items(); }

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// Does nothing for a null element.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  dxmd::OwnedList<Entry> m_entries;
};

#endif
