#include "JsonWriter.h"

#include <utility>
#include <vector>

#include <trnidom/TRNIDOM_Writer.h>

#include <tools/dxmd/text/Escape.h>

namespace dxmd_tool {

namespace {

constexpr std::size_t kLineWidth = 100;

void appendOnOneLine(std::string& out, const Json& json) {
  if (json.is_string()) return appendJsonString(out, json.get_ref<const std::string&>());
  if (!json.is_structured()) {
    out += json.dump();
    return;
  }
  out += json.is_array() ? '[' : '{';
  const char* separator = "";
  for (const auto& item : json.items()) {
    out += std::exchange(separator, ",");
    if (json.is_object()) {
      appendJsonString(out, item.key());
      out += ':';
    }
    appendOnOneLine(out, item.value());
  }
  out += json.is_array() ? ']' : '}';
}

std::string plainText(const Json& json) {
  std::string text;
  appendOnOneLine(text, json);
  return text;
}

bool fitsOneLine(const Json& json, std::size_t width) {
  std::size_t length = 2;
  for (const Json& item : json) {
    if (item.is_structured()) return false;
    if (item.is_string() && item.get_ref<const std::string&>().size() > width) return false;
    length += plainText(item).size() + 2;
    if (length > width) return false;
  }
  return true;
}

void write(std::string& out, const Json& json, unsigned indent, std::size_t column) {
  if (!json.is_structured() || json.empty()) {
    out += plainText(json);
    return;
  }
  const std::size_t inner = column + indent;
  const bool oneLine = json.is_array() && fitsOneLine(json, kLineWidth > column ? kLineWidth - column : 0);
  out += json.is_array() ? '[' : '{';
  const char* separator = "";
  for (const auto& item : json.items()) {
    out += separator;
    separator = oneLine ? ", " : ",";
    if (!oneLine) out += '\n' + std::string(inner, ' ');
    if (json.is_object()) {
      appendJsonString(out, item.key());
      out += ": ";
    }
    write(out, item.value(), indent, inner);
  }
  if (!oneLine) out += '\n' + std::string(column, ' ');
  out += json.is_array() ? ']' : '}';
}

}  // namespace

I18NString xmlText(const TRNIDOM_Node& node) {
  const std::string xml = TRNIDOM_Writer::toString(node);
  return I18NString(xml.data(), nullptr, static_cast<long>(xml.size()));
}

JsonTooDeep::JsonTooDeep()
    : std::length_error("the JSON for this document would nest deeper than " + std::to_string(kMaxJsonDepth) +
                        " levels") {}

void checkDepth(std::size_t depth) {
  if (depth > kMaxJsonDepth) throw JsonTooDeep();
}

void checkJsonDepth(const Json& json) {
  std::vector<std::pair<const Json*, std::size_t>> open{{&json, 1}};
  while (!open.empty()) {
    const auto [current, depth] = open.back();
    open.pop_back();
    if (!current->is_structured()) continue;
    checkDepth(depth);
    for (const Json& item : *current) open.emplace_back(&item, depth + 1);
  }
}

std::string toText(const Json& json, unsigned indent) {
  if (indent == 0) return plainText(json);
  std::string out;
  write(out, json, indent, 0);
  return out;
}

}  // namespace dxmd_tool
