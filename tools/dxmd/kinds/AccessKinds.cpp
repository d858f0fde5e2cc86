#include <string>

#include <dxmd/modelactions/DXActionHelperObjectAccess.h>
#include <dxmd/modelactions/DXActionHelperSecurityObjectSpec.h>
#include <tools/dxmd/kinds/ModelActionsKinds.h>

namespace dxmd_tool {

namespace {

using Access = DXActionHelperObjectAccess;
using Spec = DXActionHelperSecurityObjectSpec;

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

TRNIDOM_Element encodeSecurityObjects(JsonObject& json, const KindOptions&) {
  Spec spec;
  TRNIDOM_Element element = made(spec);
  json.required("securityObjects").objects([&](JsonObject& entry) {
    const DXActionHelperSecurityObject principal = readPrincipal(entry);
    std::vector<Spec::ViewInfo> views;
    entry.optional("views").objects([&](JsonObject& view) {
      Spec::ViewInfo info(filledText(view.required("viewref")));
      view.optional("packagerefs").each([&](const JsonValue& reference) { info.addPackageRef(filledText(reference)); });
      views.push_back(std::move(info));
    });
    spec.addEntry(principal, views);
  });
  return element;
}

Json toJson(const Spec::ViewInfo& view) {
  Json json = Json::object();
  json["viewref"] = view.getViewRef();
  std::vector<I18NString> packageRefs;
  view.getPackageRefs(packageRefs);
  putUnlessEmpty(json, "packagerefs", Json(packageRefs));
  return json;
}

Decoded decodeSecurityObjects(TRNIDOM_Element& root, const KindOptions&) {
  Spec spec;
  spec.Take(root);
  Json list = Json::array();
  std::vector<Spec::ViewInfo> views;
  for (auto principal = spec.getEntry(views); !principal.isNull(); principal = spec.getEntry(views)) {
    Json entry = toJson(*principal);
    Json viewList = Json::array();
    for (const Spec::ViewInfo& view : views) viewList.push_back(toJson(view));
    putUnlessEmpty(entry, "views", std::move(viewList));
    list.push_back(std::move(entry));
    views.clear();
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

Kind securityObjectsKind() {
  Kind kind;
  kind.name = "securityObjects";
  kind.summary = "The views of a model that users, roles and groups are bound to";
  kind.notes = R"(Reading takes the packages of a view from "view" elements inside it, while they are written as
"packageref" elements: what was encoded decodes without "packagerefs".
Reading refuses whatever follows a principal and is none, white space included.)";
  kind.roots = {"securityObjects"};
  kind.encode = encodeSecurityObjects;
  kind.decode = decodeSecurityObjects;
  kind.example = R"({
  "securityObjects": [
    {
      "cmSearchPath": "/directory/group[@name='Sales']",
      "displayPath": "Groups > Sales",
      "type": "group",
      "views": [{"viewref": "[Sales view]", "packagerefs": ["[Sales]", "[Sales and stock]"]}]
    }
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
