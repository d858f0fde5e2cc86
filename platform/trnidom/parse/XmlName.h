#ifndef TRNIDOM_PARSE_XMLNAME_H
#define TRNIDOM_PARSE_XMLNAME_H

#include <string_view>

namespace trnidom_detail {

/// Whether a document can have an element, an attribute or a processing instruction of that name: the one rule for
/// parsing and for creating. A name with other characters than ASCII is what expat takes for one, so that the two
/// cannot differ, whatever edition of XML 1.0 expat follows.
/// @throws std::bad_alloc
bool isXmlName(std::u16string_view name);

}  // namespace trnidom_detail

#endif
