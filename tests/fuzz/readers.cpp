// Every reader takes any document, or refuses it as its header says; the document stays as it is. What writes into a
// given document does no worse. The input is the name of a message and a document.

#include <algorithm>
#include <sstream>

#include <trn/TRNAssertError.h>
#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include "Messages.h"
#include "Target.h"
#include "Titled.h"

using namespace dxmd_fuzz;
using namespace dxmd_test;

namespace {

std::string nameOf(const Message& message) {
  std::ostringstream out;
  out << message;
  return out.str();
}

/// What is read, or why not.
std::string answersOf(const Message& message, TRNIDOM_Element& element) {
  Answers answers;
  try {
    message.read(element, answers);
    return answers.text();
  } catch (const TRNAssertError& error) {
    return error.what();
  } catch (const TRNIDOM_DOMException& error) {
    return error.what();
  }
}

void run(const Message& message, const std::string& xml) {
  TRNIDOM_Element element = TRNIDOM_Parser::parseString(xml).getDocumentElement();
  if (message.read != nullptr) {
    const std::string before = TRNIDOM_Writer::toString(element);
    const std::string answers = answersOf(message, element);
    require(answers == answersOf(message, element), "read differently the second time: " + answers);
    require(before == TRNIDOM_Writer::toString(element), "changed by reading");
  }
  if (message.change == nullptr) return;
  try {
    message.change(element);
    TRNIDOM_Parser::parseString(TRNIDOM_Writer::toString(element));
  } catch (const TRNAssertError&) {
  } catch (const TRNIDOM_DOMException&) {
  }
}

}  // namespace

const std::vector<Titled>& dxmd_fuzz::examples() {
  static const std::vector<Titled> all = [] {
    std::vector<Titled> found;
    for (const Message& message : allMessages())
      found.push_back({nameOf(message), TRNIDOM_Writer::toString(message.make())});
    return found;
  }();
  return all;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Titled input = titled(textOf(data, size));
  const auto& all = allMessages();
  const auto message =
      std::find_if(all.begin(), all.end(), [&](const Message& each) { return nameOf(each) == input.title; });
  if (message == all.end()) return -1;  // no input for the corpus
  try {
    TRNIDOM_Parser::parseString(input.body);
  } catch (const TRNIDOM_ParseError&) {
    return -1;
  }
  run(*message, input.body);
  return 0;
}
