#ifndef TRNIDOM_TRNIDOM_WRITER_H
#define TRNIDOM_TRNIDOM_WRITER_H

#include <string>

#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_Node.h>

/// Writes nodes as XML 1.0 in UTF-8. What it writes without indentation reads back as the same tree.
///
/// Threads: a document may be written by several threads at once while none changes it.
class TRNIDOM_API TRNIDOM_Writer {
 public:
  /// How to write.
  struct Options {
    /// Compact, without XML declaration.
    Options() noexcept : indent(0), declaration(false) {}

    unsigned indent;   ///< spaces per level down to a hundred, never inside mixed content; 0 writes none
    bool declaration;  ///< whether to begin with the XML declaration
  };

  /// The node and all below it; a null node gives the empty string.
  /// @throws TRNIDOM_DOMException `INVALID_CHARACTER_ERR` naming the node, when something in it cannot be written as
  ///         XML 1.0, such as a control character or a lone surrogate.
  static std::string toString(const TRNIDOM_Node& node, const Options& options = Options());
};

#endif
