#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(DBConnectionsKind, PartsAreElementsUnlessTheyAreEmpty) {
  expectXml(R"(<dbConnections><dbConnection><database>d</database><catalog>c</catalog><schema>s</schema>)"
            R"(<dbType>OD</dbType><connectionString>DSN=d</connectionString><userName>u</userName>)"
            R"(<password>p</password></dbConnection>)"
            R"(<dbConnection><database>e</database><connectionString>DSN=e</connectionString></dbConnection>)"
            R"(</dbConnections>)",
            encoded("dbConnections", R"({"dbConnections": [
              {"database": "d", "catalog": "c", "schema": "s", "dbType": "OD", "connectionString": "DSN=d",
               "userName": "u", "password": "p"},
              {"database": "e", "connectionString": "DSN=e"}]})"));
}

TEST(DBConnectionsKind, ConnectionsAreReadAtAnyDepthAndNeedAType) {
  EXPECT_EQ(R"({"dbConnections":[{"database":"d","dbType":"OD","connectionString":"DSN=d"}]})"
            "\n",
            decoded("dbConnections",
                    "<dbConnections><group><dbConnection><connectionString>DSN=d</connectionString>"
                    "<database>d</database><dbType>OD</dbType></dbConnection></group></dbConnections>"));
  expectFailure(kStatusUnfit,
                "standard input: DXActionHelperDBConnection refuses it: TRN_ASSERT(!dbTypeElem.isNull());",
                run({"decode", "dbConnections"},
                    "<dbConnections><dbConnection><database>d</database><connectionString>DSN=d</connectionString>"
                    "</dbConnection></dbConnections>"));
}

TEST(DBConnectionsKind, WhatTheLibraryWouldNotWriteIsRefusedWithItsPlace) {
  const auto expectRefused = [](const std::string& reason, const std::string& json) {
    expectFailure(kStatusUnfit, "standard input: " + reason, run({"encode", "dbConnections"}, json));
  };
  expectRefused("$.dbConnections: must not be empty", R"({"dbConnections": []})");
  expectRefused("$.dbConnections[0].database: must not be empty",
                R"({"dbConnections": [{"database": "", "connectionString": "c"}]})");
  expectRefused("$.dbConnections[0].connectionString: must not be empty",
                R"({"dbConnections": [{"database": "d", "connectionString": ""}]})");
}
