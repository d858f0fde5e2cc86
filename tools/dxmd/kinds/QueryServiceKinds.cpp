#include "QueryServiceKinds.h"

#include <tools/dxmd/kinds/Envelope.h>
#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

namespace {

Kind connectionKind() {
  Kind kind;
  kind.name = "connection";
  kind.summary = "What a request runs against: service, data source, user, session and models";
  kind.notes = R"(Commands take the same object under their key "connection".
"modelPath" is written as the data source. "properties" may hold any key that is an element name;
it replaces what the other keys set under that name, and an empty value writes nothing. "sessionID"
is a number from 0 to 4294967295; from 2147483648 on it is written as the negative number of the
same bits. A model is of kind "bmeModel" when "bme" is true, else "Model".)";
  kind.roots = {"connection"};
  kind.encode = [](JsonObject& json, const KindOptions&) { return readConnection(json); };
  kind.example = R"({
  "providerType": "QueryFrameworkService",
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

}  // namespace

std::vector<Kind> queryServiceKinds() {
  return {connectionKind(), dataSourceFaultKind(), parameterValueItemKind()};
}

}  // namespace dxmd_tool
