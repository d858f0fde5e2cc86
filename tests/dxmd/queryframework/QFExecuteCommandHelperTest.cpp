#include <dxmd/queryframework/QFExecuteCommandHelper.h>

#include <trnidom/TRNIDOM_Helper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Execute = QFExecuteCommandHelper;

// The part of that name of what the command writes.
std::string part(const Execute& command, const char* name) {
  return xmlOf(TRNIDOM_Helper::findFirstElement(madeElement(command), name));
}

}  // namespace

TEST(QFExecuteCommandHelper, WritesWholeCommand) {
  const I18NLocale locale("en-us");
  Execute command("/model", &locale);
  command.AddQuery("Q1")->AddDataItem("item", "[a]");
  command.AddRequestHint(Execute::kRequestHintQueryProcessing, "databaseOnly");
  command.AddRequestHint(Execute::kRequestHintNoDataMode, "true");
  command.AddExecuteProperty("b", "1");
  command.AddExecuteProperty("a", "2");
  command.AddQueryFeedback(Execute::kQueryFeedbackNativeCommandText);
  expectXml(
      inEnvelope(
          R"(<execute><querySet expressionLocale="en-us"><modelPath>/model</modelPath><reportName>DXRequest</reportName><queries>)"
          R"(<query name="Q1"><source><model/></source><selection autoSummary="false">)"
          R"(<dataItem name="item"><expression>[a]</expression></dataItem></selection>)"
          R"(<queryHints><avoidZeroDiv value="true"/></queryHints></query></queries>)"
          R"(<queryResultDefinitions><queryResultDefinition name="rsdQ1" refQuery="Q1"><edges><edge name="columns">)"
          R"(<edgeGroups><edgeGroup><valueSets><valueSet name="valueSet1"><groupBody name="groupBody1">)"
          R"(<dataItemRef refDataItem="item"/></groupBody></valueSet></valueSets></edgeGroup></edgeGroups></edge></edges>)"
          R"(</queryResultDefinition></queryResultDefinitions>)"
          R"(<requestHints><noDataMode enabled="true"/><queryProcessing value="databaseOnly"/></requestHints></querySet>)"
          R"(<property name="a" value="2"/><property name="b" value="1"/>)"
          R"(<queryFeedback><property name="nativeCommandText"/></queryFeedback></execute>)"),
      made(command));
}

TEST(QFExecuteCommandHelper, CommandWithoutQueryIsRefusedBeforeAnythingIsWritten) {
  const Execute command("/model", nullptr);
  TRNIDOM_Element untouched = parsed("<caller/>");
  expectAssert("TRN_ASSERT(!m_queries.empty());", "QFExecuteCommandHelper", [&] { command.Make(untouched); });
  EXPECT_EQ("<caller/>", xmlOf(untouched));
}

TEST(QFExecuteCommandHelper, QueriesMergeIntoOneResultDefinition) {
  Execute command("", nullptr);
  command.AddQuery("A")->AddDataItem("a", "");
  command.AddQuery("B")->AddDataItem("b", "");
  expectXml(R"(<queryResultDefinitions><queryResultDefinition name="rsdB" refQuery="B"><edges><edge name="columns">)"
            R"(<edgeGroups><edgeGroup><valueSets><valueSet name="valueSet1"><groupBody name="groupBody1">)"
            R"(<dataItemRef refDataItem="a"/><dataItemRef refDataItem="b"/></groupBody></valueSet></valueSets>)"
            R"(</edgeGroup></edgeGroups></edge></edges></queryResultDefinition></queryResultDefinitions>)",
            part(command, "queryResultDefinitions"));
}

TEST(QFExecuteCommandHelper, SpecialFirstQueryIsDefinedAlone) {
  // The name of the definition and those of its items.
  const auto definition = [](std::initializer_list<const char*> queries) {
    Execute command("", nullptr);
    for (const char* name : queries) command.AddQuery(name)->AddDataItem(name, "");
    const TRNIDOM_Element element = TRNIDOM_Helper::findFirstElement(madeElement(command), "queryResultDefinition");
    std::string names = element.getAttribute("name").toUtf8();
    for (const TRNIDOM_Element item : element.getElementsByTagName("dataItemRef"))
      names += " " + item.getAttribute("refDataItem").toUtf8();
    return names;
  };
  EXPECT_EQ("rsdSingleCount SingleCount", definition({"SingleCount", "B"}));
  EXPECT_EQ("rsdquerySet querySet", definition({"querySet", "B"}));
  EXPECT_EQ("rsdC B SingleCount querySet C", definition({"B", "SingleCount", "querySet", "C"}));
}

TEST(QFExecuteCommandHelper, HintsComeInOrderOfTheirKindAndOncePerKind) {
  Execute command("", nullptr);
  command.AddQuery("Q");
  EXPECT_EQ("", part(command, "requestHints"));
  command.AddRequestHint(Execute::kRequestHintExecutionOptimization, "first");
  command.AddRequestHint(Execute::kRequestHintDesignMode, "true");
  command.AddRequestHint(Execute::kRequestHintExecutionOptimization,
                         Execute::ToString(Execute::kQueryOptimizationAllRows));
  command.AddRequestHint(static_cast<Execute::ERequestHint>(9), "writes nothing");
  expectXml(R"(<requestHints><designMode enabled="true"/><executionOptimization value="allRows"/></requestHints>)",
            part(command, "requestHints"));
}

TEST(QFExecuteCommandHelper, FeedbackNeedsFeedbacksOrSeverity) {
  Execute command("", nullptr);
  command.AddQuery("Q");
  EXPECT_EQ("", part(command, "queryFeedback"));
  command.SetQOSSeverityLevel(Execute::kQOSSeverityKeyTransformation);
  EXPECT_EQ(R"(<queryFeedback severityLevel="keyTransformation"/>)", part(command, "queryFeedback"));
  command.SetQOSSeverityLevel(static_cast<Execute::EQOSSeverity>(5));
  command.AddQueryFeedback(Execute::kQueryFeedbackTableType);
  command.AddQueryFeedback(Execute::kQueryFeedbackTableType);
  command.AddQueryFeedback(Execute::kQueryFeedbackUnknown);
  expectXml(R"(<queryFeedback severityLevel="unknown"><property name="tableType"/><property name="tableType"/>)"
            R"(<property name="unknown"/></queryFeedback>)",
            part(command, "queryFeedback"));
}

TEST(QFExecuteCommandHelper, NagLevelsBecomeSeverities) {
  const std::pair<unsigned long, int> severities[] = {{0, 1}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {99, 4}};
  for (const auto& [level, severity] : severities)
    EXPECT_EQ(severity, Execute::ConvertNagLevel2SeverityLevel(level)) << level;
}
