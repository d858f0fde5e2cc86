#ifndef TOOLS_DXMD_CHECK_SCHEMAVALIDATOR_H
#define TOOLS_DXMD_CHECK_SCHEMAVALIDATOR_H

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace dxmd_tool {

/// A place in a document that does not fit its schema.
struct Misfit {
  std::size_t element;  ///< its number in document order, from 0
  std::string reason;   ///< names elements and attributes, and never a value: it may be a secret
};

/// The namespaces of a deployment.
struct SchemaNamespaces {
  std::string queryService;
  std::string serviceBus;
};

/// Validates documents of one kind against its XML Schema. One thread at a time uses it.
class SchemaValidator {
 public:
  /// @param folder      of the schemas, from which alone files are read.
  /// @param schema      the file's name without its ending.
  /// @param namespaces  take the place of those that the schemas were installed with.
  /// @throws ToolError (file) when there is no such schema, or it is none.
  SchemaValidator(const std::string& folder, const std::string& schema, const SchemaNamespaces& namespaces);
  ~SchemaValidator();
  SchemaValidator(const SchemaValidator&) = delete;
  SchemaValidator& operator=(const SchemaValidator&) = delete;

  /// All places that do not fit, in document order. Nothing is loaded, whatever the document names.
  /// @param document  UTF-8, well-formed but for the declarations of prefixes, and no deeper than `kDeepest`.
  std::vector<Misfit> validate(const std::string& document);

  /// The validator looks a prefix up in all open elements: its time grows with the square of the depth.
  static constexpr std::size_t kDeepest = 10000;

 private:
  class Engine;

  std::unique_ptr<Engine> m_engine;
};

}  // namespace dxmd_tool

#endif
