#ifndef TRNIDOM_STORE_REFUSAL_H
#define TRNIDOM_STORE_REFUSAL_H

#include <string>

#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_Node.h>

#include "store/Document.h"

namespace trnidom_detail {

/// Why a change is refused, in the store's words. Public operations turn it into a TRNIDOM_DOMException that says what
/// was tried on which node.
struct Refusal {
  TRNIDOM_DOMException::Code code;
  std::string because;
};

/// What an error's text calls a node, with its names but without its values.
std::string describe(const Node* node);

[[noreturn]] void throwRefused(const Refusal& refusal, const char* operation, const Node* on);

/// Does the work of a public operation on that node.
/// @throws TRNIDOM_DOMException for a Refusal.
template <typename Work>
auto attempt(const char* operation, const TRNIDOM_Node& on, Work work) {
  try {
    return work();
  } catch (const Refusal& refusal) {
    throwRefused(refusal, operation, Access::node(on));
  }
}

}  // namespace trnidom_detail

#endif
