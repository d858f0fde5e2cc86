#include <dxmd/queryframework/QFCommandHelper.h>

#include <trnidom/TRNIDOM_DOMException.h>

#include <dxmd/queryframework/QFCloseConnectionsCommandHelper.h>
#include <dxmd/queryframework/QFDXCommandHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

// The smallest modelling command.
class ProbeCommand : public QFDXCommandHelper {
 public:
  using QFDXCommandHelper::QFDXCommandHelper;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override {
    TRNIDOM_Element probe = doc.createElement("probe");
    Incorporate(doc, elem, probe);
  }
};

// The command after the connection was added to it.
std::string withConnection(const std::string& command, const std::string& connection) {
  TRNIDOM_Element commandElement = parsed(command);
  TRNIDOM_Element connectionElement = parsed(connection);
  QFCommandHelper::AddConnection(commandElement, connectionElement);
  EXPECT_EQ(connection, xmlOf(connectionElement)) << "the caller's connection is copied, not moved";
  return xmlOf(commandElement);
}

}  // namespace

TEST(QFCommandHelper, EnvelopeHoldsCommandThenIdentifiersThatPropertiesReplaceOneByOne) {
  QFCloseConnectionsCommandHelper command;
  expectXml(inEnvelope("<closeConnections/>", "DXCommand", "DXRequest"), made(command));
  command.SetProperty(QFCommandHelper::kPropertyRequestID, "r1");
  command.SetProperty(static_cast<QFCommandHelper::EProperty>(3), "ignored");
  expectXml(inEnvelope("<closeConnections/>", "DXCommand", "r1"), made(command));
  command.SetProperty(QFCommandHelper::kPropertyCommandID, "");
  expectXml(inEnvelope("<closeConnections/>", "", "r1"), made(command));
  EXPECT_EQ("DXCommand", QFCommandHelper::GetDefaultDXCommandID());
  EXPECT_EQ("DXRequest", QFCommandHelper::GetDefaultDXRequestID());
}

TEST(QFCommandHelper, ConnectionIsCopiedAtEachMake) {
  QFCloseConnectionsCommandHelper command;
  {
    TRNIDOM_Element connection = parsed("<connection><dataSource value=\"a\"/></connection>");
    command.SetConnection(connection);
    expectXml(inEnvelope(R"(<connection><dataSource value="a"/></connection><closeConnections/>)"), made(command));
    connection.setAttribute("changed", "1");
  }
  // The command's handle keeps the connection alive and sees its later changes.
  expectXml(inEnvelope(R"(<connection changed="1"><dataSource value="a"/></connection><closeConnections/>)"),
            made(command));
}

TEST(QFCommandHelper, ModelPathAndReportNameAreWrittenOnce) {
  const QFCommandHelper command("/m");
  TRNIDOM_Element parent = parsed("<p/>");
  command.MakeModelPath(parent);
  command.MakeModelPath(parent);
  command.MakeReportName(parent, "default");
  command.MakeReportName(parent, "other");
  expectXml("<p><modelPath>/m</modelPath><reportName>DXRequest</reportName><reportName>other</reportName></p>", parent);
}

TEST(QFDXCommandHelper, WrapsCommandInDxCommand) {
  ProbeCommand command("m");
  expectXml(inDXEnvelope("<probe/>"), made(command));

  const I18NLocale locale("de-ch");
  command.SetQueryLocale(&locale);
  command.AddQueryFeedback(QFExecuteCommandHelper::kQueryFeedbackColumnList);
  command.AddQueryFeedback(static_cast<QFExecuteCommandHelper::EQueryFeedback>(7));
  command.AddQueryFeedback(QFExecuteCommandHelper::kQueryFeedbackColumnList);
  expectXml(inEnvelope(R"(<dxCommand queryLocale="de-ch"><source><model>m</model></source><probe/><queryFeedback>)"
                       R"(<property name="columnList"/><property name="unknown"/><property name="columnList"/>)"
                       R"(</queryFeedback></dxCommand>)"),
            made(command));

  command.SetQueryLocale(nullptr);
  EXPECT_EQ(std::string::npos, made(command).find("queryLocale"));
  EXPECT_NE(std::string::npos, made(ProbeCommand("")).find("<source><model/></source>"));
}

TEST(AddConnection, BecomesFirstChildOrReplacesTheOldOne) {
  EXPECT_EQ("<command><connection a=\"1\"/><cancel/></command>",
            withConnection("<command><cancel/></command>", "<connection a=\"1\"/>"));
  EXPECT_EQ("<command><connection/></command>", withConnection("<command/>", "<connection/>"));
  EXPECT_EQ(
      "<command><connection new=\"1\"/><cancel/></command>",
      withConnection("<command><connection><connection/></connection><cancel/></command>", "<connection new=\"1\"/>"));
}

TEST(AddConnection, ReplacesOnlyTheInnerOneOfAConnectionTest) {
  EXPECT_EQ("<command><connection old=\"1\"><connection in=\"new\"/></connection><testConnection/></command>",
            withConnection("<command><connection old=\"1\"><connection in=\"old\"/></connection>"
                           "<testConnection/></command>",
                           "<connection outer=\"new\"><connection in=\"new\"/></connection>"));
}

TEST(AddConnection, RewritesConnectionOfAMetadataCommand) {
  const std::string connection = R"(<connection><dataSourceType value="QueryFrameworkService"/>)"
                                 R"(<connection><name value="Warehouse"/></connection></connection>)";
  EXPECT_EQ(R"(<command><connection><dataSourceType value="MQP"/><connection><name value="Warehouse"/></connection>)"
            R"(<dataSource value="Warehouse"/></connection><execute><Metadata/></execute></command>)",
            withConnection("<command><execute><Metadata/></execute></command>", connection));

  // Only a Metadata child of an execute child counts, and only a connection with a type is rewritten.
  EXPECT_EQ(std::string::npos,
            withConnection("<command><execute><x><Metadata/></x></execute></command>", connection).find("MQP"));
  EXPECT_EQ("<command><connection><dataSource value=\"kept\"/></connection><execute><Metadata/></execute></command>",
            withConnection("<command><execute><Metadata/></execute></command>",
                           "<connection><dataSource value=\"kept\"/></connection>"));
  EXPECT_EQ(R"(<command><connection><dataSource value=""/><dataSourceType value="MQP"/></connection>)"
            R"(<execute><Metadata/></execute></command>)",
            withConnection("<command><execute><Metadata/></execute></command>",
                           R"(<connection><dataSource value="x"/><dataSourceType value="y"/></connection>)"));
}

TEST(AddConnection, AConnectionTestNeedsAnInnerConnection) {
  try {
    withConnection("<command><connection><connection/></connection><testConnection/></command>", "<connection/>");
    ADD_FAILURE() << "nothing was thrown";
  } catch (const TRNIDOM_DOMException& error) {
    EXPECT_EQ(TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR, error.code());
  }
}

TEST(AddConnection, DomExceptionsReachTheCaller) {
  // The old connection does not stand where replaceChild can reach it.
  EXPECT_THROW(withConnection("<command><x><connection/></x></command>", "<connection/>"), TRNIDOM_DOMException);
  EXPECT_THROW(withConnection("<command><connection/><testConnection/></command>", "<connection/>"),
               TRNIDOM_DOMException);
  TRNIDOM_Element null;
  TRNIDOM_Element command = parsed("<command/>");
  EXPECT_THROW(QFCommandHelper::AddConnection(command, null), TRNIDOM_DOMException);
  EXPECT_THROW(QFCommandHelper::AddConnection(null, command), TRNIDOM_DOMException);
}
