// What callers do with many children of one parent, or many attributes of one element, besides adding them: the time
// per child is to stay the same however many there are.

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_Helper.h>

#include "Bench.h"

namespace {

using namespace bench;

using Keys = std::shared_ptr<const std::vector<I18NString>>;

template <std::size_t Count>
Keys keys() {
  static const Keys theKeys = [] {
    auto made = std::make_shared<std::vector<I18NString>>();
    for (std::size_t i = 0; i < Count; ++i) made->emplace_back(("key " + std::to_string(i)).c_str());
    return made;
  }();
  return theKeys;
}

TRNIDOM_Element newList() {
  return TRNIDOM_DOMImplementation::getInstance()
      .createDocument("", "list", TRNIDOM_DocumentType())
      .getDocumentElement();
}

const I18NString kLine("line");
const I18NString kKey("key");

template <std::size_t Count>
Work findOrCreate() {
  return [all = keys<Count>()] {
    const TRNIDOM_Element list = newList();
    for (const I18NString& key : *all) TRNIDOM_Helper::findOrCreateElementWithText(list, kLine, key);
    keep(&list);
  };
}

template <std::size_t Count>
Work fillInEmptyKeys() {
  return [all = keys<Count>()] {
    const TRNIDOM_Element list = newList();
    for (const I18NString& key : *all)
      TRNIDOM_Helper::findOrCreateElementWithAttribute(list, kLine, kKey, "").setAttribute(kKey, key);
    keep(&list);
  };
}

template <std::size_t Count>
Work findAndRemoveEach() {
  return [all = keys<Count>()] {
    TRNIDOM_Element list = newList();
    for (const I18NString& key : *all) TRNIDOM_Helper::findOrCreateElementWithAttribute(list, kLine, kKey, key);
    for (auto key = all->rbegin(); key != all->rend(); ++key)
      list.removeChild(TRNIDOM_Helper::findOrCreateElementWithAttribute(list, kLine, kKey, *key));
    keep(&list);
  };
}

template <std::size_t Count>
Work changeOneAndFindAnother() {
  return [all = keys<Count>()] {
    TRNIDOM_Element list = newList();
    for (const I18NString& key : *all) TRNIDOM_Helper::findOrCreateElementWithAttribute(list, kLine, kKey, key);
    TRNIDOM_Element changed = list.getLastChild();
    for (const I18NString& key : *all) {
      changed.setAttribute(kKey, key + "'");
      keep(TRNIDOM_Helper::findOrCreateElementWithAttribute(list, kLine, kKey, key).isNull() ? nullptr : "");
    }
  };
}

template <std::size_t Count>
Work setAttributesDescending() {
  auto names = std::make_shared<std::vector<I18NString>>();
  for (std::size_t i = 0; i < Count; ++i) names->emplace_back(("a" + std::to_string(i)).c_str());
  std::sort(names->rbegin(), names->rend());
  return [names] {
    TRNIDOM_Element list = newList();
    for (const I18NString& name : *names) list.setAttribute(name, name);
    keep(&list);
  };
}

const Case cases[] = {
    {"find or create, 1,000 times", "dxmd", findOrCreate<1000>},
    {"find or create, 1,000,000 times", "dxmd", findOrCreate<1000000>},
    {"fill in an empty key, 1,000 times", "dxmd", fillInEmptyKeys<1000>},
    {"fill in an empty key, 1,000,000 times", "dxmd", fillInEmptyKeys<1000000>},
    {"make and remove, 1,000 times", "dxmd", findAndRemoveEach<1000>},
    {"make and remove, 1,000,000 times", "dxmd", findAndRemoveEach<1000000>},
    {"make, change one and find another, 1,000 times", "dxmd", changeOneAndFindAnother<1000>},
    {"make, change one and find another, 1,000,000 times", "dxmd", changeOneAndFindAnother<1000000>},
    {"set attributes in descending order, 1,000 times", "dxmd", setAttributesDescending<1000>},
    {"set attributes in descending order, 1,000,000 times", "dxmd", setAttributesDescending<1000000>},
};

}  // namespace
