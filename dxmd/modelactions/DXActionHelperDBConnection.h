#ifndef DXMD_MODELACTIONS_DXACTIONHELPERDBCONNECTION_H
#define DXMD_MODELACTIONS_DXACTIONHELPERDBCONNECTION_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>

/// One database connection of a data source: the "dbConnection" element.
///
/// Written: build and hand back, as the document element of a document of its own. Connection string and database are
/// required; every other text is left out when it is empty.
/// Read: eagerly, from direct children. Connection string, database and database type are required, so an element
/// written without a database type cannot be read back. A missing optional child leaves its text as it was.
///
/// The password is written and read as given.
///
/// A helper is used by one thread at a time.
class DXMD_API DXActionHelperDBConnection : public ActionHandlerBase {
 public:
  static const I18NString k_dbConnection;      ///< "dbConnection"
  static const I18NString k_connectionString;  ///< "connectionString"
  static const I18NString k_database;          ///< "database"
  static const I18NString k_catalog;           ///< "catalog"
  static const I18NString k_schema;            ///< "schema"
  static const I18NString k_dbType;            ///< "dbType"
  static const I18NString k_userName;          ///< "userName"
  static const I18NString k_password;          ///< "password"

  /// A connection whose texts are all empty.
  DXActionHelperDBConnection();
  ~DXActionHelperDBConnection() override;

  /// Sets the text of "connectionString": required.
  void setConnectionString(const I18NString& connectionString) { m_connectionString = connectionString; }

  /// Sets the text of "database": required.
  void setDatabase(const I18NString& database) { m_database = database; }

  /// Sets the text of "catalog": left out when empty.
  void setCatalog(const I18NString& catalog) { m_catalog = catalog; }

  /// Sets the text of "schema": left out when empty.
  void setSchema(const I18NString& schema) { m_schema = schema; }

  /// Sets the text of "dbType": left out when empty, but required when read.
  void setDbType(const I18NString& dbType) { m_dbType = dbType; }

  /// Sets the text of "userName": left out when empty.
  void setUserName(const I18NString& userName) { m_userName = userName; }

  /// Sets the text of "password": written as given, and left out when empty.
  void setPassword(const I18NString& password) { m_password = password; }

  /// The text of "database" that was set or read last; empty at first.
  I18NString getDatabase() const { return m_database; }

  /// The text of "catalog" that was set or read last; empty at first.
  I18NString getCatalog() const { return m_catalog; }

  /// The text of "schema" that was set or read last; empty at first.
  I18NString getSchema() const { return m_schema; }

  /// The text of "dbType" that was set or read last; empty at first.
  I18NString getDbType() const { return m_dbType; }

  /// The text of "connectionString" that was set or read last; empty at first.
  I18NString getConnectionString() const { return m_connectionString; }

  /// The text of "userName" that was set or read last; empty at first.
  I18NString getUserName() const { return m_userName; }

  /// The text of "password" that was set or read last; empty at first.
  I18NString getPassword() const { return m_password; }

 protected:
  /// @throws TRNAssertError when the connection string or the database is empty; nothing is created then.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& domRequest) const override;

  /// @throws TRNAssertError for a null element and for one without connection string, database or database type; what
  ///         was read until then is kept.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  I18NString m_database;
  I18NString m_catalog;
  I18NString m_schema;
  I18NString m_connectionString;
  I18NString m_dbType;
  I18NString m_userName;
  I18NString m_password;
  mutable TRNIDOM_Element m_requestRoot;  // last made or taken
};

#endif
