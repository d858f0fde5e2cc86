#ifndef TRN_TRNTHREADCRITICALSECTION_H
#define TRN_TRNTHREADCRITICALSECTION_H

#include <mutex>

#include <trn/TRNExport.h>

/// A non-recursive mutex, entered through a TRNThreadGuard. A static one needs no code at load.
class TRN_API TRNThreadCriticalSection {
 public:
  /// @param option  kind of lock; every value selects the same one.
  explicit constexpr TRNThreadCriticalSection(int option = 0) noexcept { static_cast<void>(option); }

  TRNThreadCriticalSection(const TRNThreadCriticalSection&) = delete;
  TRNThreadCriticalSection& operator=(const TRNThreadCriticalSection&) = delete;

  /// Waits until no other thread is inside. Entering twice from one thread is a deadlock.
  void enter() { m_mutex.lock(); }

  /// Lets the next thread in. For the thread that is inside.
  void leave() noexcept { m_mutex.unlock(); }

 private:
  std::mutex m_mutex;
};

#endif
