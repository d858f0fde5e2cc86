#include "InstructionCount.h"

#include <string>
#include <vector>

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

/// As many texts, "n0" and so on.
Strings numbered(std::size_t count) {
  Strings all;
  for (std::size_t i = 0; i < count; ++i) all.push_back(("n" + std::to_string(i)).c_str());
  return all;
}

/// As many texts that the hash h = h * factor + c, which Java (31), many libraries (33) and ICU (37) have, does not
/// tell apart.
Strings colliding(std::size_t count, char factor) {
  const std::string pairs[] = {"ay", {'b', static_cast<char>('y' - factor)}};
  Strings all;
  for (std::size_t i = 0; i < count; ++i) {
    std::string text;
    for (std::size_t bit = 0; bit < 16; ++bit) text += pairs[i >> bit & 1];
    all.push_back(text.c_str());
  }
  return all;
}

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
    {"ParseAttributesOfOneElement", 2000, [](std::size_t n) { return parsingAttributes(numbered(n)); }},
    {"ParseDistinctNames", 2000, [](std::size_t n) { return parsingElements(numbered(n)); }},
    {"ParseCollidingNames31", 1000, [](std::size_t n) { return parsingElements(colliding(n, 31)); }},
    {"ParseCollidingNames33", 1000, [](std::size_t n) { return parsingElements(colliding(n, 33)); }},
    {"ParseCollidingNames37", 1000, [](std::size_t n) { return parsingElements(colliding(n, 37)); }},
    {"ParseCollidingAttributes", 1000, [](std::size_t n) { return parsingAttributes(colliding(n, 31)); }},
    {"ParseDeep", 2000, [](std::size_t n) { return parsing(repeated("<a>", n) + repeated("</a>", n)); }},
    {"ParseReferences", 5000, [](std::size_t n) { return parsing("<a>" + repeated("&amp;", n) + "</a>"); }},
    {"ParseOneText", 400000, [](std::size_t n) { return parsing("<a>" + repeated("x", n) + "</a>"); }},
    {"ParseOneAttribute", 400000, [](std::size_t n) { return parsing("<a b='" + repeated("x", n) + "'/>"); }},
    {"ParseOneComment", 400000, [](std::size_t n) { return parsing("<a><!--" + repeated("x", n) + "--></a>"); }},
    {"FindOrCreate", 500,
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
    {"FindOrCreateByCollidingKeys31", 500,
     [](std::size_t n) { return onChildren(colliding(n, 31), [](const TRNIDOM_Element&, const Strings&) {}); }},
    {"FindOrCreateByCollidingKeys37", 500,
     [](std::size_t n) { return onChildren(colliding(n, 37), [](const TRNIDOM_Element&, const Strings&) {}); }},
    {"FillInAnEmptyKey", 500,
     [](std::size_t n) {
       return on(numbered(n), [](const TRNIDOM_Element& root, const Strings& keys) {
         for (const I18NString& key : keys) {
           byKey(root, "").setAttribute("k", key);
           TRNIDOM_Element line = Helper::findOrCreateElementWithText(root, "line", "");
           line.appendChild(line.getOwnerDocument().createTextNode(key));
         }
       });
     }},
    {"FindAndRemove", 500,
     [](std::size_t n) {
       return onChildren(numbered(n), [](TRNIDOM_Element& root, const Strings& keys) {
         for (const I18NString& key : keys) root.removeChild(byKey(root, key));
       });
     }},
    {"FindAndRemoveFromTheEnd", 500,
     [](std::size_t n) {
       return onChildren(numbered(n), [](TRNIDOM_Element& root, const Strings& keys) {
         for (std::size_t i = keys.size(); i > 0; --i) root.removeChild(byKey(root, keys[i - 1]));
       });
     }},
    {"ChangeOneKeyAndFindAnother", 500,
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
    {"SetAttributesInDescendingOrder", 1000, [](std::size_t n) { return on(reversed(numbered(n)), setAttributes); }},
    {"SetReadAndRemoveAttributes", 1000,
     [](std::size_t n) {
       return on(colliding(n, 31), [](TRNIDOM_Element& root, const Strings& names) {
         setAttributes(root, names);
         for (const I18NString& name : names) root.getAttributes().getNamedItem(name).getFirstChild();
         for (TRNIDOM_Node attribute : root.getAttributes()) attribute.setNodeValue("x");
         for (const I18NString& name : names) root.removeAttribute(name);
       });
     }},
    {"ReadListsBackwardAndForward", 500,
     [](std::size_t n) {
       return [a = parsed("<a>" + repeated("<b/>t", n) + "</a>")] {
         for (const TRNIDOM_NodeList& list :
              {a.getChildNodes(), a.getElementsByTagName("b"), a.getElementsByTagName("*")}) {
           readBackward(list);
           for (std::size_t i = 0; i < list.getLength(); ++i) TRNIDOM_Element(list.item(i)).setNodeValue("x");
         }
       };
     }},
    {"AppendInALoopOverChildren", 500,
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
