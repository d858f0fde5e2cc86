#ifndef TOOLS_DXMD_KINDS_UPDATEOBJECT_FEEDBACK_H
#define TOOLS_DXMD_KINDS_UPDATEOBJECT_FEEDBACK_H

#include <cstddef>
#include <string>
#include <vector>

#include <dxmd/updateobject/DXActionFeedbackHelper.h>
#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <tools/dxmd/shape/Shape.h>

// The entries of a feedback, which are a kind of their own and a key of each task of an updateObjectResponse.

namespace dxmd_tool {

struct FeedbackEntry {
  DXFeedbackEntry::EEntryClass entryClass{};
  I18NString text;
  I18NString name;
  std::vector<FeedbackEntry> entries;
};

void shape(Shape& s, FeedbackEntry& entry);

void addEntries(DXActionFeedbackHelper& feedback, const std::vector<FeedbackEntry>& entries);

/// The entries below a "feedback" or an "entry"; none below a null element.
/// @param depth  the level that their list has in the JSON, the whole being 1.
/// @throws XmlError, and JsonTooDeep
std::vector<FeedbackEntry> takeEntries(const TRNIDOM_Element& parent, std::size_t depth);

/// The text that a "feedback" renders to; empty for a null element.
I18NString rendered(TRNIDOM_Element feedback);

}  // namespace dxmd_tool

#endif
