// Documents of the modelling tool's actions that grow long. The time for each item should hardly depend on their
// number.

#include <memory>
#include <vector>

#include <dxmd/modelactions/DXActionHelperIQDFile.h>
#include <dxmd/modelactions/DXActionHelperObjectAccess.h>
#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>

#include "Bench.h"
#include "Documents.h"

namespace {

using namespace bench;
using Access = DXActionHelperObjectAccess;
using Retarget = DXActionHelperRetargetObjectReferences;

constexpr std::size_t kItemsPerEntry = 100;

std::vector<I18NString> keys(std::size_t count) {
  std::vector<I18NString> all;
  for (std::size_t i = 0; i < count; ++i) all.emplace_back(keysUtf8()[i].c_str());
  return all;
}

template <typename Helper>
TRNIDOM_Element made(const Helper& helper) {
  TRNIDOM_Element element;
  helper.Make(element);
  return element;
}

std::shared_ptr<DXActionHelperIQDFile> file(std::size_t lines) {
  auto file = std::make_shared<DXActionHelperIQDFile>();
  file->setContents(keys(lines));
  return file;
}

template <std::size_t Lines>
Work writeFile() {
  return [file = file(Lines)] { made(*file); };
}

template <std::size_t Lines>
Work readFile() {
  return [element = made(*file(Lines))]() mutable {
    DXActionHelperIQDFile file;
    file.Take(element);
    keep(&file);
  };
}

TRNIDOM_Element accessList(const std::vector<DXActionHelperSecurityObject>& principals) {
  Access access;
  TRNIDOM_Element element = made(access);
  for (const DXActionHelperSecurityObject& principal : principals) access.addEntry(principal, Access::kAllow);
  return element;
}

std::vector<DXActionHelperSecurityObject> principals(std::size_t count) {
  std::vector<DXActionHelperSecurityObject> all;
  for (const I18NString& key : keys(count)) all.emplace_back(key, "", DXActionHelperSecurityObject::kUser);
  return all;
}

template <std::size_t Principals>
Work writeAccess() {
  return [all = principals(Principals)] { accessList(all); };
}

template <std::size_t Principals>
Work readAccess() {
  return [element = accessList(principals(Principals))]() mutable {
    Access access;
    access.Take(element);
    std::vector<Access::SecurityObjectAccess> entries;
    access.getEntries(entries);
    keep(&entries);
  };
}

TRNIDOM_Element retargetDocument(const std::vector<I18NString>& currentValues,
                                 const std::vector<Retarget::ItemToUpdate>& items) {
  Retarget retarget;
  TRNIDOM_Element element = made(retarget);
  for (const I18NString& currentValue : currentValues) retarget.addEntry(currentValue, "new", items);
  return element;
}

std::vector<Retarget::ItemToUpdate> itemsOfEntry() {
  std::vector<Retarget::ItemToUpdate> items;
  for (const I18NString& key : keys(kItemsPerEntry)) items.push_back({key, 1});
  return items;
}

template <std::size_t Entries>
Work writeRetarget() {
  return [values = keys(Entries), items = itemsOfEntry()] { retargetDocument(values, items); };
}

template <std::size_t Entries>
Work readRetarget() {
  return [element = retargetDocument(keys(Entries), itemsOfEntry())]() mutable {
    Retarget retarget;
    retarget.Take(element);
    const std::vector<Retarget::Entry> entries = retarget.getEntries();
    keep(&entries);
  };
}

const Case cases[] = {{"write definition file of 1,000 lines", "dxmd", writeFile<1000>},
                      {"write definition file of 100,000 lines", "dxmd", writeFile<100000>},
                      {"read definition file of 1,000 lines", "dxmd", readFile<1000>},
                      {"read definition file of 100,000 lines", "dxmd", readFile<100000>},
                      {"write access list of 1,000 principals", "dxmd", writeAccess<1000>},
                      {"write access list of 100,000 principals", "dxmd", writeAccess<100000>},
                      {"read access list of 1,000 principals", "dxmd", readAccess<1000>},
                      {"read access list of 100,000 principals", "dxmd", readAccess<100000>},
                      {"write retarget document of 10 x 100 items", "dxmd", writeRetarget<10>},
                      {"write retarget document of 1,000 x 100 items", "dxmd", writeRetarget<1000>},
                      {"read retarget document of 10 x 100 items", "dxmd", readRetarget<10>},
                      {"read retarget document of 1,000 x 100 items", "dxmd", readRetarget<1000>}};

}  // namespace
