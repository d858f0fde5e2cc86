#ifndef TRN_TRNREFERENCECOUNT_H
#define TRN_TRNREFERENCECOUNT_H

/// Base of objects shared through TRNSmartPointer. A copy starts a count of its own; assignment leaves the count as it
/// is. Counting is safe from several threads at once.
class TRNReferenceCount {
 public:
  /// An object without references.
  TRNReferenceCount();

  /// An object of its own, without references.
  TRNReferenceCount(const TRNReferenceCount&);

  /// Leaves the count as it is.
  TRNReferenceCount& operator=(const TRNReferenceCount&);
  virtual ~TRNReferenceCount();
};

#endif
