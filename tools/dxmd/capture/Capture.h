#ifndef TOOLS_DXMD_CAPTURE_CAPTURE_H
#define TOOLS_DXMD_CAPTURE_CAPTURE_H

#include <cstddef>
#include <string>

#include <tools/dxmd/Files.h>

namespace dxmd_tool {

/// The bytes of a document inside those of a file that was captured.
struct Capture {
  Source source;

  // What stands before the document, for places in it to be told as places in the file. Of compressed bytes there is
  // none.
  std::size_t lines = 0;
  std::size_t columns = 0;  ///< of the document's first line
};

/// Finds the document in what was captured: behind the headers of HTTP messages, whole or in chunks, and compressed by
/// gzip. White space before the XML declaration and NULs behind the document are dropped. A document in UTF-16 or
/// UTF-32 needs no byte order mark, whatever it declares, and neither does UTF-8 that declares to be one of these.
///
/// The first bytes are read at once, the others as they are asked for.
/// @param name  names the file in errors.
/// @throws ToolError (syntax), also from the source, when compressed bytes or chunks are damaged; whatever `raw`
/// throws.
Capture captured(const Source& raw, const std::string& name);

}  // namespace dxmd_tool

#endif
