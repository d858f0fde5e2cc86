#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>
#include <dxmd/queryservice/QsParamValueItemNullHelper.h>
#include <dxmd/queryservice/QsParamValueItemRangeHelper.h>
#include <dxmd/queryservice/QsParamValueItemSimpleHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/json/JsonWriter.h>

namespace dxmd_tool {

namespace {

using Type = QsParamValueItemHelper::EValueItem;

const EnumTable<Type> kTypes{QsParamValueItemHelper::kValueItemSimple, {"simple", "range", "hierarchy", "null"}};

struct Value {
  bool inclusive = true;
  I18NString use;
  I18NString display;
};

void shape(Shape& s, Value& value) {
  s.shown("inclusive", value.inclusive, "Whether the value itself belongs to the range that it bounds",
          otherwise(true));
  s.optional("use", value.use, "The value");
  s.optional("display", value.display, "The value as people see it",
             neverReturns("it is never written; documents of others may have it"));
}

struct Node {
  std::optional<Value> value;
  std::vector<Node> subNodes;
};

void shape(Shape& s, Node& node) {
  s.optional("value", node.value, "The value of the item",
             absentIsLost("An item without one reads as having the first value below it"));
  s.optional("subNodes", node.subNodes, "The items below it");
}

struct Item {
  Type type{};
  Value simple;
  std::optional<Value> start;
  std::optional<Value> end;
  Node hierarchy;
};

void shape(Shape& s, Item& item) {
  s.choice<Type>("type", item.type, "The form of the value", kTypes, [&](Type type) {
    switch (type) {
      case QsParamValueItemHelper::kValueItemSimple:
        return shape(s, item.simple);
      case QsParamValueItemHelper::kValueItemRange:
        s.optional("start", item.start, "Where the range starts; without it, it has no start");
        return s.optional("end", item.end, "Where it ends; without it, it has no end");
      case QsParamValueItemHelper::kValueItemHierarchy:
        return shape(s, item.hierarchy);
      case QsParamValueItemHelper::kValueItemNull:
        return;
    }
  });
}

// Writing. Nodes nest no deeper than JSON does.

void fill(QsParamValueItemSimpleHelper& helper, const Value& value) {
  helper.SetInclusive(value.inclusive ? 1 : 0);
  helper.SetUse(value.use);
  helper.SetDisplay(value.display);
}

void fill(QsParamValueItemHierarchyHelper& helper, const Node& node) {
  if (node.value) fill(*helper.SetValue("", 1), *node.value);
  for (const Node& subNode : node.subNodes) fill(*helper.AddSubNode(), subNode);
}

void fill(QsParamValueItemRangeHelper& helper, const Item& item) {
  if (item.start) fill(*helper.SetStart("", 1), *item.start);
  if (item.end) fill(*helper.SetEnd("", 1), *item.end);
}

template <typename Helper, typename Content>
TRNIDOM_Element madeFrom(const Content& content) {
  Helper helper;
  fill(helper, content);
  return made(helper);
}

TRNIDOM_Element make(const Item& item) {
  switch (item.type) {
    case QsParamValueItemHelper::kValueItemSimple:
      return madeFrom<QsParamValueItemSimpleHelper>(item.simple);
    case QsParamValueItemHelper::kValueItemRange:
      return madeFrom<QsParamValueItemRangeHelper>(item);
    case QsParamValueItemHelper::kValueItemHierarchy:
      return madeFrom<QsParamValueItemHierarchyHelper>(item.hierarchy);
    case QsParamValueItemHelper::kValueItemNull:
      break;
  }
  return made(QsParamValueItemNullHelper());
}

// Reading

Value takeValue(const QsParamValueItemSimpleHelper& helper) {
  return {helper.IsInclusive() != 0, helper.GetUse(), helper.GetDisplay()};
}

std::optional<Value> takeValue(const QsParamValueItemSimpleHelper* helper) {
  if (helper == nullptr) return std::nullopt;
  return takeValue(*helper);
}

/// @param depth  that of the node's object in the JSON.
void takeNode(QsParamValueItemHierarchyHelper& helper, Node& node, std::size_t depth) {
  checkDepth(depth);
  node.value = takeValue(helper.GetValue());
  for (QsParamValueItemHierarchyHelper* subNode : helper.GetSubNodes())
    takeNode(*subNode, node.subNodes.emplace_back(), depth + 2);
}

Item take(TRNIDOM_Element& root) {
  const std::unique_ptr<QsParamValueItemHelper> helper(
      QsParamValueItemHelper::Create(root.getAttribute("xsi:type"), root));
  Item item;
  item.type = helper != nullptr ? helper->GetType() : QsParamValueItemHelper::kValueItemNull;
  if (helper != nullptr) helper->Take(root);
  if (const auto* simple = dynamic_cast<QsParamValueItemSimpleHelper*>(helper.get())) {
    item.simple = takeValue(*simple);
  } else if (auto* range = dynamic_cast<QsParamValueItemRangeHelper*>(helper.get())) {
    item.start = takeValue(range->GetStart());
    item.end = takeValue(range->GetEnd());
  } else if (auto* hierarchy = dynamic_cast<QsParamValueItemHierarchyHelper*>(helper.get())) {
    takeNode(*hierarchy, item.hierarchy, 1);
  }
  return item;
}

}  // namespace

Kind kinds::parameterValueItem() {
  Kind kind = kindOf(make, take);
  kind.summary = "Value of a parameter: a simple value, a range, a hierarchical value or null";
  kind.purpose = R"(A default, possible or chosen value of a parameter. It stands inside other documents, which
declare the prefixes "xsi" and "bus".)";
  kind.notes = R"(Other forms than that of the example:
  {"type": "simple", "use": "North"}
  {"type": "range", "start": {"use": "2023"}, "end": {"inclusive": false, "use": "2025"}}
  {"type": "null"})";
  kind.helper = "QsParamValueItemHelper";
  kind.roots = {"item"};
  kind.example = R"({
  "type": "hierarchy",
  "value": {"inclusive": true, "use": "[Regions].[Europe]", "display": "Europe"},
  "subNodes": [
    {"value": {"inclusive": true, "use": "[Regions].[Europe].[North]", "display": "North"}},
    {"value": {"inclusive": false, "use": "[Regions].[Europe].[South]", "display": "South"}}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
