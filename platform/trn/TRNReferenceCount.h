#ifndef TRN_TRNREFERENCECOUNT_H
#define TRN_TRNREFERENCECOUNT_H

#include <atomic>
#include <cstddef>

#include <trn/TRNExport.h>

/// Base of objects shared through TRNSmartPointer. Counting is atomic; a copy starts its own count.
class TRN_API TRNReferenceCount {
 public:
  TRNReferenceCount() noexcept = default;
  TRNReferenceCount(const TRNReferenceCount&) noexcept {}
  TRNReferenceCount& operator=(const TRNReferenceCount&) noexcept { return *this; }
  virtual ~TRNReferenceCount();

  void addReference() const noexcept { m_count.fetch_add(1, std::memory_order_relaxed); }

  /// Gives up one reference; the last one deletes the object.
  void removeReference() const noexcept {
    if (m_count.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }

 private:
  mutable std::atomic<std::size_t> m_count{0};
};

#endif
