#include "HelpTexts.h"

namespace dxmd_tool {

const char* const kInputText = R"(FILE absent or "-" is standard input.)";

const char* const kSecretsText =
    R"(Passwords, passports, tickets and the like print as *** in what is decoded and are in no error text.
XML that is written holds them: it is the message itself, in a file that only its owner can read.)";

const std::vector<StatusText>& statusTexts() {
  static const std::vector<StatusText> kTexts{
      {kStatusOk, "done"},
      {kStatusUnfit,
       "the input does not fit the kind: the message names the place in the JSON, as in\n"
       "$.queries[2].dataItems[0].sort, or the check that failed"},
      {kStatusUsage, "wrong usage"},
      {kStatusFile, "a file cannot be read or written"},
      {kStatusSyntax, "the input is not well-formed XML or JSON: the message names file, line and column"},
      {kStatusMemory, "out of memory"},
      {kStatusReported,
       "the message is a reply that reports errors or a fault, and no kind was asked for that does: it\n"
       "prints as what it is, unless another kind was asked for"},
  };
  return kTexts;
}

const std::vector<const char*>& exampleTexts() {
  static const std::vector<const char*> kTexts{
      "dxmd kinds execute",      "dxmd example execute | dxmd encode execute --indent 2", "dxmd decode captured.xml",
      "dxmd check captured.xml", "dxmd decode response reply.xml --format table",
  };
  return kTexts;
}

std::string helpFooter() {
  std::string text = std::string(kInputText) + "\n\nExit status:\n";
  for (const StatusText& status : statusTexts()) {
    std::string meaning = status.meaning;
    for (std::size_t at = 0; (at = meaning.find('\n', at)) != std::string::npos; ++at) meaning.insert(at + 1, 5, ' ');
    text += "  " + std::to_string(status.status) + "  " + meaning + "\n";
  }
  text += "\n" + std::string(kSecretsText) + "\n\nExamples:";
  for (const char* example : exampleTexts()) text += std::string("\n  ") + example;
  return text;
}

}  // namespace dxmd_tool
