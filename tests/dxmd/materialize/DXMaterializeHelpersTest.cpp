#include <dxmd/materialize/DXMaterializeRequestHelper.h>
#include <dxmd/materialize/DXMaterializeResponseHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Request = DXMaterializeRequestHelper;

// The fields of a target data source, "-" for those that are null.
std::string fields(Request& request) {
  const Request::TargetDataSource source = request.GetTargetDataSourceInfo();
  std::string all;
  for (const I18NString* text : {source.type, source.database, source.connectionString, source.reserved,
                                 source.userName, source.password, source.ssoTicket})
    all += (text == nullptr ? "-" : text->toUtf8()) + "|";
  return all;
}

void setUser(Request& request, I18NString name) {
  Request::TargetDataSource source;
  source.userName = &name;
  request.SetTargetDataSource(source);
}

std::string parameter(Request& request, Request::EParameters parameter) {
  return filled(request, &Request::GetParameter, parameter);
}

std::string answer(const std::string& xml, Request::ETasks task) {
  return filled(*taken<DXMaterializeResponseHelper>(xml), &DXMaterializeResponseHelper::GetResponse, task);
}

}  // namespace

TEST(DXMaterializeRequestHelper, WritesTasksDataSourceParametersAndResultSet) {
  Request request;
  request.AddTask(Request::kTaskLoadDataFromFile);
  request.AddTask(Request::kTaskMaterializeResultSet);
  request.AddTask(Request::kTaskLoadDataFromFile);
  I18NString type("T"), database("D"), connection("C"), ignored("I"), user("U"), password(""), ticket("S");
  request.SetTargetDataSource({&type, &database, &connection, &ignored, &user, &password, &ticket});
  request.AddParameter(Request::kParamObjectID, "o");
  request.AddParameter(Request::kParamTableName, "replaced");
  request.AddParameter(Request::kParamTableName, "t");
  request.SetResultSet(parsed("<set><row/></set>"));
  expectXml(R"(<materializeRequest><tasks><task>loadDataFromFile</task><task>genLoadDataFromFile</task></tasks>)"
            R"(<targetDataSource type="T"><connectionString>C</connectionString><database>D</database>)"
            R"(<username>U</username><password/><SSOTicket>S</SSOTicket></targetDataSource>)"
            R"(<parameters><param name="tableName" value="t"/><param name="objectID" value="o"/></parameters>)"
            R"(<resultSet><set><row/></set></resultSet></materializeRequest>)",
            made(request));
  expectXml("<materializeRequest><tasks/><targetDataSource/></materializeRequest>", made(Request()));
}

TEST(DXMaterializeRequestHelper, MaterialiseTasksAreNamedAsTheGeneratedLoad) {
  EXPECT_EQ("genLoadDataFromFile", Request::GetTaskName(Request::kTaskGenLoadDataFromFile).toUtf8());
  EXPECT_EQ("loadDataFromFile", Request::GetTaskName(Request::kTaskLoadDataFromFile).toUtf8());
  EXPECT_EQ("genLoadDataFromFile", Request::GetTaskName(Request::kTaskMaterializeQuerySubject).toUtf8());
  EXPECT_EQ("genLoadDataFromFile", Request::GetTaskName(Request::kTaskMaterializeResultSet).toUtf8());
  EXPECT_EQ("unknown", Request::GetTaskName(static_cast<Request::ETasks>(5)).toUtf8());
  EXPECT_EQ("dataEncoding", Request::GetParameterName(Request::kParamDataEncoding).toUtf8());
  EXPECT_EQ("unknown", Request::GetParameterName(static_cast<Request::EParameters>(7)).toUtf8());
}

TEST(DXMaterializeRequestHelper, ReadsTasksByOneTextEachWithRepeatsAndUnknownOnes) {
  const auto request = taken<Request>(
      "<r><task>materializeQuerySubject</task><task/><x><task>materializeResultSet</task></x><task>other</task>"
      "<task>loadDataFromFile</task><task>loadDataFromFile</task><task><b/>loadDataFromFile</task>"
      "<task><!--genLoadDataFromFile--></task></r>");
  const std::vector<Request::ETasks> expected{
      Request::kTaskMaterializeQuerySubject, Request::kTaskMaterializeResultSet, Request::kTaskUnknown,
      Request::kTaskLoadDataFromFile,        Request::kTaskLoadDataFromFile,     Request::kTaskUnknown,
      Request::kTaskGenLoadDataFromFile};
  EXPECT_EQ(expected, request->GetTasks());
  EXPECT_EQ(expected, request->GetTasks());

  const auto filled = taken<Request>("<r><task>loadDataFromFile</task></r>");
  filled->AddTask(Request::kTaskMaterializeResultSet);
  EXPECT_EQ((std::vector<Request::ETasks>{Request::kTaskMaterializeResultSet}), filled->GetTasks());
}

TEST(DXMaterializeRequestHelper, GivenFieldsReplaceAndNullOnesKeep) {
  Request request;
  EXPECT_EQ("-|-|-|-|-|-|-|", fields(request));
  {
    I18NString user("old"), password("secret");
    request.SetTargetDataSource({nullptr, nullptr, nullptr, nullptr, &user, &password, nullptr});
  }
  setUser(request, "new");
  EXPECT_EQ("-|-|-|-|new|secret|-|", fields(request));
  request.SetTargetDataSource(request.GetTargetDataSourceInfo());
  EXPECT_EQ("-|-|-|-|new|secret|-|", fields(request));
}

TEST(DXMaterializeRequestHelper, ReadsTheFirstDataSourceWhileNoneIsSet) {
  const std::string received =
      R"(<r><x><targetDataSource><database>D</database><userName>no</userName><username><!-- -->no</username>)"
      R"(<password>P</password><connectionString><![CDATA[no]]></connectionString><SSOTicket>1</SSOTicket>)"
      R"(<SSOTicket>2</SSOTicket><deep><username>no</username></deep></targetDataSource></x>)"
      R"(<targetDataSource type="second"><username>second</username></targetDataSource></r>)";
  const auto request = taken<Request>(received);
  EXPECT_EQ("|D|-|-|-|P|2|", fields(*request));
  expectXml(R"(<materializeRequest><tasks/><targetDataSource type=""><database>D</database><password>P</password>)"
            R"(<SSOTicket>2</SSOTicket></targetDataSource></materializeRequest>)",
            made(*request));

  const auto filled = taken<Request>(received);
  setUser(*filled, "U");
  EXPECT_EQ("-|-|-|-|U|-|-|", fields(*filled));
  EXPECT_EQ("-|-|-|-|-|-|-|", fields(*taken<Request>("<r/>")));
}

TEST(DXMaterializeRequestHelper, ParametersAreReadFromTheReceivedElementOnly) {
  const std::string received = R"(<r><param name="tableName" value="first"/><x><param name="objectID"/></x>)"
                               R"(<param name="tableName" value="second"/><param name="TableName" value="none"/></r>)";
  const auto request = taken<Request>(received);
  EXPECT_EQ("first", parameter(*request, Request::kParamTableName));
  EXPECT_EQ("", parameter(*request, Request::kParamObjectID));
  EXPECT_EQ("no, untouched", parameter(*request, Request::kParamDataFilePath));
  expectXml("<materializeRequest><tasks/><targetDataSource/></materializeRequest>", made(*request));
  request->AddParameter(Request::kParamTableName, "added");
  EXPECT_EQ("no, untouched", parameter(*request, Request::kParamTableName));
  take(*request, received);
  EXPECT_EQ("no, untouched", parameter(*request, Request::kParamTableName));
  Request empty;
  EXPECT_EQ("no, untouched", parameter(empty, Request::kParamTableName));
}

TEST(DXMaterializeRequestHelper, ReadsTheElementThatTheFirstResultSetBeginsWith) {
  EXPECT_EQ("<set/>", xmlOf(taken<Request>("<r><x><resultSet><set/><more/></resultSet></x></r>")->GetResultSet()));
  EXPECT_TRUE(
      taken<Request>("<r><resultSet> <set/></resultSet><resultSet><set/></resultSet></r>")->GetResultSet().isNull());
  const auto request = taken<Request>("<r><resultSet><received/></resultSet></r>");
  request->SetResultSet(parsed("<given/>"));
  EXPECT_EQ("<given/>", xmlOf(request->GetResultSet()));
}

TEST(DXMaterializeResponseHelper, AnswersAreFoundUnderTheNamesOfTasksAndNeverWritten) {
  const std::string xml =
      "<r><x><genLoadDataFromFile><y><response>generated</response></y></genLoadDataFromFile></x>"
      "<genLoadDataFromFile><response>second</response></genLoadDataFromFile>"
      "<materializeResultSet><response>never</response></materializeResultSet></r>";
  EXPECT_EQ("generated", answer(xml, Request::kTaskGenLoadDataFromFile));
  EXPECT_EQ("generated", answer(xml, Request::kTaskMaterializeResultSet));
  EXPECT_EQ("no, untouched", answer(xml, Request::kTaskLoadDataFromFile));
  EXPECT_EQ("no, untouched", answer("<r><loadDataFromFile><response/><response>late</response></loadDataFromFile></r>",
                                    Request::kTaskLoadDataFromFile));
  EXPECT_EQ("no, untouched",
            answer("<r><loadDataFromFile/><response>outside</response></r>", Request::kTaskLoadDataFromFile));
  expectXml("<materializeResponse/>", made(*taken<DXMaterializeResponseHelper>(xml)));
}

TEST(DXMaterializeRequestHelper, TasksNestedAHundredThousandDeepAreRead) {
  auto [root, innermost] = nestedDeep("task");
  innermost.appendChild(root.getOwnerDocument().createTextNode("loadDataFromFile"));
  Request request;
  request.Take(root);
  ASSERT_EQ(100'000U, request.GetTasks().size());
  EXPECT_EQ(Request::kTaskUnknown, request.GetTasks().front());
  EXPECT_EQ(Request::kTaskLoadDataFromFile, request.GetTasks().back());
  EXPECT_EQ("-|-|-|-|-|-|-|", fields(request));
}
