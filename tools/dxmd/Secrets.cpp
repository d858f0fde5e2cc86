#include "Secrets.h"

#include <algorithm>
#include <vector>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

namespace dxmd_tool {

namespace {

const char* const kMask = "***";

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower)
    if ('A' <= c && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return lower;
}

bool holdsOneOf(std::string_view text, std::initializer_list<const char*> words) {
  const std::string lower = lowerCase(text);
  return std::any_of(words.begin(), words.end(),
                     [&](const char* word) { return lower.find(word) != std::string::npos; });
}

bool isListed(const std::vector<std::string>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// Hides what one element of XML says under the name of a secret.
void maskElement(TRNIDOM_Element element) {
  const bool secret =
      isSecretName(element.getNodeName().toUtf8()) || isSecretName(element.getAttribute("name").toUtf8());
  for (TRNIDOM_Node attribute : element.getAttributes()) {
    const std::string name = attribute.getNodeName().toUtf8();
    if (isSecretName(name) || (secret && name != "name")) attribute.setNodeValue(kMask);
  }
  if (!secret) return;
  for (TRNIDOM_Node child = element.getFirstChild(); !child.isNull(); child = child.getNextSibling())
    if (child.getNodeType() != TRNIDOM_Node::ELEMENT_NODE) child.setNodeValue(kMask);
}

std::string maskedXml(const std::string& text) {
  if (!isSecretName(text)) return text;
  try {
    TRNIDOM_Element root = TRNIDOM_Parser::parseString(text).getDocumentElement();
    maskElement(root);
    for (const TRNIDOM_Node& element : root.getElementsByTagName("*")) maskElement(element);
    return TRNIDOM_Writer::toString(root);
  } catch (const TRNIDOM_ParseError&) {
    return kMask;
  }
}

/// Walks the JSON, whose depth is bounded.
class Masker {
 public:
  explicit Masker(const Kind& kind) : m_kind(kind) {}

  void visit(Json& json, std::string_view key, bool secret) const {
    secret = secret || isSecret(key);
    if (json.is_object()) {
      const bool namesSecret =
          json.contains("name") && json["name"].is_string() && isSecret(json["name"].get_ref<const std::string&>());
      for (auto& member : json.get_ref<Json::object_t&>())
        visit(member.second, member.first, secret || (namesSecret && member.first == "value"));
    } else if (json.is_array()) {
      for (Json& item : json) visit(item, key, secret);
    } else if (json.is_string()) {
      std::string& text = json.get_ref<std::string&>();
      if (secret)
        text = text.empty() ? "" : kMask;
      else if (isConnectionString(key))
        text = maskedConnectionString(text);
      else if (text.compare(0, 1, "<") == 0)
        text = maskedXml(text);
    } else if (secret && !json.is_null()) {
      json = kMask;
    }
  }

 private:
  bool isSecret(std::string_view key) const { return isSecretName(key) || isListed(m_kind.secrets, key); }
  bool isConnectionString(std::string_view key) const {
    return key == "connectionString" || isListed(m_kind.connectionStrings, key);
  }

  const Kind& m_kind;
};

}  // namespace

bool isSecretName(std::string_view name) {
  return holdsOneOf(name, {"password", "passport", "ticket"});
}

std::string maskedConnectionString(const std::string& text) {
  std::string masked;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t end = std::min(text.find(';', at), text.size());
    const std::size_t equals = text.find('=', at);
    if (equals >= end ||
        !holdsOneOf(std::string_view(text).substr(at, equals - at), {"password", "passport", "ticket", "pwd"})) {
      masked += text.substr(at, end - at + 1);
      at = end + 1;
      continue;
    }
    // A value in quotes or braces may hold semicolons.
    std::size_t last = end;
    const std::size_t first = text.find_first_not_of(' ', equals + 1);
    if (first != std::string::npos && first < end) {
      const char open = text[first];
      const char close = open == '{' ? '}' : open;
      if (open == '{' || open == '"' || open == '\'')
        last = text.find(';', std::min(text.find(close, first + 1), text.size()));
    }
    last = std::min(last, text.size());
    masked += text.substr(at, equals + 1 - at) + (last > equals + 1 ? kMask : "") + text.substr(last, 1);
    at = last + 1;
  }
  return masked;
}

void maskSecrets(Json& json, const Kind& kind) {
  Masker(kind).visit(json, "", false);
}

}  // namespace dxmd_tool
