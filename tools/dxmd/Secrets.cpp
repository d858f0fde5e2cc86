#include "Secrets.h"

#include <algorithm>
#include <string_view>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/SecretNames.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

const char* const kMask = "***";

/// Walks a document and hides what it says under the names of secrets.
class XmlMasker {
 public:
  void visitAll(const TRNIDOM_Document& document) {
    walk(
        document, [this](TRNIDOM_Node& node) { visit(node); }, [this](const TRNIDOM_Node& node) { leave(node); });
  }

 private:
  void visit(TRNIDOM_Node& node) {
    if (node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE) {
      if (m_secret.isNull() && isSecretElement(node)) m_secret = node;
      for (TRNIDOM_Node attribute : node.getAttributes()) visitAttribute(attribute);
    } else if (!m_secret.isNull()) {
      node.setNodeValue(kMask);
    } else {
      hideParameters(node);
    }
  }

  void visitAttribute(TRNIDOM_Node& attribute) const {
    const std::string name = attribute.getNodeName().toUtf8();
    if (isSecretName(name) || (!m_secret.isNull() && name != "name"))
      attribute.setNodeValue(kMask);
    else
      hideParameters(attribute);
  }

  static void hideParameters(TRNIDOM_Node& node) {
    const std::string text = node.getNodeValue().toUtf8();
    if (const std::string masked = maskedParameters(text); masked != text) node.setNodeValue(masked.c_str());
  }

  void leave(const TRNIDOM_Node& node) {
    if (node == m_secret) m_secret = TRNIDOM_Node();
  }

  static bool isSecretElement(const TRNIDOM_Element& element) {
    return isSecretName(element.getNodeName().toUtf8()) || isSecretName(element.getAttribute("name").toUtf8());
  }

  TRNIDOM_Node m_secret;  ///< the secret element that the walk is in, or null
};

std::string maskedXml(const std::string& text) {
  if (!isSecretName(text)) return text;
  try {
    const TRNIDOM_Document document = TRNIDOM_Parser::parseString(text);
    XmlMasker().visitAll(document);
    return TRNIDOM_Writer::toString(document);
  } catch (const TRNIDOM_ParseError&) {
    return kMask;
  }
}

/// Walks the JSON, whose depth is bounded, and beside it the description.
void mask(Json& json, std::string_view key, bool secret, const DescribedRecord* record) {
  secret = secret || isSecretName(key);
  if (json.is_object()) {
    const bool namesSecret =
        json.contains("name") && json["name"].is_string() && isSecretName(json["name"].get_ref<const std::string&>());
    for (auto& member : json.get_ref<Json::object_t&>()) {
      const DescribedKey* const described = record != nullptr ? record->find(member.first) : nullptr;
      const DescribedType* type = described != nullptr ? &described->type : nullptr;
      while (type != nullptr && type->item) type = type->item.get();
      mask(member.second, member.first,
           secret || (namesSecret && member.first == "value") || (described != nullptr && described->secret),
           type != nullptr ? type->record : nullptr);
    }
  } else if (json.is_array()) {
    for (Json& item : json) mask(item, key, secret, record);
  } else if (json.is_string()) {
    auto& text = json.get_ref<std::string&>();
    if (secret)
      text = text.empty() ? "" : kMask;
    else if (const std::size_t first = text.find_first_not_of(" \t\r\n");
             first != std::string::npos && text[first] == '<')
      text = maskedXml(text);
    else
      text = maskedParameters(text);
  } else if (secret && !json.is_null()) {
    json = kMask;
  }
}

}  // namespace

std::string maskedParameters(const std::string& text) {
  std::string masked;
  std::size_t done = 0;
  for (std::size_t equals = text.find('='); equals != std::string::npos; equals = text.find('=', equals + 1)) {
    const std::size_t before = text.find_last_of(";&?={\"'", equals - (equals > 0 ? 1 : 0));
    const std::size_t name = std::max(done, before == std::string::npos || before >= equals ? 0 : before + 1);
    if (name >= equals || !isSecretName(std::string_view(text).substr(name, equals - name))) continue;
    // A value in quotes or braces may hold semicolons, and the closing one when that stands twice.
    std::size_t last = equals + 1;
    const std::size_t first = text.find_first_not_of(" \t", last);
    if (first != std::string::npos && (text[first] == '{' || text[first] == '"' || text[first] == '\'')) {
      const char close = text[first] == '{' ? '}' : text[first];
      last = text.find(close, first + 1);
      while (last < text.size() && text[last + 1] == close) last = text.find(close, last + 2);
    }
    last = std::min(text.find(';', std::min(last, text.size())), text.size());
    masked += text.substr(done, equals + 1 - done) + (last > equals + 1 ? kMask : "");
    done = last;
    equals = std::max(equals, last - 1);
  }
  return masked + text.substr(done);
}

void maskSecrets(Json& json, const DescribedRecord* record) {
  mask(json, "", false, record);
}

}  // namespace dxmd_tool
