#include <dxmd/modelactions/DXActionHelperDBConnection.h>

#include <dxmd/modelactions/DXActionHelperDBConnections.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

const char* const kFile = "DXActionHelperDBConnection";

}  // namespace

TEST(DBConnection, WritesItsPartsInTheirOrderAndReadsThemBack) {
  DXActionHelperDBConnection connection;
  connection.setPassword("secret <&>");
  connection.setUserName("me");
  connection.setDbType("OR");
  connection.setSchema("dbo");
  connection.setCatalog("c1");
  connection.setConnectionString("host=h;uid=u");
  connection.setDatabase("sales");
  TRNIDOM_Element element = madeElement(connection);
  expectXml(
      "<dbConnection><database>sales</database><catalog>c1</catalog><schema>dbo</schema><dbType>OR</dbType>"
      "<connectionString>host=h;uid=u</connectionString><userName>me</userName>"
      "<password>secret &lt;&amp;&gt;</password></dbConnection>",
      element);
  EXPECT_EQ(element, element.getOwnerDocument().getDocumentElement());

  DXActionHelperDBConnection again;
  again.Take(element);
  EXPECT_EQ("sales c1 dbo OR host=h;uid=u me secret <&>",
            again.getDatabase() + " " + again.getCatalog() + " " + again.getSchema() + " " + again.getDbType() + " " +
                again.getConnectionString() + " " + again.getUserName() + " " + again.getPassword());
}

TEST(DBConnection, OptionalPartsAreLeftOutWhenEmptyThoughItCannotBeReadBackWithoutType) {
  DXActionHelperDBConnection connection;
  connection.setDatabase("d");
  connection.setConnectionString("c");
  const std::string xml = made(connection);
  expectXml("<dbConnection><database>d</database><connectionString>c</connectionString></dbConnection>", xml);
  DXActionHelperDBConnection again;
  expectAssert("TRN_ASSERT(!dbTypeElem.isNull());", kFile, [&] { take(again, xml); });
  EXPECT_EQ("d", again.getDatabase());  // what precedes the failure is kept
}

TEST(DBConnection, WritingNeedsConnectionStringAndDatabaseBeforeAnythingIsCreated) {
  for (const bool database : {false, true}) {
    DXActionHelperDBConnection connection;
    database ? connection.setDatabase("d") : connection.setConnectionString("c");
    TRNIDOM_Element element;
    expectAssert("TRN_ASSERT(!m_connectionString.empty() && !m_database.empty());", kFile,
                 [&] { connection.Make(element); });
    EXPECT_TRUE(element.isNull());
  }
}

TEST(DBConnection, RequiredPartsAreLookedForInOrderAmongDirectChildrenOnly) {
  DXActionHelperDBConnection connection;
  expectAssert("TRN_ASSERT(!m_requestRoot.isNull());", kFile, [&] { take(connection, TRNIDOM_Element()); });
  expectAssert("TRN_ASSERT(!connectionStringElem.isNull());", kFile, [&] { take(connection, "<dbConnection/>"); });
  expectAssert("TRN_ASSERT(!databaseElem.isNull());", kFile, [&] {
    take(connection, "<dbConnection><connectionString/><x><database>d</database></x><dbType/></dbConnection>");
  });
}

TEST(DBConnection, MissingOptionalPartsKeepWhatWasHeldAndEmptyOnesReplaceIt) {
  DXActionHelperDBConnection connection;
  connection.setUserName("me");
  connection.setSchema("dbo");
  take(connection, "<any><dbType/><schema/><database>d</database><connectionString>c</connectionString></any>");
  EXPECT_EQ("me", connection.getUserName());
  EXPECT_EQ("", connection.getSchema());
}

TEST(DBConnections, CopiesWhatItHoldsInOrderAndLeavesItWhereItIs) {
  DXActionHelperDBConnections list;
  TRNIDOM_Element first = parsed("<x><dbConnection n='1'><database>a</database></dbConnection></x>").getFirstChild();
  TRNIDOM_Element second = parsed("<anything/>");
  list.addDom(first);
  list.addDom(second);
  list.addDom(first);
  TRNIDOM_Element element = madeElement(list);
  const std::string copy = "<dbConnection n=\"1\"><database>a</database></dbConnection>";
  expectXml("<dbConnections>" + copy + "<anything/>" + copy + "</dbConnections>", element);
  EXPECT_EQ(element, element.getOwnerDocument().getDocumentElement());
  expectXml("<x>" + copy + "</x>", first.getParentNode());
  EXPECT_EQ(first, list.getDomVector()[2]);
}

TEST(DBConnections, ReadsEveryDepthAndAddsToWhatItHolds) {
  TRNIDOM_Element element = parsed(
      "<r><dbConnections><dbConnection n='1'/><group><dbConnection n='2'><dbConnection n='3'/></dbConnection></group>"
      "</dbConnections><dbConnection n='outside'/></r>");
  TRNIDOM_Element root = element.getFirstChild();
  DXActionHelperDBConnections list;
  list.Take(root);
  list.Take(root);
  std::string found;
  for (const TRNIDOM_Element& connection : list.getDomVector()) found += connection.getAttribute("n").toUtf8();
  EXPECT_EQ("123123", found);
}

TEST(DBConnections, AnEmptyListCannotBeWrittenNorANullElementRead) {
  DXActionHelperDBConnections list;
  TRNIDOM_Element element;
  expectAssert("TRN_ASSERT(!m_dbConnections.empty());", kFile, [&] { list.Make(element); });
  EXPECT_TRUE(element.isNull());
  expectAssert("TRN_ASSERT(!m_requestRoot.isNull());", kFile, [&] { list.Take(element); });
}
