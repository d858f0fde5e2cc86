#ifndef DXMD_QUERYSERVICE_QSAPICONNECTHELPER_H
#define DXMD_QUERYSERVICE_QSAPICONNECTHELPER_H

#include <map>
#include <utility>
#include <vector>

#include <trn/I18NLocale.h>
#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>

/// The "connection" element that tells the query service what a request runs against: service, data source, user,
/// session and models. Commands take it with `QFCommandHelper::SetConnection` and `AddConnection`.
///
/// Written: build and hand back. After the provider type come the properties in order of their keys, those with an
/// empty value left out, then the models as inner connections, then the flags. Nothing is read.
/// Setters may be called in any order and again; the last value counts. The password is written as plain text.
///
/// A helper is used by one thread at a time.
class DXMD_API QsApiConnectHelper : public ActionHandlerBase {
 public:
  /// Name reserved for the password of a cube; no operation of this class writes it.
  static const I18NString STR_cubePassword;

  /// A connection of provider type "QueryFrameworkService" to the service "DX".
  QsApiConnectHelper();
  ~QsApiConnectHelper() override;

  /// Sets the property "namespace", which the user signs on to.
  void SetNamespace(const I18NString& name);

  /// Sets the property "username".
  void SetUserName(const I18NString& name);

  /// Sets the property "password", written as plain text.
  void SetPassword(const I18NString& password);

  /// Sets the property "VAMPassport", the passport of a user who has signed on; it is as secret as a password.
  void SetPassport(const I18NString& passport);

  /// Sets the property "contentManagerURI", where the content manager is.
  void SetContentManagerURI(const I18NString& uri);

  /// Sets the property "runLocale", the locale of data, to the locale's name.
  void SetRunLocale(const I18NLocale& locale);

  /// Sets the property "productLocale", the locale of messages, to the locale's name.
  void SetProductLocale(const I18NLocale& locale);

  /// Sets the property "sessionID" to what `MakeSessionID` makes of the identifier.
  void SetSessionID(const unsigned long& id);

  /// Sets the property "dataSource" to the model path.
  void SetModelPath(const I18NString& path);

  /// Sets any property, an element named after the key with the value in "value"; it replaces what a setter set under
  /// the same key.
  ///
  /// A key that is no element name makes `Make` throw TRNIDOM_DOMException, except with an empty value, which is not
  /// written.
  void AddProperty(const I18NString& key, const I18NString& value);

  /// Sets the flag "RETAINCONNECTION", whether the service keeps the connection open, to "TRUE" or "FALSE"; not written
  /// unless set.
  void SetRetainConnection(bool retain);

  /// Sets the flag "disableAuthentication", whether the service skips signing on, to "TRUE" or "FALSE"; not written
  /// unless set.
  void SetDisableAuthentication(bool disable);

  /// Sets the "dataSourceType" of the connection, written also when empty; at first "QueryFrameworkService".
  void SetProviderType(const I18NString& type);

  /// Appends a model, an inner "connection": of kind "bmeModel" when `bme`, else "Model".
  void AddModel(const I18NString& name, bool bme);

  /// The identifier of the service this library speaks for: "DX".
  static const I18NString& GetDXServiceID();

  /// The identifier as the service expects it: the decimal text of the signed 32-bit number of the same bits, so that
  /// 4294967295 gives "-1".
  static I18NString MakeSessionID(const unsigned long& id);

  /// Updates passport and locales in a connection that is already built; with nothing to update it may be null.
  /// @param connection     a "connection" element; its children "VAMPassport", "productLocale" and "runLocale" are set,
  ///                       and created where missing.
  /// @param passport       the new passport; empty leaves the present one.
  /// @param productLocale  the new locale of messages; null leaves the present one.
  /// @param runLocale      the new locale of the data; null leaves the present one.
  /// @throws TRNIDOM_DOMException for a null connection.
  static void RefreshRequest(TRNIDOM_Element& connection, const I18NString& passport, const I18NLocale* productLocale,
                             const I18NLocale* runLocale);

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

 private:
  std::map<I18NString, I18NString> m_properties;
  std::map<I18NString, I18NString> m_flags;
  std::vector<std::pair<I18NString, I18NString>> m_models;
  I18NString m_providerType;
};

#endif
