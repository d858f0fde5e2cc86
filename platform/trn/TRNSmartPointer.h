#ifndef TRN_TRNSMARTPOINTER_H
#define TRN_TRNSMARTPOINTER_H

#include <utility>

#include <trn/TRNReferenceCount.h>

/// Shares ownership of a TRNReferenceCount object, which goes with its last pointer. Nothing here throws.
///
/// Threads: one pointer is used by one thread at a time; different pointers to one object by different threads at once.
/// @tparam T  a class that derives from TRNReferenceCount.
template <typename T>
class TRNSmartPointer {
 public:
  /// The null pointer.
  TRNSmartPointer() noexcept = default;

  /// Takes a reference to an object made with `new`, or to none.
  TRNSmartPointer(T* object) noexcept : m_object(object) {  // NOLINT: implicit by design
    if (m_object != nullptr) m_object->addReference();
  }

  /// One more reference to the same object.
  TRNSmartPointer(const TRNSmartPointer& other) noexcept : TRNSmartPointer(other.m_object) {}

  /// Takes over the reference; the other pointer is null then.
  TRNSmartPointer(TRNSmartPointer&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}

  /// Refers to the other's object instead; what was referred to goes if this was its last pointer.
  TRNSmartPointer& operator=(TRNSmartPointer other) noexcept {
    std::swap(m_object, other.m_object);
    return *this;
  }
  ~TRNSmartPointer() {
    if (m_object != nullptr) m_object->removeReference();
  }

  /// Whether it refers to no object.
  bool isNull() const noexcept { return m_object == nullptr; }

  /// The object, which stays owned by its pointers; null for none.
  T* get() const noexcept { return m_object; }

  /// The object's members; there must be an object.
  T* operator->() const noexcept { return m_object; }

  /// The object; there must be one.
  T& operator*() const noexcept { return *m_object; }

  /// Whether both refer to the same object, or both to none.
  friend bool operator==(const TRNSmartPointer& left, const TRNSmartPointer& right) noexcept {
    return left.m_object == right.m_object;
  }

  /// Whether they refer to different objects.
  friend bool operator!=(const TRNSmartPointer& left, const TRNSmartPointer& right) noexcept {
    return left.m_object != right.m_object;
  }

 private:
  T* m_object = nullptr;
};

#endif
