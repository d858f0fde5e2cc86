#ifndef TRNIDOM_STORE_SHAREDNAMES_H
#define TRNIDOM_STORE_SHAREDNAMES_H

#include <cstddef>

#include "store/Names.h"
#include "text/Text.h"

/// Names that programs create nodes with, kept for all documents of the process, so that a small document need not
/// check and store the same few again. There is room for a few hundred short ones, none of which ever goes; names that
/// are only parsed do not come here. Safe from any thread, without a lock.
namespace trnidom_detail::shared_names {

/// The name of that quick hash, or null when it is not kept. A name that is kept is valid.
const Name* find(Text name, std::size_t quick) noexcept;

/// Keeps a valid name, whose hashes are given, if there is room for it, and gives it; null when there is none.
const Name* keep(Text name, std::size_t quick, std::size_t hash) noexcept;

}  // namespace trnidom_detail::shared_names

#endif
