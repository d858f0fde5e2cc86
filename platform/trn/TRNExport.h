#ifndef TRN_TRNEXPORT_H
#define TRN_TRNEXPORT_H

/// @file
/// What the core library exports.

/// Marks what the core library exports; everything else in it is hidden.
#define TRN_API __attribute__((visibility("default")))

#endif
