#ifndef TRN_TRNSEVERITY_H
#define TRN_TRNSEVERITY_H

/// How serious a message is; the smaller value is the more serious one.
enum TRNSeverity : int {
  kSeverityFatal = 0,
  kSeverityError = 1,
  kSeverityWarning = 2,
  kSeverityInformation = 3,
  kSeverityNone = 5  ///< no message was seen
};

#endif
