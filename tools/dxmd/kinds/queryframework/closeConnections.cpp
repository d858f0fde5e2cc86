#include <dxmd/queryframework/QFCloseConnectionsCommandHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>

namespace dxmd_tool {

namespace {

struct CloseConnections {
  Envelope envelope;
};

void shape(Shape& s, CloseConnections& command) {
  shapeEnvelope(s, command.envelope);
}

TRNIDOM_Element make(const CloseConnections& command) {
  QFCloseConnectionsCommandHelper helper;
  setEnvelope(helper, command.envelope);
  return made(helper);
}

CloseConnections take(TRNIDOM_Element& root) {
  return {takeEnvelope(root)};
}

}  // namespace

Kind kinds::closeConnections() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to close the connections of the service";
  kind.purpose = "Has the query framework service close its connections.";
  kind.helper = "QFCloseConnectionsCommandHelper";
  kind.reads = Does::kTool;
  kind.roots = {"command"};
  kind.wrapped = "closeConnections";
  kind.example = R"({
  "commandID": "Close7",
  "requestID": "Request7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"}
})";
  return kind;
}

}  // namespace dxmd_tool
