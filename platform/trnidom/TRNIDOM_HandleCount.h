#ifndef TRNIDOM_TRNIDOM_HANDLECOUNT_H
#define TRNIDOM_TRNIDOM_HANDLECOUNT_H

#include <atomic>
#include <cstddef>

#include <trnidom/TRNIDOM_Export.h>

#if defined(__has_include)
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#define TRNIDOM_KNOWS_SINGLE_THREADED
#endif
#endif

/// Counts the handles of one document; the last one to go frees it. Not for use by itself: it is here because handles
/// are copied inline.
///
/// Counting is atomic, but a process that has only ever had one thread is spared the cost where the system tells.
class TRNIDOM_API TRNIDOM_HandleCount {
 public:
  TRNIDOM_HandleCount(const TRNIDOM_HandleCount&) = delete;
  TRNIDOM_HandleCount& operator=(const TRNIDOM_HandleCount&) = delete;

  /// Counts a handle more.
  void add() noexcept {
    if (isSingleThreaded())
      m_handles.store(m_handles.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    else
      m_handles.fetch_add(1, std::memory_order_relaxed);
  }

  /// Counts a handle less; the last one frees the document.
  void remove() noexcept {
    if (countDown() == 0) freeDocument();
  }

 protected:
  TRNIDOM_HandleCount() noexcept = default;
  ~TRNIDOM_HandleCount() = default;

 private:
  static bool isSingleThreaded() noexcept {
#if defined(TRNIDOM_KNOWS_SINGLE_THREADED)
    return __libc_single_threaded != 0;
#else
    return false;
#endif
  }

  std::size_t countDown() noexcept {
    if (!isSingleThreaded()) return m_handles.fetch_sub(1, std::memory_order_acq_rel) - 1;
    const std::size_t left = m_handles.load(std::memory_order_relaxed) - 1;
    m_handles.store(left, std::memory_order_relaxed);
    return left;
  }
  void freeDocument() noexcept;

  std::atomic<std::size_t> m_handles{0};
};

#undef TRNIDOM_KNOWS_SINGLE_THREADED

#endif
