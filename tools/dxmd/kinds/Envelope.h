#ifndef TOOLS_DXMD_KINDS_ENVELOPE_H
#define TOOLS_DXMD_KINDS_ENVELOPE_H

#include <optional>

#include <trn/I18NLocale.h>

#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>

// What every command's JSON may hold beside the command proper, for kinds that map by hand.

namespace dxmd_tool {

/// Reads "commandID", "requestID" and "connection" into the command.
void readEnvelope(JsonObject& json, QFCommandHelper& command);

/// Reads the same, "queryLocale" and "queryFeedback" into a modelling command.
/// @param locale  keeps the locale that the command points to; must live until the command was made.
void readDXEnvelope(JsonObject& json, QFDXCommandHelper& command, std::optional<I18NLocale>& locale);

/// What the notes of a command's kind say of these keys.
extern const char* const kEnvelopeNotes;
extern const char* const kDXEnvelopeNotes;

}  // namespace dxmd_tool

#endif
