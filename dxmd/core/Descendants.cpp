#include <dxmd/core/Descendants.h>

#include <algorithm>
#include <utility>

#include <dxmd/core/Nodes.h>

namespace dxmd {

Descendants::Descendants(const TRNIDOM_Element& root, std::initializer_list<FixedText> names)
    : m_root{root, 0, 1}, m_found(names.size()) {
  if (!isElement(root)) return;

  // A stack of the found elements whose subtree the walk is in.
  struct Open {
    std::size_t depth;
    std::size_t name;
    std::size_t index;
  };
  std::vector<Open> open;
  std::size_t& position = m_root.end;
  std::size_t depth = 0;

  const auto enter = [&](const TRNIDOM_Node& node) {
    if (!isElement(node)) return;
    const I18NString nodeName = node.getNodeName();
    const auto name = std::find_if(names.begin(), names.end(), [&](FixedText text) { return text.text() == nodeName; });
    if (name == names.end()) return;
    const auto which = static_cast<std::size_t>(name - names.begin());
    open.push_back({depth, which, m_found[which].size()});
    m_found[which].push_back({node, position, position + 1});
    ++position;
  };
  const auto leave = [&] {
    if (open.empty() || open.back().depth != depth) return;
    m_found[open.back().name][open.back().index].end = position;
    open.pop_back();
  };

  TRNIDOM_Node node = root.getFirstChild();
  while (!node.isNull()) {
    enter(node);
    TRNIDOM_Node next = node.getFirstChild();
    if (!next.isNull()) {
      ++depth;
    } else {
      leave();
      next = node.getNextSibling();
      for (; next.isNull() && depth != 0; next = node.getNextSibling()) {
        node = node.getParentNode();
        --depth;
        leave();
      }
    }
    node = std::move(next);
  }
}

Descendants::Range Descendants::below(const Found& ancestor, std::size_t name) const {
  const std::vector<Found>& found = m_found[name];
  const auto precedes = [](const Found& one, std::size_t position) { return one.position < position; };
  const auto begin = std::lower_bound(found.begin(), found.end(), ancestor.position + 1, precedes);
  return {begin, std::lower_bound(begin, found.end(), ancestor.end, precedes)};
}

}  // namespace dxmd
