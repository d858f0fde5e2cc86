#ifndef TRNIDOM_PARSE_EXPAT_H
#define TRNIDOM_PARSE_EXPAT_H

#include <memory>
#include <type_traits>

#include <expat.h>

namespace trnidom_detail {

static_assert(std::is_same_v<XML_Char, char>, "this expat hands over UTF-8");

struct FreeExpat {
  void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
};
using Expat = std::unique_ptr<std::remove_pointer_t<XML_Parser>, FreeExpat>;

/// A parser of UTF-8, whatever encoding the document declares, that leaves prefixes alone. Its hash tables are salted
/// by expat itself.
/// @throws std::bad_alloc
Expat newExpat();

}  // namespace trnidom_detail

#endif
