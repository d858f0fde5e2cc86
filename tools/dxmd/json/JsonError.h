#ifndef TOOLS_DXMD_JSON_JSONERROR_H
#define TOOLS_DXMD_JSON_JSONERROR_H

#include <stdexcept>
#include <string>

namespace dxmd_tool {

/// JSON that is refused. The text begins with the name of the source and the place, and shows no value that may be a
/// secret.
class JsonError : public std::runtime_error {
 public:
  enum Cause { kMalformed, kUnfit };

  JsonError(Cause cause, const std::string& message) : std::runtime_error(message), m_cause(cause) {}

  /// Whether it is no JSON, or JSON that does not fit.
  Cause cause() const noexcept { return m_cause; }

 private:
  Cause m_cause;
};

}  // namespace dxmd_tool

#endif
