#ifndef TRNIDOM_TRNIDOM_DOCUMENTTYPE_H
#define TRNIDOM_TRNIDOM_DOCUMENTTYPE_H

#include <trnidom/TRNIDOM_Node.h>

/// A handle to a document type; the helpers only ever pass the null one.
class TRNIDOM_DocumentType : public TRNIDOM_Node {
 public:
  /// The null handle.
  TRNIDOM_DocumentType();
};

#endif
