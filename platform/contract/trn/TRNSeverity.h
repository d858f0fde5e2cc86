#ifndef TRN_TRNSEVERITY_H
#define TRN_TRNSEVERITY_H

/// @file
/// The severities of a service's messages.

/// How serious a message is.
enum TRNSeverity : int {
  kSeverityFatal = 0,        ///< told as "fatal"
  kSeverityError = 1,        ///< told as "error"
  kSeverityWarning = 2,      ///< told as "warning"
  kSeverityInformation = 3,  ///< told as "information"
  kSeverityNone = 5          ///< no message was seen
};

#endif
