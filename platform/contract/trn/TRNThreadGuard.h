#ifndef TRN_TRNTHREADGUARD_H
#define TRN_TRNTHREADGUARD_H

#include <trn/TRNThreadCriticalSection.h>

/// Enters a critical section, waiting while another thread is inside, and leaves it when destroyed.
class TRNThreadGuard {
 public:
  /// Enters the section, which must outlive the guard.
  explicit TRNThreadGuard(TRNThreadCriticalSection& section);
  ~TRNThreadGuard();

  TRNThreadGuard(const TRNThreadGuard&) = delete;
  TRNThreadGuard& operator=(const TRNThreadGuard&) = delete;
};

#endif
