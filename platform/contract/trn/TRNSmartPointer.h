#ifndef TRN_TRNSMARTPOINTER_H
#define TRN_TRNSMARTPOINTER_H

#include <trn/TRNReferenceCount.h>

/// Shares ownership of a TRNReferenceCount object, which is deleted with its last pointer.
template <typename T>
class TRNSmartPointer {
 public:
  /// The null pointer. Does not throw.
  TRNSmartPointer();

  /// Takes a reference to an object made with `new`; null is allowed. Implicit.
  TRNSmartPointer(T* object);

  /// One more reference to the same object.
  TRNSmartPointer(const TRNSmartPointer& other);

  /// Refers to the other's object instead; what was referred to goes if this was its last pointer.
  TRNSmartPointer& operator=(const TRNSmartPointer& other);
  ~TRNSmartPointer();
};

#endif
