#ifndef TRN_TRNSEVERITY_H
#define TRN_TRNSEVERITY_H

/// How serious a message is.
enum TRNSeverity : int {
  kSeverityFatal = 0,
  kSeverityError = 1,
  kSeverityWarning = 2,
  kSeverityInformation = 3,
  kSeverityNone = 5  ///< no message was seen
};

#endif
