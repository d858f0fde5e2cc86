#include <dxmd/queryframework/QFResponseDomHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Texts = std::vector<I18NString>;

std::string feedback(const QFResponseDomHelper& response, QFExecuteCommandHelper::EQueryFeedback kind) {
  return filled(response, &QFResponseDomHelper::GetQueryFeedback, kind);
}

std::vector<Texts> rowsOf(const QFResponseDomHelper& response) {
  std::vector<Texts> rows;
  for (TRNIDOM_Element row = response.GetFirstResultSetRow(); !row.isNull(); row = response.GetNextResultSetRow(row)) {
    rows.emplace_back();
    response.GetResultSetRowValues(row, rows.back());
  }
  return rows;
}

}  // namespace

TEST(QFResponseDomHelper, EmptyRepliesAndNoReplyGiveNothing) {
  const auto givesNothing = [](const QFResponseDomHelper& response) {
    EXPECT_EQ("no, untouched", feedback(response, QFExecuteCommandHelper::kQueryFeedbackTableType));
    std::vector<QFResponseDomHelper::DataSource> sources;
    response.GetResponseDataSources(sources);
    EXPECT_TRUE(sources.empty());
    std::vector<std::map<QFResponseDomHelper::EColumnProp, I18NString>> columns;
    response.GetColumnList(columns);
    EXPECT_TRUE(columns.empty());
    EXPECT_TRUE(response.GetFirstResultSetRow().isNull());
    EXPECT_TRUE(response.GetNextResultSetRow(TRNIDOM_Element()).isNull());
    Texts values;
    response.GetResultSetRowValues(TRNIDOM_Element(), values);
    EXPECT_TRUE(values.empty());
  };
  givesNothing(QFResponseDomHelper());
  givesNothing(*taken<QFResponseDomHelper>("<response/>"));
}

TEST(QFResponseDomHelper, FeedbackIsTheFirstPropertyOfThatNameWithContent) {
  const auto response = taken<QFResponseDomHelper>(
      R"(<r><x><queryFeedbackResult><property name="tableType"/><p><property name="tableType">one<b/>two</property></p>)"
      R"(<property name="tableType">later</property><property name="plan"><e/></property></queryFeedbackResult></x>)"
      R"(<queryFeedbackResult><property name="columnList">second result</property></queryFeedbackResult></r>)");
  EXPECT_EQ("one", feedback(*response, QFExecuteCommandHelper::kQueryFeedbackTableType));
  EXPECT_EQ("no, untouched", feedback(*response, QFExecuteCommandHelper::kQueryFeedbackColumnList));
  // An element as first child has no value.
  EXPECT_EQ("", filled(*response, &QFResponseDomHelper::ExtractRetrieveProperty, I18NString("plan")));
}

TEST(QFResponseDomHelper, DataSourcesAreReadAtAnyDepthAndAppended) {
  const auto response = taken<QFResponseDomHelper>(
      R"(<r><connection value="outside"/><queryFeedbackResult><a>)"
      R"(<connection value="v" catalog="c" schema="s" modelDSName="m"/></a><connection/></queryFeedbackResult></r>)");
  std::vector<QFResponseDomHelper::DataSource> sources(1);
  response->GetResponseDataSources(sources);
  ASSERT_EQ(3u, sources.size());
  EXPECT_EQ("v", sources[1].connection);
  EXPECT_EQ("c", sources[1].catalog);
  EXPECT_EQ("s", sources[1].schema);
  EXPECT_EQ("m", sources[1].modelDSName);
  EXPECT_EQ("", sources[2].connection);
}

TEST(QFResponseDomHelper, EveryColumnHasAllElevenProperties) {
  const auto response = taken<QFResponseDomHelper>(
      R"(<r><columnList><c name="1" sqlName="2" type="3" scale="4" length="5" precision="6" nullsAllowed="7")"
      R"( collationSequenceName="8" collationSequenceLevel="9" originalCollationSequenceName="10")"
      R"( originalEncodingName="11"/><other/></columnList><columnList><c/></columnList></r>)");
  std::vector<std::map<QFResponseDomHelper::EColumnProp, I18NString>> columns;
  response->GetColumnList(columns);
  ASSERT_EQ(2u, columns.size());
  ASSERT_EQ(11u, columns[0].size());
  for (const auto& [property, text] : columns[0]) EXPECT_EQ(std::to_string(property), text.toUtf8());
  ASSERT_EQ(11u, columns[1].size());
  for (const auto& [property, text] : columns[1]) EXPECT_EQ("", text) << property;
}

TEST(QFResponseDomHelper, IndentedColumnListIsRefused) {
  const auto response = taken<QFResponseDomHelper>("<r><columnList><c/>\n<c/></columnList></r>");
  std::vector<std::map<QFResponseDomHelper::EColumnProp, I18NString>> columns;
  expectAssert("TRN_ASSERT(columnsList.item( idx ).getNodeType() == TRNIDOM_Node::ELEMENT_NODE);",
               "QFResponseDomHelper", [&] { response->GetColumnList(columns); });
  EXPECT_EQ(1u, columns.size()) << "columns read before the failure stay";
}

TEST(QFResponseDomHelper, RowsAndValuesSkipWhateverElseStandsBetween) {
  const auto response = taken<QFResponseDomHelper>(
      "<r><resultData>text<!-- c --><head><row><value v=\"no\"/></row></head><row> <value v=\"1\"/><x v=\"no\"/>"
      "<value/><g><value v=\"no\"/></g></row>\n<foot/><row/></resultData><resultData><row/></resultData></r>");
  EXPECT_EQ((std::vector<Texts>{{"1", ""}, {}}), rowsOf(*response));

  Texts values;
  const TRNIDOM_Element row = response->GetFirstResultSetRow();
  response->GetResultSetRowValues(row, values);
  response->GetResultSetRowValues(row, values);
  EXPECT_EQ((Texts{"1", "", "1", ""}), values) << "values are appended";
  EXPECT_TRUE(taken<QFResponseDomHelper>("<r><resultData><x/></resultData></r>")->GetFirstResultSetRow().isNull());
}

TEST(QFResponseDomHelper, KeepsTheDocumentAliveAndReadsTheLatestOneTaken) {
  QFResponseDomHelper response;
  for (const char* value : {"first", "second"}) {
    take(response, std::string("<r><resultData><row><value v=\"") + value + "\"/></row></resultData></r>");
    EXPECT_EQ((std::vector<Texts>{{value}}), rowsOf(response));
  }
}
