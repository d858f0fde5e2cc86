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
class DXMD_API QsApiConnectHelper : public ActionHandlerBase {
 public:
  /// Name reserved for the password of a cube; no operation of this class writes it.
  static const I18NString STR_cubePassword;

  /// A connection of provider type "QueryFrameworkService" to the service "DX".
  QsApiConnectHelper();
  ~QsApiConnectHelper() override;

  void SetNamespace(const I18NString& name);
  void SetUserName(const I18NString& name);
  void SetPassword(const I18NString& password);
  void SetPassport(const I18NString& passport);
  void SetContentManagerURI(const I18NString& uri);
  void SetRunLocale(const I18NLocale& locale);
  void SetProductLocale(const I18NLocale& locale);

  /// Writes the identifier as `MakeSessionID` does.
  void SetSessionID(const unsigned long& id);

  /// The model path names the data source.
  void SetModelPath(const I18NString& path);

  /// Sets any property.
  ///
  /// A key that is no element name makes `Make` throw TRNIDOM_DOMException, except with an empty value, which is not
  /// written.
  void AddProperty(const I18NString& key, const I18NString& value);

  void SetRetainConnection(bool retain);
  void SetDisableAuthentication(bool disable);
  void SetProviderType(const I18NString& type);

  /// Appends a model: of kind "bmeModel" when `bme`, else "Model".
  void AddModel(const I18NString& name, bool bme);

  /// The identifier of the service this library speaks for: "DX".
  static const I18NString& GetDXServiceID();

  /// The identifier as the service expects it: the decimal text of the signed 32-bit number of the same bits, so that
  /// 4294967295 gives "-1".
  static I18NString MakeSessionID(const unsigned long& id);

  /// Updates passport and locales in a connection that is already built. An empty passport and null locales leave
  /// theirs untouched; with nothing to update the connection may be null.
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
