#include <vector>

#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

using Retarget = DXActionHelperRetargetObjectReferences;

static void shape(Shape& s, Retarget::ItemToUpdate& item) {
  s.required("itemID", item.m_itemID, "The item's reference", nonEmpty());
  // The library's flag is a number, of which 1 says yes; what it read is 0 or 1.
  bool processDescendants = item.m_processDescendants == 1;
  s.required("processDescendants", processDescendants, "Whether its descendants are updated as well");
  item.m_processDescendants = processDescendants ? 1 : 0;
}

static void shape(Shape& s, Retarget::UpdateInfo& updateInfo) {
  s.required("newRefValue", updateInfo.m_newRefValue, "The reference that replaces it",
             emptyIsLost("An empty one is written, but refused when it is read"));
  s.optional("itemsToUpdate", updateInfo.m_itemsToUpdate, "The items that get the new reference",
             repeatedIsLost("An item listed twice is written once, and processed as it was listed last", "itemID"));
}

static void shape(Shape& s, Retarget::Entry& entry) {
  s.required("currentRefValue", entry.m_currentRefValue, "The reference to be replaced");
  s.required("updateInfos", entry.m_updateInfoList, "What replaces it, and where", nonEmpty(),
             repeatedIsLost("Those of one new reference are written as one", "newRefValue"));
}

namespace {

struct RetargetObjectReferences {
  std::vector<Retarget::Entry> entries;
};

void shape(Shape& s, RetargetObjectReferences& references) {
  s.required("entries", references.entries, "The references, each with what replaces it",
             repeatedIsLost("Entries of one current reference are written as one", "currentRefValue"),
             emptyIsLost("An empty list is written, but refused when it is read"));
}

TRNIDOM_Element make(const RetargetObjectReferences& references) {
  Retarget helper;
  TRNIDOM_Element element = made(helper);
  for (const Retarget::Entry& entry : references.entries)
    for (const Retarget::UpdateInfo& updateInfo : entry.m_updateInfoList)
      helper.addEntry(entry.m_currentRefValue, updateInfo);
  return element;
}

RetargetObjectReferences take(TRNIDOM_Element& root) {
  refuseHeldByMany(root, {"entry", "updateInfo"}, {"updateInfo", "itemToUpdate"});
  Retarget helper;
  helper.Take(root);
  return {helper.getEntries()};
}

}  // namespace

Kind kinds::retargetObjectReferences() {
  Kind kind = kindOf(make, take);
  kind.summary = "Object references to be pointed at new targets";
  kind.purpose = R"(Has references replaced by others: for each reference the new ones, and for each new one the
items that get it.)";
  kind.helper = "DXActionHelperRetargetObjectReferences";
  kind.roots = {"retargetObjectReferences"};
  kind.example = R"({
  "entries": [
    {
      "currentRefValue": "[Sales].[Region]",
      "updateInfos": [
        {
          "newRefValue": "[Geography].[Region]",
          "itemsToUpdate": [
            {"itemID": "[Reports].[By region]", "processDescendants": true},
            {"itemID": "[Reports].[Totals]", "processDescendants": false}
          ]
        }
      ]
    }
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
