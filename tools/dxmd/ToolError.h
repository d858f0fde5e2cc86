#ifndef TOOLS_DXMD_TOOLERROR_H
#define TOOLS_DXMD_TOOLERROR_H

#include <functional>
#include <stdexcept>
#include <string>

namespace dxmd_tool {

/// Exit statuses.
enum Status {
  kStatusOk = 0,
  kStatusUnfit = 1,     ///< the input does not fit the kind
  kStatusUsage = 2,     ///< wrong usage
  kStatusFile = 3,      ///< a file cannot be read or written
  kStatusSyntax = 4,    ///< not well-formed XML or JSON
  kStatusMemory = 5,    ///< out of memory
  kStatusReported = 6,  ///< the input is a reply that reports errors
};

/// What counts most of several statuses.
Status worse(Status one, Status other);

/// What ends a run: its exit status and the one line that says why, which begins with the name of the file concerned,
/// or is empty when nothing is to be said.
class ToolError : public std::runtime_error {
 public:
  ToolError(Status status, const std::string& message) : std::runtime_error(message), m_status(status) {}

  Status status() const noexcept { return m_status; }

 private:
  Status m_status;
};

/// How a run ended, and the line that says why.
struct Outcome {
  Status status = kStatusOk;
  std::string message;  ///< empty when nothing is to be said
};

/// Runs the action. Whatever it throws becomes its outcome; nothing is thrown.
Outcome outcomeOf(const std::function<void()>& action);

}  // namespace dxmd_tool

#endif
