#include "Detect.h"

#include <algorithm>

#include <trnidom/TRNIDOM_Helper.h>

#include <tools/dxmd/Registry.h>
#include <tools/dxmd/Secrets.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/capture/Message.h>
#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/text/Words.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

std::string nameOf(const TRNIDOM_Element& element) {
  return element.getNodeName().toUtf8();
}

bool contains(const std::vector<std::string>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool holdsAny(const TRNIDOM_Element& root, const std::vector<std::string>& names) {
  return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
    return !TRNIDOM_Helper::findFirstElement(root, name.c_str()).isNull();
  });
}

bool wraps(const TRNIDOM_Element& root, const std::string& command) {
  return !firstChild(root, command.c_str()).isNull() ||
         !firstChild(firstChild(root, "dxCommand"), command.c_str()).isNull();
}

const std::vector<std::string>& marksOf(const Kind& kind) {
  return kind.marks.empty() ? kind.orHolding : kind.marks;
}

/// How many kinds have that root.
std::ptrdiff_t kindsOfRoot(const std::string& root) {
  return std::count_if(allKinds().begin(), allKinds().end(),
                       [&](const Kind& kind) { return contains(kind.roots, root); });
}

bool isHtml(const TRNIDOM_Element& root) {
  return lowerCase(localName(nameOf(root))) == "html";
}

bool isFault(const TRNIDOM_Element& root) {
  return lowerCase(localName(nameOf(root))) == "fault";
}

std::vector<std::string> namesOf(const std::vector<const Kind*>& kinds) {
  std::vector<std::string> names;
  names.reserve(kinds.size());
  for (const Kind* kind : kinds) names.push_back(kind->name);
  return names;
}

/// Whether the document is of the kind.
bool fits(const Kind& kind, const TRNIDOM_Element& root) {
  const std::string name = nameOf(root);
  if (isHtml(root)) return false;
  if (!contains(kind.roots, name))
    return kindsOfRoot(name) == 0 && holdsAny(root, kind.orHolding) &&
           (kind.marks.empty() || holdsAny(root, kind.marks));
  if (!kind.wrapped.empty()) return wraps(root, kind.wrapped);
  return kindsOfRoot(name) == 1 || firstChild(root).isNull() || holdsAny(root, marksOf(kind));
}

/// A text on one line, of limited length, without secrets.
std::string brief(const std::string& text) {
  constexpr std::size_t kMost = 300;
  std::string line;
  for (const char c : text) {
    const bool isSpace = c == ' ' || c == '\t' || c == '\r' || c == '\n';
    if (!isSpace)
      line += c;
    else if (!line.empty() && line.back() != ' ')
      line += ' ';
  }
  line = maskedText(line);
  if (!line.empty() && line.back() == ' ') line.pop_back();
  if (line.size() <= kMost) return line;
  std::size_t end = kMost;
  while (end > 0 && (static_cast<unsigned char>(line[end]) & 0xC0) == 0x80) --end;
  return line.substr(0, end) + "...";
}

/// All texts below the element.
std::string textsBelow(const TRNIDOM_Element& root) {
  std::string all;
  walk(
      root,
      [&](const TRNIDOM_Node& node) {
        if (node.getNodeType() == TRNIDOM_Node::TEXT_NODE || node.getNodeType() == TRNIDOM_Node::CDATA_SECTION_NODE)
          all += " " + node.getNodeValue().toUtf8();
      },
      [](const TRNIDOM_Node&) {});
  return all;
}

/// Why the document is not of the kind, as far as roots and names tell.
std::string whyNot(const Kind& kind, const TRNIDOM_Element& root) {
  const std::string found = nameOf(root);
  if (contains(kind.roots, found)) {
    if (!kind.wrapped.empty()) return "its command is not " + inQuotes(kind.wrapped);
    return "it holds none of " + joined(marksOf(kind));
  }
  return "its root element is " + inQuotes(found) + ", not " + joined(kind.roots) +
         (kind.orHolding.empty() ? "" : ", and it holds none of " + joined(kind.orHolding));
}

/// What it is, for people; empty when that is not known.
std::string whatItIs(const TRNIDOM_Element& root, const std::vector<const Kind*>& kinds) {
  if (isHtml(root)) return "it is a page of HTML: " + inQuotes(brief(textsBelow(root)));
  if (kinds.empty()) return isFault(root) ? "it is a fault" : "";
  return "it is " + joined(namesOf(kinds), " or ") + "; try dxmd decode " + kinds.front()->name;
}

}  // namespace

bool isMessageName(const std::string& name) {
  return kindsOfRoot(name) > 0 || lowerCase(name) == "fault";
}

std::vector<const Kind*> kindsOf(const TRNIDOM_Element& root) {
  std::vector<const Kind*> found;
  for (const Kind& kind : allKinds())
    if (fits(kind, root)) found.push_back(&kind);
  return found;
}

const Kind& kindOf(const TRNIDOM_Element& root, const std::string& name) {
  std::vector<const Kind*> kinds = kindsOf(root);
  if (kinds.size() > 1 && !errorsReportedBy(root).empty()) {
    const auto reports = std::remove_if(kinds.begin(), kinds.end(), [](const Kind* kind) { return !!kind->errors; });
    if (reports != kinds.begin()) kinds.erase(reports, kinds.end());
  }
  if (kinds.size() == 1) return *kinds.front();
  if (!kinds.empty())
    throw ToolError(kStatusUnfit,
                    name + ": fits several kinds: " + joined(namesOf(kinds)) + "; say which: dxmd decode KIND FILE");
  if (isFault(root)) throw ToolError(kStatusReported, name + ": a fault: " + brief(textsBelow(root)));
  if (const std::string is = whatItIs(root, kinds); !is.empty())
    throw ToolError(kStatusUnfit, name + ": no kind of message: " + is);
  throw ToolError(kStatusUnfit,
                  name + ": no kind of message: its root element is " + inQuotes(nameOf(root)) +
                      (kindsOfRoot(nameOf(root)) > 0 ? ", and it holds nothing that any kind of it has" : ""));
}

const Kind& kindIn(const Input& input, bool exact) {
  XmlInput xml(input, exact);
  xml.endsWithin(1 << 12);
  xml.refuseHtml();
  const TRNIDOM_Document document = xml.parse();
  return kindOf(exact ? document.getDocumentElement() : messageIn(document, &isMessageName), input.name);
}

void checkKind(const Kind& kind, const TRNIDOM_Element& root, const std::string& name) {
  // Of its roots no other kind is.
  if (contains(kind.roots, nameOf(root)) && kind.wrapped.empty() && marksOf(kind).empty()) return;
  if (fits(kind, root)) return;
  const std::vector<const Kind*> kinds = kindsOf(root);
  const std::string errors = kinds.empty() && isFault(root) ? brief(textsBelow(root)) : errorsReportedBy(root);
  std::string message = name + ": no " + kind.name + ": " + whyNot(kind, root);
  if (const std::string is = whatItIs(root, kinds); !is.empty()) message += "; " + is;
  if (!errors.empty()) throw ToolError(kStatusReported, message + "; it reports: " + errors);
  throw ToolError(kStatusUnfit, message);
}

std::string errorsReportedBy(const TRNIDOM_Element& root) {
  std::string all;
  for (const Kind& kind : allKinds())
    if (kind.errors && fits(kind, root)) all += (all.empty() ? "" : "; ") + kind.errors(root);
  return brief(all);
}

}  // namespace dxmd_tool
