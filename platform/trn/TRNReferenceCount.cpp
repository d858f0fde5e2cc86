#include <trn/TRNReferenceCount.h>

TRNReferenceCount::~TRNReferenceCount() = default;
