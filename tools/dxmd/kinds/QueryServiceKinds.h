#ifndef TOOLS_DXMD_KINDS_QUERYSERVICEKINDS_H
#define TOOLS_DXMD_KINDS_QUERYSERVICEKINDS_H

#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

// The larger kinds of the query service, each in a file of its own.

Kind dataSourceFaultKind();
Kind parameterValueItemKind();

}  // namespace dxmd_tool

#endif
