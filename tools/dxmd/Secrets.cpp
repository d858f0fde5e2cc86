#include "Secrets.h"

#include <functional>
#include <string_view>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonError.h>
#include <tools/dxmd/json/JsonPlace.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

/// Told of each secret; gives what to write for it.
using Replace = std::function<std::string(std::string_view secret)>;

std::string replacedInText(const std::string& text, const Replace& replace, unsigned depth);

/// Walks a tree of XML and replaces what it says under the names of secrets.
class XmlWalk {
 public:
  /// @param depth  of how many texts of XML the tree is within.
  explicit XmlWalk(const Replace& replace, unsigned depth = 0) : m_replace(replace), m_depth(depth) {}

  void visitAll(const TRNIDOM_Node& root) {
    TRNIDOM_Node top = root;
    visit(top);
    walk(
        root, [this](TRNIDOM_Node& node) { visit(node); }, [this](const TRNIDOM_Node& node) { leave(node); });
  }

  bool hasChanged() const { return m_hasChanged; }

 private:
  void visit(TRNIDOM_Node& node) {
    if (node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE) {
      if (m_secret.isNull() && isSecretElement(node)) m_secret = node;
      for (TRNIDOM_Node attribute : node.getAttributes()) visitAttribute(attribute);
    } else if (!m_secret.isNull()) {
      change(node, m_replace);
    } else {
      changeText(node);
    }
  }

  void visitAttribute(TRNIDOM_Node& attribute) {
    const std::string name = attribute.getNodeName().toUtf8();
    if (isSecretName(name) || (!m_secret.isNull() && name != "name"))
      change(attribute, m_replace);
    else
      changeText(attribute);
  }

  void changeText(TRNIDOM_Node& node) {
    change(node, [&](std::string_view text) { return replacedInText(std::string(text), m_replace, m_depth); });
  }

  void change(TRNIDOM_Node& node, const Replace& replace) {
    const std::string text = node.getNodeValue().toUtf8();
    const std::string replaced = replace(text);
    if (replaced == text) return;
    node.setNodeValue(replaced.c_str());
    m_hasChanged = true;
  }

  void leave(const TRNIDOM_Node& node) {
    if (node == m_secret) m_secret = TRNIDOM_Node();
  }

  static bool isSecretElement(const TRNIDOM_Element& element) {
    return isSecretName(element.getNodeName().toUtf8()) || isSecretName(element.getAttribute("name").toUtf8());
  }

  const Replace& m_replace;
  const unsigned m_depth;
  TRNIDOM_Node m_secret;  ///< the secret element that the walk is in, or null
  bool m_hasChanged = false;
};

bool looksLikeXml(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first != std::string_view::npos && text[first] == '<';
}

std::string replacedInText(const std::string& text, const Replace& replace, unsigned depth) {
  constexpr unsigned kDeepest = 4;
  if (!looksLikeXml(text)) return withSecretsReplaced(text, replace);
  if (!mayHoldSecret(text) && !hasSecretWord(text)) return text;
  const auto withoutParsing = [&] { return hasSecretWord(text) ? replace(text) : withSecretsReplaced(text, replace); };
  if (depth == kDeepest) return withoutParsing();
  try {
    const TRNIDOM_Document document = TRNIDOM_Parser::parseString(text);
    XmlWalk walk(replace, depth + 1);
    walk.visitAll(document);
    return walk.hasChanged() ? TRNIDOM_Writer::toString(document) : text;
  } catch (const TRNIDOM_ParseError&) {
    return withoutParsing();
  }
}

/// Walks JSON, whose depth is bounded, and beside it the description.
class JsonWalk {
 public:
  /// Told of each text, with the secrets in it replaced or all of it when it is one, and of what is no text.
  using Visit = std::function<void(Json& value, bool isSecret, const JsonPlace& place)>;

  explicit JsonWalk(const Visit& visit) : m_visit(visit) {}

  void walk(Json& json, bool secret, const DescribedRecord* record, const JsonPlace& place) {
    secret = secret || (place.parent != nullptr && isSecretName(place.name));
    if (json.is_object()) {
      const bool namesSecret =
          json.contains("name") && json["name"].is_string() && isSecretName(json["name"].get_ref<const std::string&>());
      for (auto& member : json.get_ref<Json::object_t&>()) {
        const DescribedKey* const described = record != nullptr ? record->find(member.first) : nullptr;
        const DescribedType* type = described != nullptr ? &described->type : nullptr;
        while (type != nullptr && type->item) type = type->item.get();
        walk(member.second,
             secret || (namesSecret && member.first == "value") || (described != nullptr && described->secret),
             type != nullptr ? type->record : nullptr, {&place, member.first});
      }
    } else if (json.is_array()) {
      std::size_t index = 0;
      for (Json& item : json) walk(item, secret, record, {&place, std::string_view(), index++});
    } else {
      m_visit(json, secret, place);
    }
  }

 private:
  const Visit& m_visit;
};

/// Tells of each secret that is not empty. The JSON stays as it is.
void forEachSecret(const Json& json, const DescribedRecord* record, const JsonPlace& place,
                   const std::function<void(std::string_view secret, const JsonPlace& place)>& tell) {
  const JsonWalk::Visit visit = [&](Json& value, bool isSecret, const JsonPlace& at) {
    const Replace note = [&](std::string_view secret) {
      if (!secret.empty()) tell(secret, at);
      return std::string(secret);
    };
    if (isSecret && !value.is_null())
      note(value.is_string() ? value.get_ref<const std::string&>() : value.dump());
    else if (value.is_string())
      replacedInText(value.get_ref<const std::string&>(), note, 0);
  };
  JsonWalk(visit).walk(const_cast<Json&>(json), false, record, place);
}

std::string maskOf(std::string_view secret) {
  return secret.empty() ? "" : kMask;
}

}  // namespace

std::string shownText(const std::string& text) {
  return replacedInText(text, maskOf, 0);
}

void maskSecrets(Json& json, const DescribedRecord* record) {
  const JsonWalk::Visit visit = [](Json& value, bool isSecret, const JsonPlace&) {
    if (isSecret && !value.is_null())
      value = value == "" ? "" : kMask;
    else if (value.is_string())
      value = shownText(value.get_ref<const std::string&>());
  };
  JsonWalk(visit).walk(json, false, record, {nullptr, ""});
}

void maskSecrets(const TRNIDOM_Node& root) {
  const Replace mask = maskOf;
  XmlWalk(mask).visitAll(root);
}

bool holdsSecrets(const Json& json, const DescribedRecord* record) {
  bool found = false;
  forEachSecret(json, record, {nullptr, ""}, [&](std::string_view, const JsonPlace&) { found = true; });
  return found;
}

bool holdsSecrets(const TRNIDOM_Node& root) {
  bool found = false;
  const Replace note = [&](std::string_view secret) {
    found = found || !secret.empty();
    return std::string(secret);
  };
  XmlWalk(note).visitAll(root);
  return found;
}

void refuseMasks(const Json& json, const DescribedRecord* record, const std::string& source) {
  forEachSecret(json, record, {nullptr, source}, [](std::string_view secret, const JsonPlace& place) {
    // Spaces around it and quotes are those of a connection string that was edited.
    const std::size_t first = secret.find_first_not_of(" \t\"'{");
    if (first == std::string_view::npos || secret.substr(first, 3) != kMask) return;
    if (secret.find_first_not_of(" \t\"'}", first + 3) != std::string_view::npos) return;
    throw JsonError(JsonError::kUnfit, std::string(place.source()) + ": " + place.path() + ": " + kMaskRefusal);
  });
}

}  // namespace dxmd_tool
