#include "InstructionCount.h"

#include <string>
#include <vector>

#include "Growth.h"
#include "TestSupport.h"

#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>
#include <trnidom/TRNIDOM_Parser.h>

// Each of these has been quadratic, or is where a DOM easily is. A new case is one line.

using namespace dxmd_test;
using Helper = TRNIDOM_Helper;

namespace {

using Work = std::function<void()>;
using Strings = std::vector<I18NString>;

Strings reversed(const Strings& texts) {
  return {texts.rbegin(), texts.rend()};
}

std::string repeated(const std::string& text, std::size_t count) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

Work parsing(const std::string& xml) {
  return [xml] { parsed(xml); };
}

Work parsingElements(const Strings& names) {
  std::string xml;
  for (const I18NString& name : names) xml += "<" + name.toUtf8() + "/>";
  return parsing("<a>" + xml + "</a>");
}

Work parsingAttributes(const Strings& names) {
  std::string xml;
  for (const I18NString& name : names) xml += " " + name.toUtf8() + "=''";
  return parsing("<a" + xml + "/>");
}

/// Work on an empty element, with texts.
template <typename Action>
Work on(const Strings& texts, Action action) {
  return [texts, root = newDocument().getDocumentElement(), action]() mutable { action(root, texts); };
}

/// Work on an element with children of those keys, of which it has found one already.
template <typename Action>
Work onChildren(const Strings& keys, Action action) {
  return on(keys, [action](TRNIDOM_Element& root, const Strings& texts) {
    for (const I18NString& key : texts) Helper::findOrCreateElementWithAttribute(root, "c", "k", key);
    action(root, texts);
  });
}

TRNIDOM_Element byKey(const TRNIDOM_Element& root, const I18NString& key) {
  return Helper::findOrCreateElementWithAttribute(root, "c", "k", key);
}

void setAttributes(TRNIDOM_Element& element, const Strings& names) {
  for (const I18NString& name : names) element.setAttribute(name, name);
}

void readBackward(const TRNIDOM_NodeList& list) {
  for (std::size_t i = list.getLength(); i > 0; --i) list.item(i - 1);
}

const std::vector<CostCase> kCases = {
    {"Parser", "ParseAttributesOfOneElement", 2000, [](std::size_t n) { return parsingAttributes(numbered(n)); }},
    {"Parser", "ParseDistinctNames", 2000, [](std::size_t n) { return parsingElements(numbered(n)); }},
    {"Parser", "ParseCollidingNames31", 1000, [](std::size_t n) { return parsingElements(colliding(n, 31)); }},
    {"Parser", "ParseCollidingNames33", 1000, [](std::size_t n) { return parsingElements(colliding(n, 33)); }},
    {"Parser", "ParseCollidingNames37", 1000, [](std::size_t n) { return parsingElements(colliding(n, 37)); }},
    {"Parser", "ParseCollidingAttributes", 1000, [](std::size_t n) { return parsingAttributes(colliding(n, 31)); }},
    {"Parser", "ParseDeep", 2000, [](std::size_t n) { return parsing(repeated("<a>", n) + repeated("</a>", n)); }},
    {"Parser", "ParseReferences", 5000, [](std::size_t n) { return parsing("<a>" + repeated("&amp;", n) + "</a>"); }},
    {"Parser", "ParseOneText", 400000, [](std::size_t n) { return parsing("<a>" + repeated("x", n) + "</a>"); }},
    {"Parser", "ParseOneAttribute", 400000, [](std::size_t n) { return parsing("<a b='" + repeated("x", n) + "'/>"); }},
    {"Parser", "ParseOneComment", 400000,
     [](std::size_t n) { return parsing("<a><!--" + repeated("x", n) + "--></a>"); }},
    {"Tree", "FindOrCreate", 500,
     [](std::size_t n) {
       return on(numbered(n), [](const TRNIDOM_Element& root, const Strings& keys) {
         for (int round = 0; round < 2; ++round)
           for (const I18NString& key : keys) {
             byKey(root, key).setAttribute("other", key);
             TRNIDOM_Node line = Helper::findOrCreateElementWithText(root, "line", key);
             line.getFirstChild().setNodeValue(key);
             Helper::findOrCreateElement(root, key);
           }
       });
     }},
    {"Tree", "FindOrCreateByCollidingKeys31", 500,
     [](std::size_t n) { return onChildren(colliding(n, 31), [](const TRNIDOM_Element&, const Strings&) {}); }},
    {"Tree", "FindOrCreateByCollidingKeys37", 500,
     [](std::size_t n) { return onChildren(colliding(n, 37), [](const TRNIDOM_Element&, const Strings&) {}); }},
    {"Tree", "FillInAnEmptyKey", 500,
     [](std::size_t n) {
       return on(numbered(n), [](const TRNIDOM_Element& root, const Strings& keys) {
         for (const I18NString& key : keys) {
           byKey(root, "").setAttribute("k", key);
           TRNIDOM_Element line = Helper::findOrCreateElementWithText(root, "line", "");
           line.appendChild(line.getOwnerDocument().createTextNode(key));
         }
       });
     }},
    {"Tree", "FindAndRemove", 500,
     [](std::size_t n) {
       return onChildren(numbered(n), [](TRNIDOM_Element& root, const Strings& keys) {
         for (const I18NString& key : keys) root.removeChild(byKey(root, key));
       });
     }},
    {"Tree", "FindAndRemoveFromTheEnd", 500,
     [](std::size_t n) {
       return onChildren(numbered(n), [](TRNIDOM_Element& root, const Strings& keys) {
         for (std::size_t i = keys.size(); i > 0; --i) root.removeChild(byKey(root, keys[i - 1]));
       });
     }},
    {"Tree", "ChangeOneKeyAndFindAnother", 500,
     [](std::size_t n) {
       return onChildren(numbered(n), [](const TRNIDOM_Element& root, const Strings& keys) {
         TRNIDOM_Element first = root.getFirstChild();
         for (const I18NString& key : keys) {
           first.setAttribute("k", key + "x");
           byKey(root, key + "y");
           Helper::findChildElement(root, "absent");
         }
       });
     }},
    {"Tree", "SetAttributesInDescendingOrder", 1000,
     [](std::size_t n) { return on(reversed(numbered(n)), setAttributes); }},
    {"Tree", "SetReadAndRemoveAttributes", 1000,
     [](std::size_t n) {
       return on(colliding(n, 31), [](TRNIDOM_Element& root, const Strings& names) {
         setAttributes(root, names);
         for (const I18NString& name : names) root.getAttributes().getNamedItem(name).getFirstChild();
         for (TRNIDOM_Node attribute : root.getAttributes()) attribute.setNodeValue("x");
         for (const I18NString& name : names) root.removeAttribute(name);
       });
     }},
    {"Tree", "ReadListsBackwardAndForward", 500,
     [](std::size_t n) {
       return [a = parsed("<a>" + repeated("<b/>t", n) + "</a>")] {
         for (const TRNIDOM_NodeList& list :
              {a.getChildNodes(), a.getElementsByTagName("b"), a.getElementsByTagName("*")}) {
           readBackward(list);
           for (std::size_t i = 0; i < list.getLength(); ++i) TRNIDOM_Element(list.item(i)).setNodeValue("x");
         }
       };
     }},
    {"Tree", "AppendInALoopOverChildren", 500,
     [](std::size_t n) {
       return on(numbered(n), [](TRNIDOM_Element& root, const Strings& texts) {
         const TRNIDOM_NodeList children = root.getChildNodes();
         for (std::size_t i = 0; i < texts.size(); ++i) {
           root.appendChild(root.getOwnerDocument().createTextNode(texts[i]));
           children.item(i);
         }
       });
     }},
};

}  // namespace

int main(int argc, char** argv) {
  return testCosts(argc, argv, kCases);
}
