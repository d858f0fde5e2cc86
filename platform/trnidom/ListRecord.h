#ifndef TRNIDOM_LISTRECORD_H
#define TRNIDOM_LISTRECORD_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Node.h>
#include <trnidom/TRNIDOM_NodeList.h>

namespace trnidom_detail {

/// The children of a node, live.
TRNIDOM_NodeList childList(const TRNIDOM_Node& root);

/// The elements of that name below a node, live; "*" stands for every name.
TRNIDOM_NodeList descendantList(const TRNIDOM_Node& root, const I18NString& name);

}  // namespace trnidom_detail

#endif
