#ifndef TESTS_TOOLS_DXMD_RUNTOOL_H
#define TESTS_TOOLS_DXMD_RUNTOOL_H

#include <functional>
#include <string>
#include <vector>

#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/json/JsonError.h>

#include "TempFolder.h"

namespace dxmd_test {

/// What a run of the tool gave.
struct ToolRun {
  int status;
  std::string out;
  std::string err;
};

/// Runs the tool in this process.
ToolRun run(const std::vector<std::string>& args, const std::string& in = "");

/// Encodes JSON, which must succeed: one line, without its end.
std::string encoded(const std::string& kind, const std::string& json);

/// What encoding a command puts between the envelope's start and its identifiers.
std::string encodedBody(const std::string& kind, const std::string& json);

/// Decodes XML, which must succeed, with its secrets: one line of JSON, with its end.
std::string decoded(const std::string& kind, const std::string& xml);

/// Runs the tool, which must fail with that status, say exactly that behind "dxmd: ", and print nothing.
void expectFailure(dxmd_tool::Status status, const std::string& message, const ToolRun& run);

/// Runs the action, which must throw a ToolError of that status and message.
void expectToolError(dxmd_tool::Status status, const std::string& message, const std::function<void()>& action);

/// Runs the action, which must throw a JsonError of that cause and message.
void expectJsonError(dxmd_tool::JsonError::Cause cause, const std::string& message,
                     const std::function<void()>& action);

/// Keeps for the tests of schemas what was encoded, or refused for that reason, where DXMD_TEST_ENCODED names a folder.
void keepEncoded(const std::string& kind, const std::string& json, const std::string& xml,
                 const std::string& refusal = "");

}  // namespace dxmd_test

#endif
