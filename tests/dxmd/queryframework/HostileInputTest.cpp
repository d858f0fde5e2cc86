#include <map>
#include <vector>

#include <dxmd/queryframework/QFCommandHelper.h>
#include <dxmd/queryframework/QFResponseDomHelper.h>
#include <dxmd/queryframework/QFValidateCommandHelper.h>

#include "RandomTrees.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(QueryFrameworkHostileInput, Response) {
  const TreeWords words{
      {"response", "queryFeedbackResult", "property", "connection", "columnList", "resultData", "row", "value"},
      {"name", "value", "catalog", "sqlName", "v"},
      {"a", "nativeCommandText"}};
  feedRandomTrees(words, [](TRNIDOM_Element& tree) {
    QFResponseDomHelper response;
    response.Take(tree);
    I18NString text;
    response.GetQueryFeedback(QFExecuteCommandHelper::kQueryFeedbackNativeCommandText, text);
    std::vector<QFResponseDomHelper::DataSource> sources;
    response.GetResponseDataSources(sources);
    std::vector<I18NString> values;
    for (TRNIDOM_Element row = response.GetFirstResultSetRow(); !row.isNull(); row = response.GetNextResultSetRow(row))
      response.GetResultSetRowValues(row, values);
    response.GetResultSetRowValues(tree, values);
    response.GetNextResultSetRow(tree);
    std::vector<std::map<QFResponseDomHelper::EColumnProp, I18NString>> columns;
    response.GetColumnList(columns);
    for (const auto& column : columns) EXPECT_EQ(11U, column.size());
  });
}

TEST(QueryFrameworkHostileInput, Validation) {
  feedRandomTrees({{"message", "x"}, {"severity"}, {"fatal", "error", "warning", "information", "odd"}},
                  [](TRNIDOM_Element& tree) {
                    const QFValidateCommandHelper command;
                    TRNSeverity severity = kSeverityFatal;
                    I18NString messages;
                    command.CheckReponse(tree, severity, messages);
                    EXPECT_TRUE(severity == kSeverityNone || !messages.empty());
                    command.Make(tree);
                    EXPECT_EQ("command", tree.getNodeName());
                  });
}

TEST(QueryFrameworkHostileInput, AddedConnection) {
  const TreeWords words{
      {"command", "connection", "connection", "testConnection", "execute", "Metadata", "name", "dataSourceType"},
      {"value"},
      {"a"}};
  feedRandomTrees(words, [](TRNIDOM_Element& tree) {
    TRNIDOM_Element connection = parsed(R"(<connection><connection><name value="n"/></connection></connection>)");
    QFCommandHelper::AddConnection(tree, connection);
  });
  feedRandomTrees(words, [](TRNIDOM_Element& tree) {
    TRNIDOM_Element command = parsed("<command><connection><connection/></connection><testConnection/></command>");
    QFCommandHelper::AddConnection(command, tree);
  });
}
