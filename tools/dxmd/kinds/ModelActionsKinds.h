#ifndef TOOLS_DXMD_KINDS_MODELACTIONSKINDS_H
#define TOOLS_DXMD_KINDS_MODELACTIONSKINDS_H

#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

// The larger kinds of the modelling tool's actions, each in a file of its own; the two of access share one.

Kind definitionFileKind();
Kind objectAccessKind();

}  // namespace dxmd_tool

#endif
