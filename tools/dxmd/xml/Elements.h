#ifndef TOOLS_DXMD_XML_ELEMENTS_H
#define TOOLS_DXMD_XML_ELEMENTS_H

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <tools/dxmd/json/EnumTable.h>
#include <tools/dxmd/json/Quote.h>

// The small steps with which kinds read and write documents that the library only writes or only reads.

namespace dxmd_tool {

/// A document that is refused: the place, such as `/command/execute/querySet/queries/query[2]/@name`, and the reason.
class XmlError : public std::runtime_error {
 public:
  explicit XmlError(const std::string& message) : std::runtime_error(message) {}
};

// Writing. Each element is created in its parent's document.

/// The document element of a new document.
TRNIDOM_Element newElement(const I18NString& name);
TRNIDOM_Element appendElement(TRNIDOM_Element parent, const I18NString& name);
TRNIDOM_Element appendElement(TRNIDOM_Element parent, const I18NString& name, const I18NString& attrName,
                              const I18NString& attrValue);
/// An empty text adds no text node.
TRNIDOM_Element appendTextElement(TRNIDOM_Element parent, const I18NString& name, const I18NString& text);
void setUnlessEmpty(TRNIDOM_Element element, const I18NString& attrName, const I18NString& attrValue);

// Reading. What is asked of a null element is null or empty.

/// The first child element, or the one behind that sibling; of that name unless it is empty. Null when there is none.
///   for (TRNIDOM_Element query = firstChild(queries, "query"); !query.isNull(); query = nextSibling(query, "query"))
TRNIDOM_Element firstChild(const TRNIDOM_Node& parent, const I18NString& name = I18NString());
TRNIDOM_Element nextSibling(const TRNIDOM_Node& node, const I18NString& name = I18NString());
/// The first child element of that name.
/// @throws XmlError when there is none.
TRNIDOM_Element requiredChild(const TRNIDOM_Node& parent, const I18NString& name);
/// The texts and CDATA sections in the element, as one.
I18NString textOf(const TRNIDOM_Node& element);
/// The text of the first child element of that name.
I18NString childText(const TRNIDOM_Node& parent, const I18NString& name);
/// The texts of the child elements of that name.
/// @throws XmlError when one is empty.
std::vector<I18NString> nonEmptyChildTexts(const TRNIDOM_Node& parent, const I18NString& name);
/// The attribute, if it is there.
std::optional<I18NString> attribute(const TRNIDOM_Element& element, const I18NString& name);

/// Refuses an element of that name inside another: to readers that search at any depth its parts belong to both.
/// @throws XmlError
void refuseNested(const TRNIDOM_Element& root, const I18NString& name);

/// Refuses an element inside too many that are each read with all that is below them: what is read would grow with the
/// square of the depth. Documents have a few.
/// @param holders  the names of those.
/// @param held     the names of the elements that belong to each.
/// @throws XmlError
void refuseHeldByMany(const TRNIDOM_Node& root, const std::vector<std::string>& holders,
                      const std::vector<std::string>& held);

/// The node as XML, which ends with a line feed.
std::string xmlText(const TRNIDOM_Node& node, unsigned indent);

/// Enters and leaves every node below the root, in document order. Trees may be of any depth. What is entered may be
/// changed, but for its place in the tree.
void walk(const TRNIDOM_Node& root, const std::function<void(TRNIDOM_Node&)>& enter,
          const std::function<void(const TRNIDOM_Node&)>& leave);

/// Refuses the document.
[[noreturn]] void refuse(const TRNIDOM_Node& at, const std::string& reason);

/// The enumerator that the attribute names; the unset one when it is absent.
/// @throws XmlError when the table has no such text.
template <typename Enum>
Enum enumerator(const TRNIDOM_Element& element, const I18NString& attrName, const EnumTable<Enum>& table) {
  const std::optional<I18NString> text = attribute(element, attrName);
  if (!text) return Enum{};
  if (const std::optional<Enum> value = table.value(*text)) return *value;
  refuse(element, "\"" + attrName.toUtf8() + "\" is " + inQuotes(text->toUtf8()) + ", none of " + table.quotedTexts());
}

/// The same, of an attribute that must be there.
template <typename Enum>
Enum requiredEnumerator(const TRNIDOM_Element& element, const I18NString& attrName, const EnumTable<Enum>& table) {
  if (!element.hasAttribute(attrName)) refuse(element, "the attribute " + inQuotes(attrName.toUtf8()) + " is missing");
  return enumerator(element, attrName, table);
}

/// Refuses an attribute that has not that value, or is missing.
void requireAttribute(const TRNIDOM_Element& element, const I18NString& attrName, const I18NString& value);

/// "true" or "false"; false when the attribute is absent.
/// @throws XmlError for any other text.
bool boolean(const TRNIDOM_Element& element, const I18NString& attrName);

}  // namespace dxmd_tool

#endif
