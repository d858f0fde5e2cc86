#ifndef TRNIDOM_TRNIDOM_DOCUMENTTYPE_H
#define TRNIDOM_TRNIDOM_DOCUMENTTYPE_H

#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_Node.h>

/// A handle to a document type: always null, since no document here has one.
class TRNIDOM_API TRNIDOM_DocumentType : public TRNIDOM_Node {};

#endif
