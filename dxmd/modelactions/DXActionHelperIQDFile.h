#ifndef DXMD_MODELACTIONS_DXACTIONHELPERIQDFILE_H
#define DXMD_MODELACTIONS_DXACTIONHELPERIQDFILE_H

#include <vector>

#include <trn/I18NString.h>

#include <dxmd/core/ActionHandlerBase.h>

/// A query definition file, line by line, and what its query runs against: the "file" element.
///
/// Written: build and hand back, as the document element of a document of its own. Lines are written through
/// find-or-create: equal lines of the file become one "line" element, where the first of them stood.
/// Read: eagerly; every part is optional, and a missing one leaves its text as it was. Lines read, at any depth below
/// "contents", are added to those already held.
///
/// A helper is used by one thread at a time.
class DXMD_API DXActionHelperIQDFile : public ActionHandlerBase {
 public:
  static const I18NString kElemNameRoot;       ///< "file"
  static const I18NString k_file;              ///< "file"
  static const I18NString k_filePath;          ///< "filePath"
  static const I18NString k_contents;          ///< "contents"
  static const I18NString k_line;              ///< "line"
  static const I18NString k_dbConnectionName;  ///< "dbConnectionName"
  static const I18NString k_cmDataSource;      ///< "cmDataSource"

  /// A file without lines, whose texts are all empty.
  DXActionHelperIQDFile();
  ~DXActionHelperIQDFile() override;

  /// The file's path, written also when empty.
  void setFilePath(const I18NString& filePath) { m_filePath = filePath; }

  /// The name of the database connection; not written when empty.
  void setDbConnectionName(const I18NString& dbConnectionName) { m_dbConnectionName = dbConnectionName; }

  /// The data source; not written when empty.
  void setCmDataSource(const I18NString& cmDataSource) { m_cmDataSource = cmDataSource; }

  /// Replaces all lines.
  void setContents(const std::vector<I18NString>& contents) { m_contents = contents; }

  /// Appends one line, without its line end; it may be empty.
  void addContentLine(const I18NString& line) { m_contents.push_back(line); }

  /// The text of "filePath" that was set or read last; empty at first.
  I18NString getFilePath() const { return m_filePath; }

  /// The text of "dbConnectionName" that was set or read last; empty at first.
  I18NString getDbConnectionName() const { return m_dbConnectionName; }

  /// The text of "cmDataSource" that was set or read last; empty at first.
  I18NString getCmDataSource() const { return m_cmDataSource; }

  /// The lines in order; valid as long as the helper, and changing with it.
  const std::vector<I18NString>& getContents() const { return m_contents; }

 protected:
  /// @throws TRNAssertError when there are no lines; "file" with its "filePath" has been handed back then.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const override;

  /// Reads what the element has; a null one has nothing.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  I18NString m_filePath;
  std::vector<I18NString> m_contents;
  I18NString m_dbConnectionName;
  I18NString m_cmDataSource;
};

#endif
