#ifndef DXMD_QUERYSERVICE_GETSIMPLENODEVALUE_H
#define DXMD_QUERYSERVICE_GETSIMPLENODEVALUE_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>

/// @file
/// How the readers of the query service's messages read a text.

/// Reads the text of a child element: the node value of its first child, whatever that is. Of several children of that
/// name the first that is not empty counts; descendants are not searched.
/// @return whether there is one; `value` is untouched otherwise.
DXMD_API bool GetSimpleNodeValue(TRNIDOM_Element& element, const I18NString& name, I18NString& value);

#endif
