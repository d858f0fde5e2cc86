#include "feedback.h"

#include <utility>

#include <tools/dxmd/Kind.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

const EnumTable<DXFeedbackEntry::EEntryClass> kEntryClasses{&ToString, DXFeedbackEntry::kEntryUnknown};

const char* const kFormat = "--format";

struct Feedback {
  std::vector<FeedbackEntry> entries;
};

void shape(Shape& s, Feedback& feedback) {
  s.optional("entries", feedback.entries, "The messages, in order");
}

TRNIDOM_Element make(const Feedback& feedback) {
  DXActionFeedbackHelper helper;
  addEntries(helper, feedback.entries);
  return made(helper);
}

Feedback take(TRNIDOM_Element& root) {
  return {takeEntries(root, 2)};
}

Decoded decodeFeedback(TRNIDOM_Element& root, const KindOptions& options) {
  if (options.value(kFormat) == "text") return rendered(root).toUtf8() + "\n";
  return decodedRecord(take(root));
}

bool isText(const TRNIDOM_Node& node) {
  return node.getNodeType() == TRNIDOM_Node::TEXT_NODE || node.getNodeType() == TRNIDOM_Node::CDATA_SECTION_NODE;
}

/// The text in front of the entries that an entry holds. Behind one of them only white space may stand.
I18NString leadingText(const TRNIDOM_Element& entry) {
  I18NString text;
  bool isBehindElement = false;
  for (TRNIDOM_Node node = entry.getFirstChild(); !node.isNull(); node = node.getNextSibling()) {
    if (node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE) isBehindElement = true;
    if (!isText(node)) continue;
    if (!isBehindElement)
      text += node.getNodeValue();
    else if (node.getNodeValue().toUtf8().find_first_not_of(" \t\r\n") != std::string::npos)
      refuse(entry, "text stands behind an element");
  }
  return text;
}

}  // namespace

void shape(Shape& s, FeedbackEntry& entry) {
  s.required("class", entry.entryClass, "What kind of message it is", kEntryClasses);
  s.optional("text", entry.text, "The message");
  s.optional("name", entry.name, "A label, such as the ID of the object that it is about");
  s.optional("entries", entry.entries, "The messages below it, in order");
}

void addEntries(DXActionFeedbackHelper& feedback, const std::vector<FeedbackEntry>& entries) {
  // Each step adds all that stands below one entry, so that the order of the steps does not matter.
  std::vector<std::pair<DXFeedbackEntry*, const std::vector<FeedbackEntry>*>> open{{nullptr, &entries}};
  while (!open.empty()) {
    const auto [parent, below] = open.back();
    open.pop_back();
    for (const FeedbackEntry& entry : *below) {
      DXFeedbackEntry* const added = parent == nullptr
                                         ? feedback.AddEntry(entry.entryClass, entry.text, entry.name)
                                         : feedback.AddEntry(parent, entry.entryClass, entry.text, entry.name);
      open.emplace_back(added, &entry.entries);
    }
  }
}

std::vector<FeedbackEntry> takeEntries(const TRNIDOM_Element& parent, std::size_t depth) {
  std::vector<FeedbackEntry> entries;
  for (TRNIDOM_Element entry = firstChild(parent, "entry"); !entry.isNull(); entry = nextSibling(entry, "entry")) {
    checkDepth(depth + 1);
    entries.push_back({requiredEnumerator(entry, "class", kEntryClasses), leadingText(entry),
                       entry.getAttribute("name"), takeEntries(entry, depth + 2)});
  }
  return entries;
}

I18NString rendered(TRNIDOM_Element feedback) {
  DXActionFeedbackHelper helper;
  helper.Take(feedback);
  I18NString text;
  helper.Render(text);
  return text;
}

Kind kinds::feedback() {
  Kind kind = kindOf(make, take);
  kind.decode = decodeFeedback;
  kind.summary = "Messages that an action of the modelling tool reports";
  kind.purpose = R"(The messages that a model action reports back: notes, warnings, errors and traces, nested to any
depth. It also stands in the tasks of an updateObjectResponse.)";
  kind.notes = R"(The library reads no entries, but renders them as text. With --format text that prints: one line for
each entry, whatever it is below.)";
  kind.helper = "DXActionFeedbackHelper";
  kind.reads = Does::kTool;
  kind.roots = {"feedback"};
  kind.options = {
      {KindOption::kDecode, kFormat, "json|text", "Print JSON, or a line for each entry", {"json", "text"}}};
  kind.example = R"({
  "entries": [
    {
      "class": "error", "text": "The object cannot be added.", "name": "[m].[s]",
      "entries": [{"class": "info", "text": "Its name is taken."}]
    },
    {"class": "trace", "text": "Done in 12 ms"}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
