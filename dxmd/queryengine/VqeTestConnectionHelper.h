#ifndef DXMD_QUERYENGINE_VQETESTCONNECTIONHELPER_H
#define DXMD_QUERYENGINE_VQETESTCONNECTIONHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>

/// The command that tests a database connection. It is a minimal "command" of its own, without the envelope's
/// namespaces and identifiers.
///
/// Written: build and hand back. The data source and the connection string are always written, the rest unless empty.
/// Passwords are written in clear text. Nothing is read. A helper is used by one thread at a time.
class DXMD_API VqeTestConnectionHelper : public ActionHandlerBase {
 public:
  /// What to test with. Each text becomes the "value" of an element in the inner "connection".
  /// @param dataSourceName    "dataSource"
  /// @param connectionName    "name"; left out when empty
  /// @param signonName        "name" in "signon"; both left out when empty
  /// @param userName          "username"; left out when empty
  /// @param password          "password"; left out when empty
  /// @param connectionString  "connectionString"
  /// @param cubePassword      "cubePassword"; left out when empty
  /// @param nameSpace         "namespace"; left out when empty
  VqeTestConnectionHelper(const I18NString& dataSourceName, const I18NString& connectionName,
                          const I18NString& signonName, const I18NString& userName, const I18NString& password,
                          const I18NString& connectionString, const I18NString& cubePassword,
                          const I18NString& nameSpace);
  ~VqeTestConnectionHelper() override;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

 private:
  I18NString m_dataSourceName;
  I18NString m_connectionName;
  I18NString m_signonName;
  I18NString m_userName;
  I18NString m_password;
  I18NString m_connectionString;
  I18NString m_cubePassword;
  I18NString m_namespace;
};

#endif
