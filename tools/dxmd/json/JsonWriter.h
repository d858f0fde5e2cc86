#ifndef TOOLS_DXMD_JSON_JSONWRITER_H
#define TOOLS_DXMD_JSON_JSONWRITER_H

#include <cstddef>
#include <stdexcept>
#include <string>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Node.h>

#include <tools/dxmd/json/Json.h>

namespace dxmd_tool {

/// A node as a text of XML, which `JsonValue::xml` reads back.
I18NString xmlText(const TRNIDOM_Node& node);

/// Decoded JSON that would nest deeper than `kMaxJsonDepth`.
class JsonTooDeep : public std::length_error {
 public:
  JsonTooDeep();
};

/// For decoders of nested records, before each step down: refuses more levels than JSON is written with.
/// @throws JsonTooDeep
void checkDepth(std::size_t depth);

/// Refuses JSON that nests too deep for functions that walk it.
/// @throws JsonTooDeep
void checkJsonDepth(const Json& json);

/// The text of JSON: a list of plain values that is not too long stands on one line. `indent` 0 writes one line in all.
/// The depth must have been checked.
std::string toText(const Json& json, unsigned indent);

}  // namespace dxmd_tool

#endif
