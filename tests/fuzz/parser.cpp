// The parser accepts what Xerces-C accepts, and makes the same tree of it, also when the bytes come piece by piece.
// What is written of the tree reads back the same.

#include <algorithm>
#include <memory>

#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include "Oracle.h"
#include "Target.h"

using namespace dxmd_fuzz;
using namespace dxmd_test;

namespace {

std::string placeOf(const TRNIDOM_ParseError& error) {
  return std::to_string(error.getLine()) + ":" + std::to_string(error.getColumn()) + ": " + error.getReason();
}

/// The tree's outline, or what is wrong and where.
template <typename Parse>
std::string resultOf(Parse parse) {
  try {
    return outlineOf(parse());
  } catch (const TRNIDOM_ParseError& error) {
    return placeOf(error);
  }
}

void checkPieces(const std::string& bytes) {
  bool isVisited = false;
  std::size_t given = 0;
  const std::string inPieces = resultOf([&] {
    return TRNIDOM_Parser::parseEach(
        [&](char* buffer, std::size_t size) {
          const std::size_t count = bytes.copy(buffer, std::min(size, 1 + bytes.size() % 7), given);
          given += count;
          return count;
        },
        "visited", [&](TRNIDOM_Element) { isVisited = true; });
  });
  const std::string whole = resultOf([&] { return TRNIDOM_Parser::parseString(bytes); });
  require(isVisited || inPieces == whole, "whole: " + whole + "\nin pieces: " + inPieces);
}

void checkWritten(const std::string& bytes) {
  const TRNIDOM_Document document = TRNIDOM_Parser::parseString(bytes);
  const std::string written = TRNIDOM_Writer::toString(document);
  const TRNIDOM_Document again = TRNIDOM_Parser::parseString(written);
  require(outlineOf(document) == outlineOf(again), "read back differently: " + written);
  require(written == TRNIDOM_Writer::toString(again), "written differently: " + written);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const XercesPlatform platform;
  const std::string bytes = textOf(data, size);
  checkPieces(bytes);
  const Opinion ours = opinion(bytes);
  if (ours.accepts) checkWritten(bytes);
  // Xerces-C would expand the entities that are declared there.
  if (ours.text.rfind("a document type declaration", 0) == 0) return 0;
  const Opinion xerces = opinionOfXerces(bytes);
  const bool agrees = ours.accepts == xerces.accepts && (!ours.accepts || ours.text == xerces.text);
  require(agrees || isKnownDifference(bytes, ours, xerces),
          shownBytes(bytes) + "\nours: " + ours.text + "\nXerces-C: " + xerces.text);
  return 0;
}
