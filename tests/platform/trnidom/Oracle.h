#ifndef TESTS_PLATFORM_TRNIDOM_ORACLE_H
#define TESTS_PLATFORM_TRNIDOM_ORACLE_H

#include <cstddef>
#include <string>

#include <trnidom/TRNIDOM_Node.h>

// Xerces-C as a second opinion: what the parser accepts, and the tree that it makes of it.

namespace dxmd_test {

/// What a parser says of a document: its outline, or why it is refused.
struct Opinion {
  bool accepts;
  std::string text;
};

/// The tree as one text; recursive.
std::string outlineOf(const TRNIDOM_Node& node);

Opinion opinion(const std::string& bytes);

/// Needs an XercesPlatform.
Opinion opinionOfXerces(const std::string& bytes);

/// Whether the two may differ so, for a reason that is listed.
bool isKnownDifference(const std::string& bytes, const Opinion& ours, const Opinion& xerces);

/// The bytes with escapes for all that does not print.
std::string shownBytes(const std::string& bytes);

/// Keeps Xerces-C initialised.
struct XercesPlatform {
  XercesPlatform();
  ~XercesPlatform();
  XercesPlatform(const XercesPlatform&) = delete;
  XercesPlatform& operator=(const XercesPlatform&) = delete;
};

}  // namespace dxmd_test

#endif
