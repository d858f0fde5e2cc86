#ifndef TOOLS_DXMD_CHECK_CHECKER_H
#define TOOLS_DXMD_CHECK_CHECKER_H

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <tools/dxmd/Kind.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/check/SchemaValidator.h>

namespace dxmd_tool {

/// A place in a file where it is not what it should be.
struct Finding {
  std::size_t line;    ///< from 1; 0 for the file as a whole
  std::size_t column;  ///< from 1, in characters
  std::string message;
};

/// What there is to say of a file.
struct Checked {
  std::string name;  ///< of the file
  Status status = kStatusOk;
  bool isWellFormed = false;
  const Kind* kind = nullptr;  ///< null when it is of none, or of several
  std::vector<Finding> findings;
};

/// Checks documents as they were captured against the schemas of their kinds, each of which is read once.
class Checker {
 public:
  /// @param folder  of the schemas.
  Checker(std::string folder, SchemaNamespaces namespaces);

  using OnRead = std::function<void(std::size_t bytes)>;

  /// @param file   "-" is standard input.
  /// @param asked  the kind; null for the one that it is found to be.
  /// @throws ToolError (file) when a schema cannot be read.
  Checked check(const std::string& file, std::istream& in, const OnRead& onRead, const Kind* asked);

 private:
  class Document;

  void checkMessage(const Document& document, const Kind* asked, Checked& checked);
  SchemaValidator& validatorOf(const Kind& kind);

  std::string m_folder;
  SchemaNamespaces m_namespaces;
  std::map<std::string, std::unique_ptr<SchemaValidator>> m_validators;  ///< by the kinds' names
};

}  // namespace dxmd_tool

#endif
