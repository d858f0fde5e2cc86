#include <cstddef>
#include <memory>
#include <utility>

#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>
#include <dxmd/queryservice/QsParamValueItemNullHelper.h>
#include <dxmd/queryservice/QsParamValueItemRangeHelper.h>
#include <dxmd/queryservice/QsParamValueItemSimpleHelper.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/QueryServiceKinds.h>

namespace dxmd_tool {

namespace {

const I18NString& itemTypeText(QsParamValueItemHelper::EValueItem type) {
  static const I18NString texts[] = {"", "simple", "range", "hierarchy", "null"};
  return texts[type];
}

const EnumTable<QsParamValueItemHelper::EValueItem> kItemTypes{QsParamValueItemHelper::kValueItemSimple,
                                                               QsParamValueItemHelper::kValueItemNull, &itemTypeText};

void readSimple(JsonObject& json, QsParamValueItemSimpleHelper& item) {
  item.SetInclusive(json.optional("inclusive").boolean(true) ? 1 : 0);
  item.SetUse(json.optional("use").text());
  item.SetDisplay(json.optional("display").text());
}

void readRange(JsonObject& json, QsParamValueItemRangeHelper& item) {
  json.optional("start").object([&](JsonObject& start) { readSimple(start, *item.SetStart("", 1)); });
  json.optional("end").object([&](JsonObject& end) { readSimple(end, *item.SetEnd("", 1)); });
}

void readHierarchy(JsonObject& json, QsParamValueItemHierarchyHelper& item) {
  json.optional("value").object([&](JsonObject& value) { readSimple(value, *item.SetValue("", 1)); });
  json.optional("subNodes").objects([&](JsonObject& subNode) { readHierarchy(subNode, *item.AddSubNode()); });
}

template <typename Item>
TRNIDOM_Element encodeItem(JsonObject& json, void (*read)(JsonObject&, Item&)) {
  Item item;
  read(json, item);
  return made(item);
}

TRNIDOM_Element encodeParameterValueItem(JsonObject& json, const KindOptions&) {
  switch (json.required("type").enumerator(kItemTypes)) {
    case QsParamValueItemHelper::kValueItemSimple:
      return encodeItem(json, readSimple);
    case QsParamValueItemHelper::kValueItemRange:
      return encodeItem(json, readRange);
    case QsParamValueItemHelper::kValueItemHierarchy:
      return encodeItem(json, readHierarchy);
    case QsParamValueItemHelper::kValueItemNull:
      break;
  }
  return made(QsParamValueItemNullHelper());
}

void putSimple(Json& json, const QsParamValueItemSimpleHelper& item) {
  json["inclusive"] = item.IsInclusive() != 0;
  putUnlessEmpty(json, "use", item.GetUse());
  putUnlessEmpty(json, "display", item.GetDisplay());
}

void putSimple(Json& json, const char* key, const QsParamValueItemSimpleHelper* item) {
  if (item != nullptr) putSimple(json[key] = Json::object(), *item);
}

void putHierarchy(Json& json, QsParamValueItemHierarchyHelper& item, std::size_t depth) {
  checkDepth(depth);
  putSimple(json, "value", item.GetValue());
  Json subNodes = Json::array();
  for (QsParamValueItemHierarchyHelper* subNode : item.GetSubNodes())
    putHierarchy(subNodes.emplace_back(Json::object()), *subNode, depth + 2);
  putUnlessEmpty(json, "subNodes", std::move(subNodes));
}

Decoded decodeParameterValueItem(TRNIDOM_Element& root, const KindOptions&) {
  const std::unique_ptr<QsParamValueItemHelper> item(
      QsParamValueItemHelper::Create(root.getAttribute("xsi:type"), root));
  Json json = Json::object();
  json["type"] = itemTypeText(item != nullptr ? item->GetType() : QsParamValueItemHelper::kValueItemNull);
  if (item != nullptr) item->Take(root);
  if (const auto* simple = dynamic_cast<QsParamValueItemSimpleHelper*>(item.get())) {
    putSimple(json, *simple);
  } else if (auto* range = dynamic_cast<QsParamValueItemRangeHelper*>(item.get())) {
    putSimple(json, "start", range->GetStart());
    putSimple(json, "end", range->GetEnd());
  } else if (auto* hierarchy = dynamic_cast<QsParamValueItemHierarchyHelper*>(item.get())) {
    putHierarchy(json, *hierarchy, 1);
  }
  return json;
}

}  // namespace

Kind parameterValueItemKind() {
  Kind kind;
  kind.name = "parameterValueItem";
  kind.summary = "Value of a parameter: a simple value, a range, a hierarchical value or null";
  kind.notes =
      R"({"type": "simple", "inclusive": true, "use": "a"}
{"type": "range", "start": VALUE, "end": VALUE}, either or both of them
{"type": "hierarchy", "value": VALUE, "subNodes": [{"value": VALUE, "subNodes": [...]}, ...]}
{"type": "null"}
where a VALUE is {"inclusive": true, "use": "a"}, inclusive unless given. "display" is read beside
"use" but never written. A hierarchical item that has no value gives the first one below it.)";
  kind.roots = {"item"};
  kind.encode = encodeParameterValueItem;
  kind.decode = decodeParameterValueItem;
  kind.roundTrips = true;
  kind.example = R"({
  "type": "range",
  "start": {"inclusive": true, "use": "2023-01-01"},
  "end": {"inclusive": false, "use": "2024-01-01"}
})";
  return kind;
}

}  // namespace dxmd_tool
