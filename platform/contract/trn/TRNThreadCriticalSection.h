#ifndef TRN_TRNTHREADCRITICALSECTION_H
#define TRN_TRNTHREADCRITICALSECTION_H

/// A mutex that need not be recursive. The helper library's locks are static objects: one may be entered as soon as the
/// library is loaded.
class TRNThreadCriticalSection {
 public:
  /// @param option  kind of lock. The helper library gives 0.
  explicit TRNThreadCriticalSection(int option);
  ~TRNThreadCriticalSection();

  TRNThreadCriticalSection(const TRNThreadCriticalSection&) = delete;
  TRNThreadCriticalSection& operator=(const TRNThreadCriticalSection&) = delete;
};

#endif
