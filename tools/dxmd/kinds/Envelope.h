#ifndef TOOLS_DXMD_KINDS_ENVELOPE_H
#define TOOLS_DXMD_KINDS_ENVELOPE_H

#include <optional>

#include <trn/I18NLocale.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/queryframework/QFCommandHelper.h>
#include <dxmd/queryframework/QFDXCommandHelper.h>
#include <dxmd/queryframework/QFExecuteCommandHelper.h>
#include <tools/dxmd/Kind.h>

// What every command's JSON may hold beside the command proper.

namespace dxmd_tool {

extern const EnumTable<QFExecuteCommandHelper::EQueryFeedback> kQueryFeedbacks;

/// Builds the "connection" element from its JSON object.
TRNIDOM_Element readConnection(JsonObject& json);

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
