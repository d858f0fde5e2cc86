#ifndef TRNIDOM_TRNIDOM_EXPORT_H
#define TRNIDOM_TRNIDOM_EXPORT_H

/// @file
/// What the DOM wrapper exports.

/// Marks what the DOM wrapper exports; everything else in it is hidden.
#define TRNIDOM_API __attribute__((visibility("default")))

#endif
