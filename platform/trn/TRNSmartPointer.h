#ifndef TRN_TRNSMARTPOINTER_H
#define TRN_TRNSMARTPOINTER_H

#include <utility>

#include <trn/TRNReferenceCount.h>

/// Shares ownership of a TRNReferenceCount object, which goes with its last pointer.
template <typename T>
class TRNSmartPointer {
 public:
  TRNSmartPointer() noexcept = default;

  /// Takes a reference to the object, which may be null.
  TRNSmartPointer(T* object) noexcept : m_object(object) {  // NOLINT: implicit by design
    if (m_object != nullptr) m_object->addReference();
  }
  TRNSmartPointer(const TRNSmartPointer& other) noexcept : TRNSmartPointer(other.m_object) {}
  TRNSmartPointer(TRNSmartPointer&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
  TRNSmartPointer& operator=(TRNSmartPointer other) noexcept {
    std::swap(m_object, other.m_object);
    return *this;
  }
  ~TRNSmartPointer() {
    if (m_object != nullptr) m_object->removeReference();
  }

  bool isNull() const noexcept { return m_object == nullptr; }
  T* get() const noexcept { return m_object; }
  T* operator->() const noexcept { return m_object; }
  T& operator*() const noexcept { return *m_object; }

  friend bool operator==(const TRNSmartPointer& left, const TRNSmartPointer& right) noexcept {
    return left.m_object == right.m_object;
  }
  friend bool operator!=(const TRNSmartPointer& left, const TRNSmartPointer& right) noexcept {
    return left.m_object != right.m_object;
  }

 private:
  T* m_object = nullptr;
};

#endif
