#ifndef TESTS_TOOLS_DXMD_RUNTOOL_H
#define TESTS_TOOLS_DXMD_RUNTOOL_H

#include <functional>
#include <string>
#include <vector>

#include <tools/dxmd/Tool.h>
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
ToolRun run(const std::vector<std::string>& args, const std::string& in = "",
            const dxmd_tool::Console& console = dxmd_tool::Console());

/// Encodes JSON, which must succeed: one line, without its end.
std::string encoded(const std::string& kind, const std::string& json);

/// The kind's example, encoded: compact, without the end of its line, or indented.
std::string encodedExample(const std::string& kind, unsigned indent = 0);

/// Decodes XML, which must succeed, with its secrets: one line of JSON, without its end.
std::string decoded(const std::string& kind, const std::string& xml);

/// Encodes JSON, which must give that compact XML.
void expectEncoded(const std::string& kind, const std::string& json, const std::string& xml);

/// Decodes XML, which must give that compact JSON.
void expectDecoded(const std::string& kind, const std::string& xml, const std::string& json);

/// Both, for compact JSON.
void expectBothWays(const std::string& kind, const std::string& json, const std::string& xml);

/// Encodes JSON that does not fit, which must say exactly that behind "dxmd: standard input: ".
void expectNotEncoded(const std::string& kind, const std::string& json, const std::string& message);

/// Decodes XML that does not fit, in the same way.
void expectNotDecoded(const std::string& kind, const std::string& xml, const std::string& message);

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

bool has(const std::string& text, const std::string& part);

/// The text, that many times.
std::string repeated(std::size_t count, const std::string& text);

}  // namespace dxmd_test

#endif
