#include "store/Node.h"

namespace trnidom_detail {

I18NString joinedText(const ChildNode* first) {
  const auto textFrom = [](const ChildNode* node) {
    while (node != nullptr && !isText(node)) node = node->following();
    return node;
  };
  const ChildNode* text = textFrom(first);
  if (text == nullptr) return {};
  I18NString joined = stringOf(ownValue(text));
  while ((text = textFrom(text->following())) != nullptr) joined += stringOf(ownValue(text));
  return joined;
}

}  // namespace trnidom_detail
