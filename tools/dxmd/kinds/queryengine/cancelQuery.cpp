#include <dxmd/queryengine/VqeCancelQueryHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct CancelQuery {
  Envelope envelope;
};

void shape(Shape& s, CancelQuery& command) {
  static const Envelope unset = takeEnvelope(made(VqeCancelQueryHelper()));
  shapeEnvelope(s, command.envelope, unset.commandID, unset.requestID);
}

TRNIDOM_Element make(const CancelQuery& command) {
  VqeCancelQueryHelper helper;
  setEnvelope(helper, command.envelope);
  return made(helper);
}

CancelQuery take(TRNIDOM_Element& root) {
  const TRNIDOM_Element cancelled = requiredChild(requiredChild(root, "cancel"), "requestID");
  requireAttribute(cancelled, "value", QFCommandHelper::GetDefaultDXRequestID());
  return {takeEnvelope(root)};
}

}  // namespace

Kind kinds::cancelQuery() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to cancel the running request";
  kind.purpose = R"(Has the query engine cancel the request that is running. It goes by identifiers of its own, so
that it is not taken for the request that it cancels.)";
  kind.notes = R"(The identifiers are the command's own; the request cancelled is always "DXRequest".)";
  kind.helper = "VqeCancelQueryHelper";
  kind.reads = Does::kTool;
  kind.roots = {"command"};
  kind.wrapped = "cancel";
  kind.example = R"({
  "commandID": "Cancel7",
  "requestID": "CancelRequest7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"}
})";
  return kind;
}

}  // namespace dxmd_tool
