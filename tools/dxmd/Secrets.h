#ifndef TOOLS_DXMD_SECRETS_H
#define TOOLS_DXMD_SECRETS_H

#include <string>
#include <string_view>

#include <tools/dxmd/Kind.h>
#include <tools/dxmd/json/Json.h>

// Passwords, passports and tickets, which print as `***`.
//
// A value is a secret when its key, or the key of something around it, is the name of one: a name in which "password",
// "passwd", "pwd", "passport" or "ticket" occurs, in whatever case, or one that the kind declares. So is the "value" of
// an object whose "name" is such a name. In a text of XML, the elements and attributes of such names are hidden, and
// all below such elements. In every other text, a connection string or not, what follows such a name and "=" is hidden.

namespace dxmd_tool {

/// Whether that is the name of a secret in any kind.
bool isSecretName(std::string_view name);

/// The text without the values of parameters that are secrets, as a connection string has them.
std::string maskedParameters(const std::string& text);

/// Hides the secrets in decoded JSON, which must not nest deeper than `kMaxJsonDepth`.
void maskSecrets(Json& json, const Kind& kind);

}  // namespace dxmd_tool

#endif
