// Changes inputs whose first line says what the rest is for: what is well-formed stays so as a rule, since little else
// comes past the parsers, which have fuzzers of their own.

#include <cstdint>
#include <exception>
#include <random>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>
#include <nlohmann/json.hpp>

#include "JsonValues.h"
#include "Titled.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed);

using namespace dxmd_fuzz;

namespace {

using Json = nlohmann::ordered_json;

const char* const kWords[] = {
#define DXMD_ENTRY(index, identifier, text) text,
#include <dxmd/resources/vocabulary.def>
#undef DXMD_ENTRY
    "0", "1", "-1", "2147483648", "4294967296", "true", "false", "x", " ", "\xC3\xA4\xF0\x90\x80\x80", "a.b[c]"};

class Mutator {
 public:
  explicit Mutator(unsigned seed) : m_random(seed) {}

  std::string mutated(const std::string& input) {
    const Titled given = titled(input);
    const Titled& example = examples()[below(examples().size())];
    if (oneIn(40)) return example.title + "\n" + example.body;
    if (oneIn(40)) return example.title + "\n" + given.body;
    const std::size_t first = given.body.find_first_not_of(" \t\r\n");
    const bool isXml = first != std::string::npos && given.body[first] == '<';
    try {
      if (!oneIn(8)) return given.title + "\n" + (isXml ? mutatedXml(given.body) : mutatedJson(given.body));
    } catch (const std::exception&) {  // not well-formed
    }
    return given.title + "\n" + mutatedBytes(given.body);
  }

 private:
  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }
  bool oneIn(std::size_t count) { return below(count) == 0; }
  std::string word() { return kWords[below(std::size(kWords))]; }

  static std::string mutatedBytes(std::string bytes) {
    const std::size_t size = bytes.size();
    bytes.resize(size + 64);
    bytes.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(&bytes[0]), size, bytes.size()));
    return bytes;
  }

  // XML

  std::string mutatedXml(const std::string& xml) {
    TRNIDOM_Document document = TRNIDOM_Parser::parseString(xml);
    for (std::size_t left = 1 + below(3); left > 0; --left) change(document);
    return TRNIDOM_Writer::toString(document);
  }

  TRNIDOM_Element anyElement(const TRNIDOM_Document& document) {
    const TRNIDOM_NodeList all = document.getElementsByTagName("*");
    return all.item(below(all.getLength()));
  }

  I18NString name(const TRNIDOM_Document& document) {
    return oneIn(2) ? anyElement(document).getNodeName() : I18NString(word().c_str());
  }

  I18NString text(const TRNIDOM_Element& from) {
    if (oneIn(2)) return word().c_str();
    const TRNIDOM_NamedNodeMap attributes = from.getAttributes();
    if (attributes.getLength() > 0) return attributes.item(below(attributes.getLength())).getNodeValue();
    return mutatedBytes(from.getFirstChild().getNodeValue().toUtf8()).c_str();
  }

  void change(TRNIDOM_Document& document) {
    TRNIDOM_Element element = anyElement(document);
    TRNIDOM_Node parent = element.getParentNode();
    const TRNIDOM_Element other = anyElement(document);
    const TRNIDOM_NamedNodeMap attributes = other.getAttributes();
    switch (below(9)) {
      case 0:
        parent.removeChild(element);
        return;
      case 1:
        if (attributes.getLength() > 0)
          element.setAttribute(attributes.item(below(attributes.getLength())).getNodeName(), text(other));
        return;
      case 2:
        element.setAttribute(word().c_str(), text(other));
        return;
      case 3:
        if (attributes.getLength() > 0)
          TRNIDOM_Element(other).removeAttribute(attributes.item(below(attributes.getLength())).getNodeName());
        return;
      case 4:
        element.insertBefore(other.cloneNode(true), oneIn(2) ? element.getFirstChild() : TRNIDOM_Node());
        return;
      case 5:
        element.appendChild(oneIn(3) ? TRNIDOM_Node(document.createCDATASection(text(other)))
                                     : TRNIDOM_Node(document.createTextNode(text(other))));
        return;
      case 6:
        while (element.hasChildNodes()) element.removeChild(element.getFirstChild());
        return;
      case 7:
        return rename(document, element, parent);
      default:
        TRNIDOM_Node added = element.appendChild(document.createElement(name(document)));
        if (oneIn(2)) added.appendChild(other.cloneNode(true));
    }
  }

  void rename(TRNIDOM_Document& document, TRNIDOM_Element& element, TRNIDOM_Node& parent) {
    TRNIDOM_Element renamed = document.createElement(name(document));
    for (const TRNIDOM_Node& attribute : element.getAttributes())
      renamed.setAttribute(attribute.getNodeName(), attribute.getNodeValue());
    while (element.hasChildNodes()) renamed.appendChild(element.getFirstChild());
    parent.replaceChild(renamed, element);
  }

  // JSON

  std::string mutatedJson(const std::string& text) {
    Json json = Json::parse(text);
    for (std::size_t left = 1 + below(3); left > 0; --left) change(json);
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
  }

  void change(Json& json) {
    std::vector<Json*> all;
    collectValues(json, all);
    Json& value = *all[below(all.size())];
    const Json other = *all[below(all.size())];
    switch (below(6)) {
      case 0:
        value = other;
        return;
      case 1:
        value = simple();
        return;
      case 2:
        if (value.is_string()) value = mutatedBytes(value.get<std::string>());
        return;
      default:
        if (value.is_array() && (value.empty() || oneIn(2)))
          value.push_back(other);
        else if (value.is_array())
          value.erase(below(value.size()));
        else if (value.is_object() && (value.empty() || oneIn(2)))
          value[word()] = other;
        else if (value.is_object())
          value.erase(std::next(value.begin(), static_cast<std::ptrdiff_t>(below(value.size()))));
    }
  }

  Json simple() {
    switch (below(6)) {
      case 0:
        return nullptr;
      case 1:
        return oneIn(2);
      case 2:
        return static_cast<int>(below(5)) - 1;
      case 3:
        return oneIn(2) ? Json::array() : Json::object();
      case 4:
        return 1e300;
      default:
        return word();
    }
  }

  std::mt19937 m_random;
};

}  // namespace

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned int seed) {
  const std::string mutated =
      Mutator(seed).mutated(std::string(reinterpret_cast<const char*>(data), size)).substr(0, maxSize);
  mutated.copy(reinterpret_cast<char*>(data), mutated.size());
  return mutated.size();
}
