#include <thread>
#include <vector>

#include "TestSupport.h"

#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>

using namespace dxmd_test;

namespace {

/// Makes, reads, copies and writes documents of its own.
std::string workAlone(int number) {
  std::string written;
  for (int round = 0; round < 20; ++round) {
    TRNIDOM_Element root = parsed("<a><b i='1'>text</b></a>");
    for (int i = 0; i < 50; ++i)
      TRNIDOM_Helper::findOrCreateElementWithAttribute(root, "b", "i", std::to_string(i + number).c_str());
    TRNIDOM_Document document = newDocument();
    document.appendChild(document.importNode(root, true));
    for (TRNIDOM_Element b : document.getElementsByTagName("b")) b.setAttribute("n", b.getAttribute("i"));
    written = xmlOf(document);
  }
  return written;
}

}  // namespace

TEST(Threads, HaveDocumentsOfTheirOwnWithoutALock) {
  constexpr int kThreads = 4;
  std::vector<std::string> written(kThreads);
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i)
    threads.emplace_back([&written, i] { written[static_cast<std::size_t>(i)] = workAlone(i); });
  for (std::thread& thread : threads) thread.join();
  for (int i = 0; i < kThreads; ++i) EXPECT_EQ(workAlone(i), written[static_cast<std::size_t>(i)]);
}

TEST(Threads, ReadOneDocumentTogether) {
  std::string xml = "<a";
  for (int i = 0; i < 40; ++i) xml += " x" + std::to_string(i) + "='v'";
  xml += ">";
  for (int i = 0; i < 40; ++i) xml += "<b n='" + std::to_string(i) + "'>t<![CDATA[d]]><c/></b>";
  xml += "</a>";
  for (int round = 0; round < 10; ++round) {
    const TRNIDOM_Element a = parsed(xml);
    std::vector<std::thread> threads;
    std::vector<std::string> read(4);
    for (std::string& all : read)
      threads.emplace_back([&a, &all] {
        const TRNIDOM_Element root = a;
        for (TRNIDOM_Node attribute : root.getAttributes())
          all += attribute.getFirstChild().getNodeValue().toUtf8() +
                 attribute.getChildNodes().item(0).getNodeName().toUtf8();
        all += root.getAttribute("x39").toUtf8() + (root.hasAttribute("x40") ? "!" : "");
        all += xmlOf(root.getAttributes().getNamedItem("x38").getLastChild().getParentNode());
        for (TRNIDOM_Element b : root.getElementsByTagName("b")) all += TRNIDOM_Helper::getElementText(b).toUtf8();
        for (std::size_t i = root.getChildNodes().getLength(); i > 0; --i)
          all += root.getChildNodes().item(i - 1).getNodeName().toUtf8();
        all += xmlOf(TRNIDOM_Helper::findChildElement(root, "b"));
        all += TRNIDOM_Helper::findChildElement(root, "absent").isNull() ? "" : "!";
        all += xmlOf(TRNIDOM_Helper::findElementWithAttribute(root, "b", "n", "39"));
        all += xmlOf(TRNIDOM_Helper::findOrCreateElementWithAttribute(root, "b", "n", "20"));
        all += xmlOf(TRNIDOM_Helper::findOrCreateElementWithText(root, "b", "td"));
        all += xmlOf(newDocument().importNode(root, true));
        all += xmlOf(root.getOwnerDocument());
      });
    for (std::thread& thread : threads) thread.join();
    for (const std::string& all : read) EXPECT_EQ(read[0], all);
    EXPECT_EQ(xml.size(), xmlOf(a.getOwnerDocument()).size());
  }
}

TEST(Threads, HandDocumentsOver) {
  TRNIDOM_Element root;
  std::thread([&root] { root = parsed("<a><b/></a>"); }).join();
  const TRNIDOM_Node kept = root;
  std::thread([root]() mutable { root.setAttribute("x", "1"); }).join();
  EXPECT_EQ("<a x=\"1\"><b/></a>", xmlOf(kept));
}
