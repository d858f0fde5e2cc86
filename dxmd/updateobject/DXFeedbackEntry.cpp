#include <dxmd/updateobject/DXFeedbackEntry.h>

#include <utility>
#include <vector>

#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

constexpr EnumTexts<DXFeedbackEntry::EEntryClass, 4> kEntryClasses{{
    {DXFeedbackEntry::kEntryInfo, STR_info},
    {DXFeedbackEntry::kEntryWarning, STR_warning},
    {DXFeedbackEntry::kEntryError, STR_error},
    {DXFeedbackEntry::kEntryTrace, STR_trace},
}};

const I18NString kLineFeed("\n");
const I18NString kErrorPrefix("*** Error:");
const I18NString kOtherPrefix("--- ");

}  // namespace

I18NString ToString(DXFeedbackEntry::EEntryClass entryClass) {
  return kEntryClasses.text(entryClass);
}

DXFeedbackEntry::DXFeedbackEntry(EEntryClass entryClass, const I18NString& text, const I18NString& name)
    : m_entryClass(entryClass), m_text(text), m_name(name) {}

DXFeedbackEntry::~DXFeedbackEntry() {
  m_children.clearNested([](DXFeedbackEntry & entry) -> auto& { return entry.m_children; });
}

DXFeedbackEntry* DXFeedbackEntry::AddEntry(EEntryClass entryClass, const I18NString& text, const I18NString& name) {
  return m_children.emplace(entryClass, text, name);
}

void DXFeedbackEntry::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_entry);
  // Entries nest to any depth: a stack of those whose element is appended but has no content yet. All children of an
  // entry are appended when it is filled, so that the order of filling does not show.
  std::vector<std::pair<const DXFeedbackEntry*, TRNIDOM_Element>> unfilled{{this, elem}};
  while (!unfilled.empty()) {
    auto [entry, element] = std::move(unfilled.back());
    unfilled.pop_back();
    element.setAttribute(STR_class, ToString(entry->m_entryClass));
    if (!entry->m_name.empty()) element.setAttribute(STR_name, entry->m_name);
    appendText(element, entry->m_text);
    for (const DXFeedbackEntry* child : entry->m_children)
      unfilled.emplace_back(child, appendElement(element, STR_entry));
  }
}

void DXFeedbackEntry::Render(TRNIDOM_Element& elem, const I18NString& indent, I18NString& out) {
  out += kLineFeed;
  out += indent;
  out += elem.getAttribute(STR_class) == STR_error ? kErrorPrefix : kOtherPrefix;
  out += firstText(elem).getNodeValue();
}
