#include <vector>

#include <dxmd/core/DimensionInfoHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct Key {
  I18NString name;
  bool isUniqueKey = false;
  std::vector<I18NString> queryItems;
};

void shape(Shape& s, Key& key) {
  s.required("name", key.name, "The key's name");
  s.shown("isUniqueKey", key.isUniqueKey, "Whether the key identifies a member uniquely");
  s.shown("queryItems_collection", key.queryItems, "The references of the query items that form it");
}

struct Level {
  I18NString name;
  Key key;
  std::vector<I18NString> attributes;
};

void shape(Shape& s, Level& level) {
  s.required("name", level.name, "The level's name, written as the external name too");
  s.required("key", level.key, "What tells its members apart");
  s.shown("attributes", level.attributes, "The references of the query items that are its attributes");
}

struct Hierarchy {
  I18NString name;
  std::vector<I18NString> levels;
};

void shape(Shape& s, Hierarchy& hierarchy) {
  s.required("name", hierarchy.name, "The hierarchy's name, written as the external name too");
  s.required("functionalDependency", hierarchy.levels, "The references of its levels, from the top down");
}

struct Dimension {
  std::vector<Level> levels;
  std::vector<Hierarchy> hierarchies;
};

void shape(Shape& s, Dimension& dimension) {
  s.optional("levels", dimension.levels, "The levels of the dimension");
  s.optional("hierarchies", dimension.hierarchies, "Its hierarchies");
}

TRNIDOM_Element make(const Dimension& dimension) {
  DimensionInfoHelper helper;
  for (const Level& level : dimension.levels)
    helper.AddLevel(level.name, level.key.name, level.key.queryItems, level.key.isUniqueKey ? 1 : 0, level.attributes);
  for (const Hierarchy& hierarchy : dimension.hierarchies) helper.AddHierarchy(hierarchy.name, hierarchy.levels);
  return made(helper);
}

/// The name, which no external name may differ from.
I18NString takeName(const TRNIDOM_Element& element) {
  I18NString name = textOf(requiredChild(element, "name"));
  const TRNIDOM_Element externalName = firstChild(element, "externalName");
  if (!externalName.isNull() && textOf(externalName) != name) refuse(externalName, "the external name is not the name");
  return name;
}

std::vector<I18NString> takeReferences(const TRNIDOM_Element& list) {
  std::vector<I18NString> references;
  for (TRNIDOM_Element refobj = firstChild(list, "refobj"); !refobj.isNull(); refobj = nextSibling(refobj, "refobj"))
    references.push_back(textOf(refobj));
  return references;
}

Key takeKey(const TRNIDOM_Element& key) {
  return {textOf(requiredChild(key, "name")), boolean(key, "isUniqueKey"),
          takeReferences(firstChild(key, "queryItems_collection"))};
}

Dimension take(TRNIDOM_Element& root) {
  Dimension dimension;
  for (TRNIDOM_Element level = firstChild(firstChild(root, "levels"), "level"); !level.isNull();
       level = nextSibling(level, "level"))
    dimension.levels.push_back(
        {takeName(level), takeKey(requiredChild(level, "key")), takeReferences(firstChild(level, "attributes"))});
  for (TRNIDOM_Element hierarchy = firstChild(firstChild(root, "hierarchies"), "hierarchy"); !hierarchy.isNull();
       hierarchy = nextSibling(hierarchy, "hierarchy"))
    dimension.hierarchies.push_back(
        {takeName(hierarchy), takeReferences(firstChild(hierarchy, "functionalDependency"))});
  return dimension;
}

}  // namespace

Kind kinds::dimInfo() {
  Kind kind = kindOf(make, take);
  kind.summary = "The levels and hierarchies of a dimension";
  kind.purpose = R"(Describes a dimension to the modelling service: its levels, each with its key and attributes,
and its hierarchies.)";
  kind.helper = "DimensionInfoHelper";
  kind.reads = Does::kTool;
  kind.roots = {"dimInfo"};
  kind.example = R"({
  "levels": [
    {
      "name": "Year",
      "key": {"name": "Year key", "isUniqueKey": true, "queryItems_collection": ["[Time].[Year]"]},
      "attributes": ["[Time].[Year caption]"]
    },
    {
      "name": "Month",
      "key": {
        "name": "Month key",
        "isUniqueKey": false,
        "queryItems_collection": ["[Time].[Year]", "[Time].[Month]"]
      },
      "attributes": []
    }
  ],
  "hierarchies": [{"name": "Calendar", "functionalDependency": ["[Time].[Year]", "[Time].[Month]"]}]
})";
  return kind;
}

}  // namespace dxmd_tool
