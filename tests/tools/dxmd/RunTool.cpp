#include "RunTool.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include <tools/dxmd/Registry.h>
#include <tools/dxmd/json/Json.h>

#include "TestSupport.h"

namespace dxmd_test {

ToolRun run(const std::vector<std::string>& args, const std::string& in, const dxmd_tool::Console& console) {
  std::istringstream input(in);
  std::ostringstream out;
  std::ostringstream err;
  const int status = dxmd_tool::runTool(args, input, out, err, console);
  if (args.size() == 2 && args[0] == "encode" && status != dxmd_tool::kStatusUsage)
    keepEncoded(args[1], in, out.str(), err.str());
  return {status, out.str(), err.str()};
}

std::string encoded(const std::string& kind, const std::string& json) {
  const ToolRun result = run({"encode", kind}, json);
  EXPECT_EQ("", result.err);
  return result.out.substr(0, result.out.find('\n'));
}

std::string decoded(const std::string& kind, const std::string& xml) {
  const ToolRun result = run({"decode", kind, "--indent", "0", "--show-secrets"}, xml);
  EXPECT_EQ("", result.err);
  return result.out.substr(0, result.out.find('\n'));
}

std::string encodedExample(const std::string& kind, unsigned indent) {
  const std::string xml =
      run({"encode", kind, "--indent", std::to_string(indent)}, dxmd_tool::findKind(kind).example).out;
  return indent == 0 ? xml.substr(0, xml.find('\n')) : xml;
}

void expectEncoded(const std::string& kind, const std::string& json, const std::string& xml) {
  expectXml(xml, encoded(kind, json));
}

void expectDecoded(const std::string& kind, const std::string& xml, const std::string& json) {
  EXPECT_EQ(json, decoded(kind, xml));
}

void expectBothWays(const std::string& kind, const std::string& json, const std::string& xml) {
  expectEncoded(kind, json, xml);
  expectDecoded(kind, xml, json);
}

void expectNotEncoded(const std::string& kind, const std::string& json, const std::string& message) {
  expectFailure(dxmd_tool::kStatusUnfit, "standard input: " + message, run({"encode", kind}, json));
}

void expectNotDecoded(const std::string& kind, const std::string& xml, const std::string& message) {
  expectFailure(dxmd_tool::kStatusUnfit, "standard input: " + message, run({"decode", kind}, xml));
}

void expectFailure(dxmd_tool::Status status, const std::string& message, const ToolRun& run) {
  EXPECT_EQ(status, run.status);
  EXPECT_EQ("dxmd: " + message + "\n", run.err);
  EXPECT_EQ("", run.out);
}

void expectToolError(dxmd_tool::Status status, const std::string& message, const std::function<void()>& action) {
  try {
    action();
    ADD_FAILURE() << "nothing was refused; expected " << message;
  } catch (const dxmd_tool::ToolError& error) {
    EXPECT_EQ(message, error.what());
    EXPECT_EQ(status, error.status());
  }
}

void expectJsonError(dxmd_tool::JsonError::Cause cause, const std::string& message,
                     const std::function<void()>& action) {
  try {
    action();
    ADD_FAILURE() << "nothing was refused; expected " << message;
  } catch (const dxmd_tool::JsonError& error) {
    EXPECT_EQ(message, error.what());
    EXPECT_EQ(cause, error.cause());
  }
}

void keepEncoded(const std::string& kind, const std::string& json, const std::string& xml, const std::string& refusal) {
  const char* const folder = std::getenv("DXMD_TEST_ENCODED");
  // What is no JSON is nothing for a schema.
  if (folder == nullptr || !dxmd_tool::Json::accept(json)) return;
  const dxmd_tool::Json kept = {
      {"kind", kind}, {"json", dxmd_tool::Json::parse(json)}, {"xml", xml}, {"refusal", refusal}};
  std::ofstream(folder + ("/" + std::to_string(::getpid())), std::ios::app)
      << kept.dump(-1, ' ', false, dxmd_tool::Json::error_handler_t::replace) << "\n";
}

bool has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

std::string repeated(std::size_t count, const std::string& text) {
  std::string all;
  for (; count > 0; --count) all += text;
  return all;
}

}  // namespace dxmd_test
