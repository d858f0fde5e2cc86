#ifndef TRN_TRNREFERENCECOUNT_H
#define TRN_TRNREFERENCECOUNT_H

#include <atomic>
#include <cstddef>

#include <trn/TRNExport.h>

/// Base of objects shared through TRNSmartPointer, which counts the references and deletes the object with the last
/// one: what is shared is made with `new` and not deleted by hand.
///
/// Threads: counting is atomic, so that pointers to one object may be copied and dropped by several threads at once.
/// The object itself needs what protection its class says.
class TRN_API TRNReferenceCount {
 public:
  /// An object without references.
  TRNReferenceCount() noexcept = default;

  /// A copy is an object of its own, without references.
  TRNReferenceCount(const TRNReferenceCount&) noexcept {}

  /// Leaves the count as it is: who refers to the object does not change.
  TRNReferenceCount& operator=(const TRNReferenceCount&) noexcept { return *this; }
  virtual ~TRNReferenceCount();

  /// Counts one more reference. For TRNSmartPointer.
  void addReference() const noexcept { m_count.fetch_add(1, std::memory_order_relaxed); }

  /// Gives up one reference; the last one deletes the object. For TRNSmartPointer.
  void removeReference() const noexcept {
    if (m_count.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }

 private:
  mutable std::atomic<std::size_t> m_count{0};
};

#endif
