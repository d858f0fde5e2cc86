#include <vector>

#include <dxmd/modelactions/DXActionHelperObjectAccess.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/modelactions/Principal.h>

namespace dxmd_tool {

namespace {

using Access = DXActionHelperObjectAccess;

const EnumTable<Access::EObjectAccessRule> kRules{&Access::getObjectAccessRuleStr, Access::kUnspecified};

struct PrincipalAccess {
  Principal principal;
  Access::EObjectAccessRule rule{};
};

void shape(Shape& s, PrincipalAccess& access) {
  shapePrincipal(s, access.principal);
  s.required("rule", access.rule, "Whether it may access the object", kRules);
}

struct ObjectAccess {
  std::vector<PrincipalAccess> securityObjects;
};

void shape(Shape& s, ObjectAccess& access) {
  s.required("securityObjects", access.securityObjects, "The users, roles and groups",
             repeatedIsLost("One listed twice is written once, with the stronger rule: \"deny\", then \"allow\"",
                            "cmSearchPath"));
}

TRNIDOM_Element make(const ObjectAccess& access) {
  Access helper;
  TRNIDOM_Element element = made(helper);
  for (const PrincipalAccess& entry : access.securityObjects)
    helper.addEntry(securityObjectOf(entry.principal), entry.rule);
  return element;
}

ObjectAccess take(TRNIDOM_Element& root) {
  Access helper;
  helper.Take(root);
  std::vector<Access::SecurityObjectAccess> entries;
  helper.getEntries(entries);
  ObjectAccess access;
  for (const Access::SecurityObjectAccess& entry : entries)
    access.securityObjects.push_back({principalOf(*entry.securityObject), entry.rule});
  return access;
}

}  // namespace

Kind kinds::objectAccess() {
  Kind kind = kindOf(make, take);
  kind.summary = "Who may access a model object: users, roles and groups with a rule each";
  kind.purpose = "Tells who may see a model object: a rule, to allow or to deny, for each user, role or group.";
  kind.notes = R"(Reading takes whatever follows a principal for another one, and so refuses white space there.)";
  kind.helper = "DXActionHelperObjectAccess";
  kind.roots = {"objectAccess"};
  kind.example = R"({
  "securityObjects": [
    {"cmSearchPath": "/directory/role[@name='Analysts']", "displayPath": "Roles > Analysts", "type": "role", "rule": "allow"},
    {"cmSearchPath": "/directory/account[@name='Ada']", "displayPath": "Users > Ada", "type": "account", "rule": "deny"}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
