#ifndef DXMD_RESOURCES_DXMD_ACTIONHELPER_RESOURCES_H
#define DXMD_RESOURCES_DXMD_ACTIONHELPER_RESOURCES_H

#include <trn/I18NString.h>

#include <dxmd/core/Export.h>

/// The vocabulary: the names and fixed texts that all helpers share, by index.
namespace dxmd_actionhelper_resources {

/// The text of an entry, built on first use and kept until the process ends; the same object at each call. An
/// exception while it is built leaves the entry for a later call to build.
///
/// Threads: safe from any number of threads at once.
/// @param index  an entry of `vocabulary.def`; not checked.
DXMD_API const I18NString& getString(long index);

}  // namespace dxmd_actionhelper_resources

#endif
