#ifndef TOOLS_DXMD_SECRETS_H
#define TOOLS_DXMD_SECRETS_H

#include <string>

#include <trnidom/TRNIDOM_Node.h>

#include <tools/dxmd/json/JsonFwd.h>
#include <tools/dxmd/json/SecretNames.h>
#include <tools/dxmd/shape/Description.h>

// Passwords, passports, tickets and the like, which print as `***`.
//
// A value is a secret when its key, or the key of something around it, is the name of one (see json/SecretNames.h), or
// the kind's description says so. So is the "value" of an object whose "name" is such a name. In a text of XML, the
// elements and attributes of such names are hidden, and all below such elements. In every other text, a connection
// string or not, secrets are found by what stands around them.

namespace dxmd_tool {

/// The text as it may be shown: of XML, or any other.
std::string shownText(const std::string& text);

/// Hides the secrets in decoded JSON, which must not nest deeper than `kMaxJsonDepth`.
/// @param record  describes it; null when there is no description.
void maskSecrets(Json& json, const DescribedRecord* record);

/// Hides those in a tree of XML, its comments included.
void maskSecrets(const TRNIDOM_Node& root);

/// Whether there is any, but for empty ones.
bool holdsSecrets(const Json& json, const DescribedRecord* record);
bool holdsSecrets(const TRNIDOM_Node& root);

/// Refuses JSON that has `***` where a secret belongs: it was decoded without them.
/// @throws JsonError
void refuseMasks(const Json& json, const DescribedRecord* record, const std::string& source);

/// Why.
constexpr const char* kMaskRefusal =
    "*** stands where a secret belongs: give the secret itself (dxmd decode --show-secrets prints it)";

}  // namespace dxmd_tool

#endif
