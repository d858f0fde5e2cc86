#include "connection.h"

#include <charconv>
#include <string>

#include <dxmd/queryservice/QsApiConnectHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

using Helper = QsApiConnectHelper;

/// What a connection is of that was given no provider type.
const I18NString& defaultProviderType() {
  static const I18NString type = firstChild(made(Helper()), "dataSourceType").getAttribute("value");
  return type;
}

/// The texts that are written as properties under a name of their own.
struct TextProperty {
  I18NString Connection::*text;
  void (Helper::*set)(const I18NString&);
  const char* element;
};
constexpr TextProperty kTextProperties[] = {
    {&Connection::nameSpace, &Helper::SetNamespace, "namespace"},
    {&Connection::username, &Helper::SetUserName, "username"},
    {&Connection::password, &Helper::SetPassword, "password"},
    {&Connection::passport, &Helper::SetPassport, "VAMPassport"},
    {&Connection::contentManagerURI, &Helper::SetContentManagerURI, "contentManagerURI"},
    {&Connection::modelPath, &Helper::SetModelPath, "dataSource"},
};

/// The number that is written as that text.
std::optional<std::uint32_t> sessionIDOf(const I18NString& text) {
  const std::string digits = text.toUtf8();
  std::int32_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  const auto id = static_cast<std::uint32_t>(number);
  if (Helper::MakeSessionID(id) != text) return std::nullopt;
  return id;
}

void takeProperty(const I18NString& name, const I18NString& value, Connection& connection) {
  for (const TextProperty& property : kTextProperties) {
    if (name != property.element) continue;
    connection.*property.text = value;
    return;
  }
  if (name == "runLocale")
    connection.runLocale = value;
  else if (name == "productLocale")
    connection.productLocale = value;
  else if (name == "sessionID" && sessionIDOf(value))
    connection.sessionID = sessionIDOf(value);
  else
    connection.properties[name] = value;
}

ConnectionModel takeModel(const TRNIDOM_Element& element) {
  const TRNIDOM_Element type = requiredChild(element, "dataSourceType");
  const I18NString kind = type.getAttribute("value");
  if (kind != "bmeModel" && kind != "Model") refuse(type, "a model is of type \"bmeModel\" or \"Model\"");
  return {firstChild(element, "name").getAttribute("value"), kind == "bmeModel"};
}

void takeFlag(const TRNIDOM_Element& element, Connection& connection) {
  const I18NString name = element.getAttribute("name");
  const I18NString value = element.getAttribute("value");
  std::optional<bool>* const flag = name == "RETAINCONNECTION"        ? &connection.retainConnection
                                    : name == "disableAuthentication" ? &connection.disableAuthentication
                                                                      : nullptr;
  if (flag == nullptr) return;
  if (value != "TRUE" && value != "FALSE") refuse(element, "the value is neither TRUE nor FALSE");
  *flag = value == "TRUE";
}

}  // namespace

void shape(Shape& s, ConnectionModel& model) {
  s.required("name", model.name, "The model's name");
  s.shown("bme", model.bme, "Whether it is of kind \"bmeModel\" rather than \"Model\"");
}

void shape(Shape& s, Connection& connection) {
  s.optional("providerType", connection.providerType, "The service that the request is for",
             otherwise(defaultProviderType()));
  s.optional("namespace", connection.nameSpace, "The namespace that the user signs on to");
  s.optional("username", connection.username, "The user's name");
  s.optional("password", connection.password, "The user's password, written as plain text");
  s.optional("passport", connection.passport, "The passport of a user who has signed on, written as \"VAMPassport\"");
  s.optional("contentManagerURI", connection.contentManagerURI, "Where the content manager is");
  s.optional("modelPath", connection.modelPath, "The path of the model, written as the data source");
  s.optional("runLocale", connection.runLocale, "The locale of data, such as en-gb");
  s.optional("productLocale", connection.productLocale, "The locale of messages, such as en-gb");
  s.optional("sessionID", connection.sessionID,
             "The session; from 2147483648 on it is written as the negative number of the same bits");
  s.optional(
      "properties", connection.properties,
      "More properties, each written as an element of its key; it replaces what other keys write as that element",
      elementNames(), emptyIsLost("A property with an empty value is not written"),
      orderIsLost("Properties are written in order of their keys"));
  s.optional("models", connection.models, "The models that are open");
  s.optional("retainConnection", connection.retainConnection, "Whether the service keeps the connection open");
  s.optional("disableAuthentication", connection.disableAuthentication, "Whether the service skips signing on");
}

TRNIDOM_Element makeConnection(const Connection& connection) {
  Helper helper;
  helper.SetProviderType(connection.providerType);
  for (const TextProperty& property : kTextProperties) (helper.*property.set)(connection.*property.text);
  helper.SetRunLocale(I18NLocale(connection.runLocale));
  helper.SetProductLocale(I18NLocale(connection.productLocale));
  if (connection.sessionID) helper.SetSessionID(*connection.sessionID);
  for (const auto& [key, value] : connection.properties) helper.AddProperty(key, value);
  for (const ConnectionModel& model : connection.models) helper.AddModel(model.name, model.bme);
  if (connection.retainConnection) helper.SetRetainConnection(*connection.retainConnection);
  if (connection.disableAuthentication) helper.SetDisableAuthentication(*connection.disableAuthentication);
  return made(helper);
}

Connection takeConnection(TRNIDOM_Element& root) {
  Connection connection;
  for (TRNIDOM_Element element = firstChild(root); !element.isNull(); element = nextSibling(element)) {
    const I18NString name = element.getNodeName();
    if (name == "connection")
      connection.models.push_back(takeModel(element));
    else if (name == "property")
      takeFlag(element, connection);
    else if (name == "dataSourceType")
      connection.providerType = element.getAttribute("value");
    else
      takeProperty(name, element.getAttribute("value"), connection);
  }
  // Written unless something else is said.
  const auto serviceID = connection.properties.emplace("serviceID", I18NString()).first;
  if (serviceID->second == Helper::GetDXServiceID()) connection.properties.erase(serviceID);
  return connection;
}

Kind kinds::connection() {
  Kind kind = kindOf(makeConnection, takeConnection);
  kind.summary = "What a request runs against: service, data source, user, session and models";
  kind.purpose = R"(Goes into commands and tells what they run against: which service, data source and models, for
which user, in which session and languages.)";
  kind.notes = R"(The service is "DX" unless "properties" has another "serviceID".)";
  kind.helper = "QsApiConnectHelper";
  kind.reads = Does::kTool;
  kind.roots = {"connection"};
  kind.example = R"({
  "providerType": "ReportService",
  "namespace": "sales",
  "username": "ada",
  "password": "correct horse",
  "passport": "101:5f3c",
  "contentManagerURI": "http://localhost:8080/servlet",
  "modelPath": "/content/package[@name='Sales']",
  "runLocale": "en",
  "productLocale": "en-gb",
  "sessionID": 4711,
  "properties": {"cubePassword": "battery staple"},
  "models": [{"name": "Sales", "bme": true}, {"name": "Stock", "bme": false}],
  "retainConnection": true,
  "disableAuthentication": false
})";
  return kind;
}

}  // namespace dxmd_tool
