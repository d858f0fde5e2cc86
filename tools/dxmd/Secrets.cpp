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
const char* const kConnectionString = "connectionString";

constexpr std::initializer_list<const char*> kSecretNames = {"password", "passport", "ticket"};
constexpr std::initializer_list<const char*> kSecretParameters = {"password", "passport", "ticket", "pwd"};

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

/// Walks a tree of XML and hides what it says under the names of secrets. Trees may be of any depth.
class XmlMasker {
 public:
  void visitAll(const TRNIDOM_Node& root) {
    TRNIDOM_Node node = root;
    while (true) {
      visit(node);
      if (node.hasChildNodes()) {
        node = node.getFirstChild();
        continue;
      }
      while (node != root && node.getNextSibling().isNull()) {
        leave(node);
        node = node.getParentNode();
      }
      if (node == root) return;
      leave(node);
      node = node.getNextSibling();
    }
  }

 private:
  void visit(TRNIDOM_Node& node) {
    if (node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE) {
      if (m_secret.isNull() && isSecretElement(node)) m_secret = node;
      for (TRNIDOM_Node attribute : node.getAttributes()) visitAttribute(attribute);
    } else if (!m_secret.isNull()) {
      node.setNodeValue(kMask);
    } else if (node.getParentNode().getNodeName() == I18NString(kConnectionString)) {
      node.setNodeValue(maskedConnectionString(node.getNodeValue().toUtf8()).c_str());
    }
  }

  void visitAttribute(TRNIDOM_Node& attribute) const {
    const std::string name = attribute.getNodeName().toUtf8();
    if (isSecretName(name) || (!m_secret.isNull() && name != "name"))
      attribute.setNodeValue(kMask);
    else if (name == kConnectionString)
      attribute.setNodeValue(maskedConnectionString(attribute.getNodeValue().toUtf8()).c_str());
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
  if (!holdsOneOf(text, kSecretParameters)) return text;
  try {
    const TRNIDOM_Document document = TRNIDOM_Parser::parseString(text);
    XmlMasker().visitAll(document);
    return TRNIDOM_Writer::toString(document);
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
      auto& text = json.get_ref<std::string&>();
      if (secret)
        text = text.empty() ? "" : kMask;
      else if (text.compare(0, 1, "<") == 0)
        text = maskedXml(text);
      else if (isConnectionString(key))
        text = maskedConnectionString(text);
    } else if (secret && !json.is_null()) {
      json = kMask;
    }
  }

 private:
  bool isSecret(std::string_view key) const { return isSecretName(key) || isListed(m_kind.secrets, key); }
  bool isConnectionString(std::string_view key) const {
    return key == kConnectionString || isListed(m_kind.connectionStrings, key);
  }

  const Kind& m_kind;
};

}  // namespace

bool isSecretName(std::string_view name) {
  return holdsOneOf(name, kSecretNames);
}

std::string maskedConnectionString(const std::string& text) {
  std::string masked;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t end = std::min(text.find(';', at), text.size());
    const std::size_t equals = text.find('=', at);
    if (equals >= end || !holdsOneOf(std::string_view(text).substr(at, equals - at), kSecretParameters)) {
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
