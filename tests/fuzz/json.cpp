// The JSON parser refuses what the library's own does and a little more, and else gives the same value, which is
// written and read back as it was.

#include <limits>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonError.h>
#include <tools/dxmd/json/JsonParser.h>
#include <tools/dxmd/json/JsonWriter.h>

#include "Target.h"

using namespace dxmd_fuzz;
using namespace dxmd_tool;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = textOf(data, size);
  const bool isJson = text.find('\0') == std::string::npos && Json::accept(text);
  Json json;
  try {
    json = parseJson(text, "in");
  } catch (const JsonError& error) {
    const std::string what = error.what();
    require(what.rfind("in:", 0) == 0, what);
    const bool isBeyond = what.find("a number is out of range") != std::string::npos;
    require(isJson == (error.cause() == JsonError::kUnfit) || isBeyond || !isJson, what);
    return 0;
  }
  require(isJson, "accepted");
  require(json == Json::parse(text), "another value");
  checkJsonDepth(json);
  for (const unsigned indent : {0U, 2U}) {
    const std::string written = toText(json, indent);
    require(json == parseJson(written, "written"), "read back differently: " + written);
    require(written == toText(parseJson(written, "written"), indent), "written differently: " + written);
  }
  return 0;
}
