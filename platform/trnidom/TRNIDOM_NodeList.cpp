#include <trnidom/TRNIDOM_NodeList.h>

#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "Control.h"
#include "ListRecord.h"
#include "NodeOps.h"
#include "Text.h"
#include "Tree.h"

using namespace trnidom_detail;
using xercesc::DOMNode;

namespace {

/// Where the end of a list stands, however long the list is by then.
constexpr std::size_t kEnd = std::numeric_limits<std::size_t>::max();

}  // namespace

/// What the copies of one list share: the nodes found so far and where the search stands. A change of the document's
/// structure starts it anew.
struct trnidom_detail::ListRecord {
  explicit ListRecord(const TRNIDOM_Node& node) : root(node), children(true), every(false), matches(Text()) {}
  ListRecord(const TRNIDOM_Node& node, const I18NString& tagName)
      : root(node), name(tagName), children(false), every(textOf(name) == u"*"), matches(textOf(name)) {}

  /// Searches on until there are more nodes than `index`, or no more. Gives the node there, or null.
  DOMNode* at(std::size_t index) {
    const std::uint64_t structure = Access::control(root)->structure;
    if (!started || structure != seen) {
      seen = structure;
      started = true;
      nodes.clear();
      next = ops::firstChild(Access::node(root));
    }
    while (nodes.size() <= index && next != nullptr) {
      if (wanted(next)) nodes.push_back(next);
      next = children ? ops::nextSibling(next) : nextBelow(Access::node(root), next);
    }
    return index < nodes.size() ? nodes[index] : nullptr;
  }

  std::atomic<std::size_t> references{1};
  const TRNIDOM_Node root;
  std::vector<DOMNode*> nodes;

 private:
  bool wanted(const DOMNode* node) {
    if (children) return true;
    return node->getNodeType() == DOMNode::ELEMENT_NODE && (every || matches(ops::name(node)));
  }

  const I18NString name;
  const bool children;
  const bool every;
  NameMatcher matches;
  bool started = false;
  std::uint64_t seen = 0;
  DOMNode* next = nullptr;
};

TRNIDOM_NodeList Access::list(ListRecord* record) noexcept {
  return TRNIDOM_NodeList(record);
}

TRNIDOM_NodeList trnidom_detail::childList(const TRNIDOM_Node& root) {
  return Access::list(new ListRecord(root));
}

TRNIDOM_NodeList trnidom_detail::descendantList(const TRNIDOM_Node& root, const I18NString& name) {
  return Access::list(new ListRecord(root, name));
}

TRNIDOM_NodeList::TRNIDOM_NodeList(const TRNIDOM_NodeList& other) noexcept : m_record(other.m_record) {
  if (m_record != nullptr) m_record->references.fetch_add(1, std::memory_order_relaxed);
}

TRNIDOM_NodeList::TRNIDOM_NodeList(TRNIDOM_NodeList&& other) noexcept
    : m_record(std::exchange(other.m_record, nullptr)) {}

TRNIDOM_NodeList& TRNIDOM_NodeList::operator=(TRNIDOM_NodeList other) noexcept {
  std::swap(m_record, other.m_record);
  return *this;
}

TRNIDOM_NodeList::~TRNIDOM_NodeList() {
  if (m_record != nullptr && m_record->references.fetch_sub(1, std::memory_order_acq_rel) == 1) delete m_record;
}

std::size_t TRNIDOM_NodeList::getLength() const {
  if (m_record == nullptr) return 0;
  m_record->at(kEnd);
  return m_record->nodes.size();
}

TRNIDOM_Node TRNIDOM_NodeList::item(std::size_t index) const {
  return m_record != nullptr ? Access::handle(m_record->at(index), m_record->root) : TRNIDOM_Node();
}

TRNIDOM_NodeList::iterator TRNIDOM_NodeList::begin() const {
  return {this, 0};
}

TRNIDOM_NodeList::iterator TRNIDOM_NodeList::end() const {
  return {this, iterator::kEnd};
}

bool TRNIDOM_NodeList::isAtEnd(std::size_t index) const {
  return m_record == nullptr || m_record->at(index) == nullptr;
}
