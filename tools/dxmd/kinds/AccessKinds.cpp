#include <string>

#include <dxmd/modelactions/DXActionHelperObjectAccess.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/ModelActionsKinds.h>

namespace dxmd_tool {

namespace {

using Access = DXActionHelperObjectAccess;

const EnumTable<Access::EObjectAccessRule> kRules{
    Access::kUnspecified, Access::kDeny,
    [](Access::EObjectAccessRule rule) { return Access::getObjectAccessRuleStr(rule); }};

/// A text that the lists skip or refuse when it is empty.
I18NString filledText(const JsonValue& json) {
  I18NString text = json.text();
  if (text.empty()) json.fail("must not be empty");
  return text;
}

DXActionHelperSecurityObject readPrincipal(JsonObject& json) {
  const I18NString searchPath = filledText(json.required("cmSearchPath"));
  const I18NString displayPath = json.optional("displayPath").text();
  return {searchPath, displayPath, json.optional("type").text()};
}

Json toJson(const DXActionHelperSecurityObject& principal) {
  Json json = Json::object();
  json["cmSearchPath"] = principal.cmSearchPath;
  putUnlessEmpty(json, "displayPath", principal.displayPath);
  putUnlessEmpty(json, "type", principal.type);
  return json;
}

TRNIDOM_Element encodeObjectAccess(JsonObject& json, const KindOptions&) {
  Access access;
  TRNIDOM_Element element = made(access);
  json.required("securityObjects").objects([&](JsonObject& entry) {
    const DXActionHelperSecurityObject principal = readPrincipal(entry);
    access.addEntry(principal, entry.required("rule").enumerator(kRules));
  });
  return element;
}

Decoded decodeObjectAccess(TRNIDOM_Element& root, const KindOptions&) {
  Access access;
  access.Take(root);
  std::vector<Access::SecurityObjectAccess> entries;
  access.getEntries(entries);
  Json list = Json::array();
  for (const Access::SecurityObjectAccess& entry : entries) {
    Json json = toJson(*entry.securityObject);
    json["rule"] = kRules.text(entry.rule);
    list.push_back(std::move(json));
  }
  Json json = Json::object();
  json["securityObjects"] = std::move(list);
  return json;
}

}  // namespace

Kind objectAccessKind() {
  Kind kind;
  kind.name = "objectAccess";
  kind.summary = "Who may access a model object: users, roles and groups with a rule each";
  kind.notes = R"("rule" is "unspecified", "allow" or "deny"; "type" is "account", "role", "group" or any other text.
A principal listed twice, by its "cmSearchPath", is written once, with the stronger rule: "deny" is
stronger than "allow", and that than "unspecified".
Reading takes whatever follows a principal for another one, and so refuses white space there.)";
  kind.roots = {"objectAccess"};
  kind.encode = encodeObjectAccess;
  kind.decode = decodeObjectAccess;
  kind.roundTrips = true;
  kind.example = R"({
  "securityObjects": [
    {"cmSearchPath": "/directory/role[@name='Analysts']", "displayPath": "Roles > Analysts", "type": "role", "rule": "allow"},
    {"cmSearchPath": "/directory/account[@name='Ada']", "displayPath": "Users > Ada", "type": "account", "rule": "deny"}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
