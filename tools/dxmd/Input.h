#ifndef TOOLS_DXMD_INPUT_H
#define TOOLS_DXMD_INPUT_H

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <tools/dxmd/Files.h>

namespace dxmd_tool {

/// What is read: a file, or standard input for "-".
struct Input {
  std::string name;  ///< in errors
  Source source;
};

/// @param in      standard input.
/// @param onRead  told of the bytes as they are read.
/// @throws ToolError (file)
Input inputOf(const std::string& file, std::istream& in, const std::function<void(std::size_t bytes)>& onRead);

/// Runs what may refuse the input of that name. A refusal by the library, by what reads JSON and by what reads XML
/// becomes a ToolError that names the input.
void refusalsNamed(const std::string& name, const std::function<void()>& action);

/// A document of XML to be parsed, once: the whole input, or what was captured in it (see capture/Capture.h).
class XmlInput {
 public:
  /// @param exact  whether it is the whole input.
  /// @throws ToolError
  XmlInput(const Input& input, bool exact);

  const std::string& name() const { return m_name; }

  /// Reads that much ahead, once; says whether that was all there is.
  bool endsWithin(std::size_t most);

  /// What was read ahead.
  const std::string& start() const { return m_start; }

  /// Refuses what begins as a page of HTML, which need not be well-formed XML.
  /// @throws ToolError (unfit)
  void refuseHtml() const;

  /// @throws ToolError (syntax), with the place in the input; whatever reading and visiting throw.
  TRNIDOM_Document parse();
  TRNIDOM_Document parseEach(const std::string& element, const TRNIDOM_Parser::Visit& visit);

 private:
  void checkStart() const;
  template <typename Action>
  TRNIDOM_Document placed(const Action& action) const;

  std::string m_name;
  Source m_source;
  std::size_t m_lines = 0;
  std::size_t m_columns = 0;
  std::string m_start;
};

}  // namespace dxmd_tool

#endif
