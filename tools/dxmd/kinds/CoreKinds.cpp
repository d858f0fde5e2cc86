#include <dxmd/core/DimensionInfoHelper.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

namespace {

TRNIDOM_Element encodeDimInfo(JsonObject& json, const KindOptions&) {
  DimensionInfoHelper dimension;
  json.optional("levels").objects([&](JsonObject& level) {
    const I18NString name = level.required("name").text();
    const std::vector<I18NString> attributes = level.optional("attributes").texts();
    level.required("key").object([&](JsonObject& key) {
      const I18NString keyName = key.required("name").text();
      const std::vector<I18NString> items = key.optional("queryItems_collection").texts();
      dimension.AddLevel(name, keyName, items, key.optional("isUniqueKey").boolean() ? 1 : 0, attributes);
    });
  });
  json.optional("hierarchies").objects([&](JsonObject& hierarchy) {
    const I18NString name = hierarchy.required("name").text();
    dimension.AddHierarchy(name, hierarchy.required("functionalDependency").texts());
  });
  return made(dimension);
}

Kind dimInfoKind() {
  Kind kind;
  kind.name = "dimInfo";
  kind.summary = "The levels and hierarchies of a dimension";
  kind.notes = R"(A name is written as the external name too.
"functionalDependency" lists the levels of a hierarchy, from the top down.)";
  kind.roots = {"dimInfo"};
  kind.encode = encodeDimInfo;
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

}  // namespace

std::vector<Kind> coreKinds() {
  return {dimInfoKind()};
}

}  // namespace dxmd_tool
