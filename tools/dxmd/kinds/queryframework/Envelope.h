#ifndef TOOLS_DXMD_KINDS_QUERYFRAMEWORK_ENVELOPE_H
#define TOOLS_DXMD_KINDS_QUERYFRAMEWORK_ENVELOPE_H

#include <optional>
#include <vector>

#include <trn/I18NLocale.h>
#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/queryframework/QFCommandHelper.h>
#include <dxmd/queryframework/QFDXCommandHelper.h>
#include <dxmd/queryframework/QFExecuteCommandHelper.h>
#include <tools/dxmd/kinds/queryservice/connection.h>

// What every command's JSON may hold beside the command proper. The command's `shape` calls `shapeEnvelope`, its `make`
// `setEnvelope`, its `take` `takeEnvelope`.

namespace dxmd_tool {

extern const EnumTable<QFExecuteCommandHelper::EQueryFeedback> kQueryFeedbacks;

struct Envelope {
  I18NString commandID;
  I18NString requestID;
  std::optional<Connection> connection;
};

/// Adds "commandID", "requestID" and "connection".
void shapeEnvelope(Shape& s, Envelope& envelope, const I18NString& commandID = QFCommandHelper::GetDefaultDXCommandID(),
                   const I18NString& requestID = QFCommandHelper::GetDefaultDXRequestID());
void setEnvelope(QFCommandHelper& command, const Envelope& envelope);
Envelope takeEnvelope(const TRNIDOM_Element& command);

/// The envelope of a modelling command, which has the command proper in a "dxCommand".
struct DXEnvelope {
  Envelope outer;
  std::optional<I18NLocale> queryLocale;
  std::vector<QFExecuteCommandHelper::EQueryFeedback> queryFeedback;
};

/// Adds the same, "queryLocale" and "queryFeedback".
void shapeEnvelope(Shape& s, DXEnvelope& envelope);
/// The command points to the envelope's locale: the envelope must live until the command was made.
void setEnvelope(QFDXCommandHelper& command, const DXEnvelope& envelope);
DXEnvelope takeDXEnvelope(const TRNIDOM_Element& command);
/// The path of the model in a modelling command.
I18NString takeDXModelPath(const TRNIDOM_Element& command);

/// The feedbacks that the children "property" of "queryFeedback" name.
std::vector<QFExecuteCommandHelper::EQueryFeedback> takeQueryFeedbacks(const TRNIDOM_Element& queryFeedback);

}  // namespace dxmd_tool

#endif
