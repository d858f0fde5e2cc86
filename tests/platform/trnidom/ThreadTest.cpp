#include <thread>
#include <vector>

#include "TestSupport.h"

#include <trnidom/TRNIDOM_Helper.h>
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

TEST(Threads, HandDocumentsOver) {
  TRNIDOM_Element root;
  std::thread([&root] { root = parsed("<a><b/></a>"); }).join();
  const TRNIDOM_Node kept = root;
  std::thread([root]() mutable { root.setAttribute("x", "1"); }).join();
  EXPECT_EQ("<a x=\"1\"><b/></a>", xmlOf(kept));
}
