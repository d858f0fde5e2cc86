// Reading a message costs no more than its size, whatever its growth.

#include <map>

#include <trn/TRNAssertError.h>
#include <trnidom/TRNIDOM_DOMException.h>

#include <dxmd/modelactions/DXActionHelperIQDFile.h>
#include <dxmd/modelactions/DXActionHelperObjectAccess.h>
#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>
#include <dxmd/queryframework/QFExecuteCommandHelper.h>

#include "Growth.h"
#include "InstructionCount.h"
#include "Messages.h"
#include "TestSupport.h"

using namespace dxmd_test;

namespace {

bool reads(const Message& message, TRNIDOM_Element element) {
  Answers answers;
  try {
    message.read(element, answers);
    return true;
  } catch (const TRNAssertError&) {
  } catch (const TRNIDOM_DOMException&) {
  }
  return false;
}

/// Why reading that message in that shape costs more; empty for all others.
std::string excuseOf(const std::string& name) {
  static const std::map<std::string, std::string> excuses = {
      {"analyzeModelRequest_nested", "a task has the checks and objects of those nested in it too"},
      {"dbConnections_nested", "each connection that is held is copied with those nested in it"},
      {"retargetObjectReferences_nested", "an entry has the items of those nested in it too"},
      {"updateObjectRequest_nested", "a task has the parameters of those nested in it too"},
      {"updateObjectResponse_nested", "a task has the parameters of those nested in it too"},
  };
  const auto found = excuses.find(name);
  return found != excuses.end() ? found->second : "";
}

using Access = DXActionHelperObjectAccess;
using Retarget = DXActionHelperRetargetObjectReferences;

/// Writing one message with as many parts.
const std::vector<CostCase> kWriters = {
    {"writers", "objectAccess", 200,
     [](std::size_t size) {
       return [keys = colliding(size, 31)] {
         Access access;
         TRNIDOM_Element element = madeElement(access);
         for (int round = 0; round < 2; ++round)
           for (const I18NString& key : keys) access.addEntry({key, "", "t"}, Access::kAllow);
       };
     }},
    {"writers", "retargetObjectReferences", 200,
     [](std::size_t size) {
       return [keys = numbered(size)] {
         Retarget retarget;
         TRNIDOM_Element element = madeElement(retarget);
         for (const I18NString& key : keys) {
           retarget.addEntry(key, "a", Retarget::ItemToUpdate{"i", 1});
           retarget.addEntry("a", key, Retarget::ItemToUpdate{"i", 1});
           retarget.addEntry("a", "a", Retarget::ItemToUpdate{key, 1});
         }
       };
     }},
    {"writers", "definitionFile", 200,
     [](std::size_t size) {
       return [lines = numbered(size)] {
         DXActionHelperIQDFile file;
         file.setContents(lines);
         madeElement(file);
       };
     }},
    {"writers", "execute", 100,
     [](std::size_t size) {
       return [names = numbered(size)] {
         QFExecuteCommandHelper command("m", nullptr);
         for (const I18NString& name : names) {
           command.AddExecuteProperty(name, name);
           command.AddQuery(name)->AddDataItem("a", "b");
         }
         madeElement(command);
       };
     }},
    {"writers", "itemsOfOneName", 100,
     [](std::size_t size) {
       return [size] {
         QFQueryHelper query("q");
         for (std::size_t i = 0; i < size; ++i) query.AddDataItem("a", "b");
         madeElement(query);
       };
     },
     "a name is compared with those of all items, which the caller may have changed"},
};

std::vector<CostCase> casesOf(const std::vector<Message>& messages) {
  std::vector<CostCase> cases = kWriters;
  for (const Message& message : messages)
    for (const Growth& growth : allGrowths()) {
      if (message.read == nullptr) continue;
      const std::string name = std::string(message.name) + "_" + growth.name;
      const auto prepare = [&message, &growth](std::size_t size) {
        static std::map<std::string, TRNIDOM_Element> marks;
        TRNIDOM_Element& example = marks[message.name];
        if (example.isNull())
          example = marked(message.make(), [&](TRNIDOM_Element element) { return reads(message, element); });
        return [&message, all = grown(example, growth, size)] {
          for (const TRNIDOM_Element& each : all) reads(message, each);
        };
      };
      const std::string excuse = excuseOf(name);
      const std::size_t size = excuse.empty() ? 50 : 20;
      cases.push_back({message.family, name, size, prepare, excuse});
    }
  return cases;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<CostCase> cases = casesOf(allMessages());
  return testCosts(argc, argv, cases);
}
