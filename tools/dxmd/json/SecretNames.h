#ifndef TOOLS_DXMD_JSON_SECRETNAMES_H
#define TOOLS_DXMD_JSON_SECRETNAMES_H

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

// Which names are those of secrets, and where secrets stand in texts.

namespace dxmd_tool {

/// What a secret prints as.
constexpr const char* kMask = "***";

/// Whether a value under that name is a secret.
///
/// Words count, in whatever case: runs of letters and digits, parted also where a small letter is followed by a capital
/// one. A word that is or ends in "password", "passwd", "passphrase" or "pwd", and "secret", "credentials" or
/// "authorization", make a name secret wherever they stand; "ticket", "passport", "token", "pass" and keys of
/// interfaces ("apiKey", "access key") when they are last: "SSOTicket" is secret, "Ticket class" is not.
bool isSecretName(std::string_view name);

/// Whether any word of the text would make a name secret.
bool hasSecretWord(std::string_view text);

/// Whether `withSecretsReplaced` might find any: a quick look, for texts that are many.
bool mayHoldSecret(std::string_view text);

/// Replaces the secrets in a text of any sort: the values of such names behind "=" or ":" (a connection string, JSON, a
/// header, a line of a log) or between tags, and passwords as in `//user:password@host`, `user:password@host` and
/// `user/password@base`.
/// @param replace  gives what to write for the secret, which is not empty.
std::string withSecretsReplaced(const std::string& text,
                                const std::function<std::string(std::string_view secret)>& replace);

/// The text with each secret as `***`.
std::string maskedText(const std::string& text);

}  // namespace dxmd_tool

#endif
