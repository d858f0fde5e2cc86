#include "RandomJson.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "TestSupport.h"

using namespace dxmd_tool;

namespace dxmd_test {

namespace {

constexpr int kDeepest = 6;

const Loss* lossOf(const DescribedKey& key, Loss::How how) {
  for (const Loss& loss : key.losses)
    if (loss.how == how) return &loss;
  return nullptr;
}

bool isLostChoice(const DescribedKey& key, const Json& value) {
  return std::any_of(key.losses.begin(), key.losses.end(),
                     [&](const Loss& loss) { return loss.how == Loss::kChoice && loss.key == value; });
}

/// What tells two items of a list apart: themselves, or the member that the loss names.
const Json& distinction(const Json& item, const Loss& loss) {
  return loss.key.empty() ? item : item.at(loss.key);
}

void removeRepeated(Json& list, const Loss& loss) {
  std::set<std::string> seen;
  Json kept = Json::array();
  for (Json& item : list)
    if (seen.insert(distinction(item, loss).dump()).second) kept.push_back(std::move(item));
  list = std::move(kept);
}

const DescribedType& innermost(const DescribedType& type) {
  return type.item ? innermost(*type.item) : type;
}

/// Sorts as the texts of the enumeration stand, else as texts do.
void sortItems(Json& list, const Loss& loss, const DescribedType& type) {
  const DescribedType* items = &innermost(type);
  if (!loss.key.empty()) items = &innermost(items->record->find(loss.key)->type);
  const std::vector<std::string>& order = items->choices;
  std::stable_sort(list.begin(), list.end(), [&](const Json& left, const Json& right) {
    const Json& a = distinction(left, loss);
    const Json& b = distinction(right, loss);
    if (order.empty()) return a < b;
    return std::find(order.begin(), order.end(), a.get<std::string>()) <
           std::find(order.begin(), order.end(), b.get<std::string>());
  });
}

}  // namespace

Json RandomJson::object(const DescribedRecord& record, int depth) {
  std::string only;
  if (!record.choice.empty()) {
    const std::vector<std::string>& choices = record.find(record.choice)->type.choices;
    only = choices[below(choices.size())];
  }
  // Of the keys that exclude each other, the one that may be there, or must.
  std::set<std::string> excluded;
  std::set<std::string> chosen;
  for (const DescribedRule& rule : record.rules) {
    if (rule.of == DescribedRule::kNeedsTrue) continue;
    // A key that an earlier rule chose stays.
    const auto earlier =
        std::find_if(rule.keys.begin(), rule.keys.end(), [&](const auto& key) { return chosen.count(key) != 0; });
    const std::string& may = earlier == rule.keys.end() ? rule.keys[below(rule.keys.size())] : *earlier;
    for (const std::string& key : rule.keys)
      if (key != may) excluded.insert(key);
    if (rule.of == DescribedRule::kOneOf) chosen.insert(may);
  }
  Json json = Json::object();
  for (const DescribedKey& key : record.keys) {
    if ((!key.onlyFor.empty() && key.onlyFor != only) || excluded.count(key.name) != 0) continue;
    if (key.name == record.choice) {
      json[key.name] = only;
      continue;
    }
    const bool isLostWhenAbsent = lossOf(key, Loss::kAbsent) != nullptr;
    const bool must = key.alwaysWritten || chosen.count(key.name) != 0 || isLostWhenAbsent;
    if (!must && (depth > kDeepest || oneIn(2))) continue;
    for (int attempt = 0; attempt < 20; ++attempt) {
      Json made = value(key.type, key, depth + 1);
      if (key.lines && made != "") made = made.get<std::string>() + "\n";
      const bool isEmpty = made == "" || made == Json::array();
      if (isEmpty && (key.nonEmpty || lossOf(key, Loss::kEmpty) != nullptr)) continue;
      if (isLostChoice(key, made)) continue;
      if ((!must || isLostWhenAbsent) && !key.otherwise.empty() && made == Json::parse(key.otherwise)) continue;
      json[key.name] = std::move(made);
      break;
    }
  }
  for (const DescribedRule& rule : record.rules)
    if (rule.of == DescribedRule::kNeedsTrue && json.contains(rule.keys[0]) && !json[rule.keys[0]].empty())
      json[rule.keys[1]] = true;
  return json;
}

Json RandomJson::value(const DescribedType& type, const DescribedKey& key, int depth) {
  switch (type.of) {
    case DescribedType::kText:
      if (!type.choices.empty()) return type.choices[below(type.choices.size())];
      if (key.nullableItems && oneIn(4)) return nullptr;
      return text();
    case DescribedType::kLocale:
      return text();
    case DescribedType::kXml:
      return xml(0);
    case DescribedType::kBoolean:
      return oneIn(2);
    case DescribedType::kInteger:
      if (oneIn(4)) return oneIn(2) ? type.least : type.most;
      return std::uniform_int_distribution<std::int64_t>(type.least, type.most)(m_random);
    case DescribedType::kList:
      return list(type, key, depth);
    case DescribedType::kTexts:
      return texts(key);
    case DescribedType::kRecord:
      return object(*type.record, depth);
  }
  return nullptr;
}

Json RandomJson::list(const DescribedType& type, const DescribedKey& key, int depth) {
  Json items = Json::array();
  for (std::size_t left = depth > kDeepest ? 1 : below(4); left > 0; --left) {
    Json item = value(*type.item, key, depth);
    if (item == "" && (key.nonEmptyItems || lossOf(key, Loss::kEmpty) != nullptr)) continue;
    if (isLostChoice(key, item)) continue;
    items.push_back(std::move(item));
  }
  if (const Loss* loss = lossOf(key, Loss::kRepeated)) removeRepeated(items, *loss);
  if (const Loss* loss = lossOf(key, Loss::kOrder)) sortItems(items, *loss, type);
  return items;
}

Json RandomJson::texts(const DescribedKey& key) {
  std::set<std::string> keys;
  for (std::size_t left = below(4); left > 0; --left) keys.insert(key.elementNames ? elementName() : text());
  Json json = Json::object();
  for (const std::string& each : keys)
    if (const std::string made = text(); !made.empty() || lossOf(key, Loss::kEmpty) == nullptr) json[each] = made;
  return json;
}

std::string RandomJson::text() {
  static const char* const kPieces[] = {"a",  "Z", "0", " ", "\t", "\n", "\r", "<",  ">",        "&",      "'",
                                        "\"", "]", ";", "é", "東", "😀",  "=",  "--", "\xC2\x85", "\u2028", "]]>"};
  std::string made;
  for (std::size_t left = below(6); left > 0; --left) made += kPieces[below(std::size(kPieces))];
  return made;
}

std::string RandomJson::elementName() {
  return "name" + std::to_string(below(1000));
}

std::string RandomJson::xml(int depth) {
  TRNIDOM_Document document = newDocument();
  TRNIDOM_Element element = document.createElement(elementName().c_str());
  if (oneIn(2)) element.setAttribute(elementName().c_str(), text().c_str());
  const std::string inside = text();
  if (!inside.empty()) element.appendChild(document.createTextNode(inside.c_str()));
  for (std::size_t left = depth > 2 ? 0 : below(3); left > 0; --left)
    element.appendChild(document.importNode(parsed(xml(depth + 1)), true));
  return xmlOf(element);
}

bool dropLost(Json& json, const DescribedRecord& record) {
  bool dropped = false;
  for (const DescribedKey& key : record.keys) {
    if (!json.contains(key.name)) continue;
    if (lossOf(key, Loss::kNever) != nullptr) {
      json.erase(key.name);
      dropped = true;
      continue;
    }
    const DescribedRecord* const below = innermost(key.type).record;
    if (below == nullptr) continue;
    std::vector<Json*> open{&json[key.name]};
    while (!open.empty()) {
      Json& current = *open.back();
      open.pop_back();
      if (current.is_object()) dropped = dropLost(current, *below) || dropped;
      if (current.is_array())
        for (Json& item : current) open.push_back(&item);
    }
  }
  return dropped;
}

bool losesKeys(const Description& description) {
  for (const DescribedRecord& record : description.records)
    for (const DescribedKey& key : record.keys)
      if (lossOf(key, Loss::kNever) != nullptr) return true;
  return false;
}

}  // namespace dxmd_test
