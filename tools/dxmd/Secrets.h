#ifndef TOOLS_DXMD_SECRETS_H
#define TOOLS_DXMD_SECRETS_H

#include <string>

#include <tools/dxmd/json/JsonFwd.h>
#include <tools/dxmd/shape/Description.h>

// Passwords, passports and tickets, which print as `***`.
//
// A value is a secret when its key, or the key of something around it, is the name of one (see json/SecretNames.h), or
// the kind's description says so. So is the "value" of an object whose "name" is such a name. In a text of XML, the
// elements and attributes of such names are hidden, and all below such elements. In every other text, a connection
// string or not, what follows such a name and "=" is hidden.

namespace dxmd_tool {

/// The text without the values of parameters that are secrets, as a connection string has them.
std::string maskedParameters(const std::string& text);

/// Hides the secrets in decoded JSON, which must not nest deeper than `kMaxJsonDepth`.
/// @param record  describes it; null when there is no description.
void maskSecrets(Json& json, const DescribedRecord* record);

}  // namespace dxmd_tool

#endif
