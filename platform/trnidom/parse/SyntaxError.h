#ifndef TRNIDOM_PARSE_SYNTAXERROR_H
#define TRNIDOM_PARSE_SYNTAXERROR_H

#include <cstddef>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_ParseError.h>

#include "parse/Expat.h"
#include "parse/TextPlace.h"

namespace trnidom_detail {

/// Where expat is: at what it calls a handler for, or at what it has refused.
TextPlace placeOf(XML_Parser parser);

/// The place behind what expat calls a handler for.
TextPlace placeBehind(XML_Parser parser);

/// What expat has refused, at its place, in words that name it. `depth` elements of what has been built are open.
/// @throws std::bad_alloc, also when that is what expat says.
TRNIDOM_ParseError syntaxError(XML_Parser parser, const TRNIDOM_Document& built, std::size_t depth);

}  // namespace trnidom_detail

#endif
