#include <dxmd/updateobject/DXActionFeedbackHelper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

DXActionFeedbackHelper::DXActionFeedbackHelper() = default;

DXActionFeedbackHelper::~DXActionFeedbackHelper() = default;

DXFeedbackEntry* DXActionFeedbackHelper::AddEntry(DXFeedbackEntry::EEntryClass entryClass, const I18NString& text,
                                                  const I18NString& name) {
  return m_entries.emplace(entryClass, text, name);
}

DXFeedbackEntry* DXActionFeedbackHelper::AddEntry(DXFeedbackEntry* parent, DXFeedbackEntry::EEntryClass entryClass,
                                                  const I18NString& text, const I18NString& name) {
  return parent->AddEntry(entryClass, text, name);
}

void DXActionFeedbackHelper::Render(I18NString& out) {
  for (TRNIDOM_Element& entry : DescendantElements(m_feedback, STR_entry))
    DXFeedbackEntry::Render(entry, STR_empty, out);
}

void DXActionFeedbackHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_feedback);
  for (const DXFeedbackEntry* entry : m_entries) appendMade(elem, doc, *entry);
}

void DXActionFeedbackHelper::doTake(TRNIDOM_Element& elem) {
  m_feedback = elem;
}
