#ifndef TRN_TRNTHREADGUARD_H
#define TRN_TRNTHREADGUARD_H

#include <trn/TRNExport.h>
#include <trn/TRNThreadCriticalSection.h>

/// Holds a critical section from its construction until `release()` or its destruction.
class TRN_API TRNThreadGuard {
 public:
  /// Enters the section, waiting while another thread is inside.
  /// @param section  must outlive the guard; not already held by this thread.
  explicit TRNThreadGuard(TRNThreadCriticalSection& section) : m_section(&section) { m_section->enter(); }

  /// Leaves the section unless it was left already.
  ~TRNThreadGuard() { release(); }

  TRNThreadGuard(const TRNThreadGuard&) = delete;
  TRNThreadGuard& operator=(const TRNThreadGuard&) = delete;

  /// Leaves the critical section early; does nothing when it was left already.
  void release() noexcept {
    if (m_section != nullptr) m_section->leave();
    m_section = nullptr;
  }

 private:
  TRNThreadCriticalSection* m_section;
};

#endif
