#include <dxmd/queryservice/QsApiConnectHelper.h>

#include <cstdint>

#include <trn/TRNUtConvert.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

// Flags are upper case, unlike every other truth value.
const I18NString& flagText(bool on) {
  return on ? STR_TRUE : STR_FALSE;
}

}  // namespace

const I18NString QsApiConnectHelper::STR_cubePassword("cubePassword");

QsApiConnectHelper::QsApiConnectHelper()
    : m_properties{{STR_serviceID, GetDXServiceID()}}, m_providerType(STR_QueryFrameworkService) {}

QsApiConnectHelper::~QsApiConnectHelper() = default;

void QsApiConnectHelper::SetNamespace(const I18NString& name) {
  AddProperty(STR_namespace, name);
}

void QsApiConnectHelper::SetUserName(const I18NString& name) {
  AddProperty(STR_username, name);
}

void QsApiConnectHelper::SetPassword(const I18NString& password) {
  AddProperty(STR_password, password);
}

void QsApiConnectHelper::SetPassport(const I18NString& passport) {
  AddProperty(STR_VAMPassport, passport);
}

void QsApiConnectHelper::SetContentManagerURI(const I18NString& uri) {
  AddProperty(STR_contentManagerURI, uri);
}

void QsApiConnectHelper::SetRunLocale(const I18NLocale& locale) {
  AddProperty(STR_runLocale, locale.getName());
}

void QsApiConnectHelper::SetProductLocale(const I18NLocale& locale) {
  AddProperty(STR_productLocale, locale.getName());
}

void QsApiConnectHelper::SetSessionID(const unsigned long& id) {
  AddProperty(STR_sessionID, MakeSessionID(id));
}

void QsApiConnectHelper::SetModelPath(const I18NString& path) {
  AddProperty(STR_dataSource, path);
}

void QsApiConnectHelper::AddProperty(const I18NString& key, const I18NString& value) {
  m_properties[key] = value;
}

void QsApiConnectHelper::SetRetainConnection(bool retain) {
  m_flags[STR_RETAINCONNECTION] = flagText(retain);
}

void QsApiConnectHelper::SetDisableAuthentication(bool disable) {
  m_flags[STR_disableAuthentication] = flagText(disable);
}

void QsApiConnectHelper::SetProviderType(const I18NString& type) {
  m_providerType = type;
}

void QsApiConnectHelper::AddModel(const I18NString& name, bool bme) {
  m_models.emplace_back(name, bme ? STR_bmeModel : STR_Model);
}

const I18NString& QsApiConnectHelper::GetDXServiceID() {
  return STR_DX;
}

I18NString QsApiConnectHelper::MakeSessionID(const unsigned long& id) {
  return TRNUtConvert::longCvt(static_cast<std::int32_t>(id), 1, '0', 0, '+', '-');
}

void QsApiConnectHelper::RefreshRequest(TRNIDOM_Element& connection, const I18NString& passport,
                                        const I18NLocale* productLocale, const I18NLocale* runLocale) {
  if (!passport.empty()) setChildValue(connection, STR_VAMPassport, passport);
  if (productLocale != nullptr) setChildValue(connection, STR_productLocale, productLocale->getName());
  if (runLocale != nullptr) setChildValue(connection, STR_runLocale, runLocale->getName());
}

void QsApiConnectHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_connection);
  appendValueElement(elem, STR_dataSourceType, m_providerType);
  for (const auto& [key, value] : m_properties)
    if (!value.empty()) appendValueElement(elem, key, value);
  for (const auto& [name, kind] : m_models) {
    const TRNIDOM_Element model = appendElement(elem, STR_connection);
    appendValueElement(model, STR_name, name);
    appendValueElement(model, STR_dataSourceType, kind);
  }
  for (const auto& [key, value] : m_flags)
    appendElement(elem, STR_property, STR_name, key).setAttribute(STR_value, value);
}
