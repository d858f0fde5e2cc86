#ifndef TOOLS_DXMD_KINDS_QUERYFRAMEWORKKINDS_H
#define TOOLS_DXMD_KINDS_QUERYFRAMEWORKKINDS_H

#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

// The larger kinds of the query framework, each in a file of its own.

Kind executeKind();
Kind responseKind();

}  // namespace dxmd_tool

#endif
