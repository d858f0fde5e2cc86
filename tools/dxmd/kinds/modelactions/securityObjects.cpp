#include <vector>

#include <dxmd/modelactions/DXActionHelperSecurityObjectSpec.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/modelactions/Principal.h>

namespace dxmd_tool {

namespace {

using Spec = DXActionHelperSecurityObjectSpec;

struct View {
  I18NString viewref;
  std::vector<I18NString> packagerefs;
};

void shape(Shape& s, View& view) {
  s.required("viewref", view.viewref, "The reference of the view", nonEmpty());
  s.optional("packagerefs", view.packagerefs, "The references of its packages", nonEmptyItems(),
             neverReturns("packages are read from \"view\" elements inside the view, and written as \"packageref\""));
}

struct BoundPrincipal {
  Principal principal;
  std::vector<View> views;
};

void shape(Shape& s, BoundPrincipal& bound) {
  shapePrincipal(s, bound.principal);
  s.optional("views", bound.views, "The views that it is bound to");
}

struct SecurityObjects {
  std::vector<BoundPrincipal> securityObjects;
};

void shape(Shape& s, SecurityObjects& objects) {
  s.required("securityObjects", objects.securityObjects, "The users, roles and groups");
}

TRNIDOM_Element make(const SecurityObjects& objects) {
  Spec spec;
  TRNIDOM_Element element = made(spec);
  for (const BoundPrincipal& bound : objects.securityObjects) {
    std::vector<Spec::ViewInfo> views;
    for (const View& view : bound.views) {
      Spec::ViewInfo& info = views.emplace_back(view.viewref);
      for (const I18NString& reference : view.packagerefs) info.addPackageRef(reference);
    }
    spec.addEntry(securityObjectOf(bound.principal), views);
  }
  return element;
}

SecurityObjects take(TRNIDOM_Element& root) {
  Spec spec;
  spec.Take(root);
  SecurityObjects objects;
  std::vector<Spec::ViewInfo> views;
  for (auto object = spec.getEntry(views); !object.isNull(); object = spec.getEntry(views)) {
    BoundPrincipal& bound = objects.securityObjects.emplace_back();
    bound.principal = principalOf(*object);
    for (const Spec::ViewInfo& info : views) {
      View& view = bound.views.emplace_back();
      view.viewref = info.getViewRef();
      info.getPackageRefs(view.packagerefs);
    }
    views.clear();
  }
  return objects;
}

}  // namespace

Kind kinds::securityObjects() {
  Kind kind = kindOf(make, take);
  kind.summary = "The views of a model that users, roles and groups are bound to";
  kind.purpose = "Tells which views of a model, with their packages, each user, role or group is bound to.";
  kind.notes = R"(Reading refuses whatever follows a principal and is none, white space included.)";
  kind.helper = "DXActionHelperSecurityObjectSpec";
  kind.roots = {"securityObjects"};
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
