#ifndef DXMD_CORE_EXPORT_H
#define DXMD_CORE_EXPORT_H

/// @file
/// What the helper library exports.

/// Marks what the helper library exports; everything else in it is hidden.
#define DXMD_API __attribute__((visibility("default")))

#endif
