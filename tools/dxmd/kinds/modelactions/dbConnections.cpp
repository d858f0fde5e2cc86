#include <vector>

#include <dxmd/modelactions/DXActionHelperDBConnection.h>
#include <dxmd/modelactions/DXActionHelperDBConnections.h>
#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

namespace {

struct DBConnection {
  I18NString database;
  I18NString catalog;
  I18NString schema;
  I18NString dbType;
  I18NString connectionString;
  I18NString userName;
  I18NString password;
};

void shape(Shape& s, DBConnection& connection) {
  s.required("database", connection.database, "The database's name", nonEmpty());
  s.optional("catalog", connection.catalog, "The catalog in it");
  s.optional("schema", connection.schema, "The schema in it");
  s.optional("dbType", connection.dbType, "The type of database",
             absentIsLost("A connection is written without one, but is not read then"));
  s.required("connectionString", connection.connectionString, "What the service connects with", nonEmpty());
  s.optional("userName", connection.userName, "The name of the user to sign on");
  s.optional("password", connection.password, "The user's password, written as plain text");
}

struct DBConnections {
  std::vector<DBConnection> connections;
};

void shape(Shape& s, DBConnections& all) {
  s.required("dbConnections", all.connections, "The connections", nonEmpty());
}

TRNIDOM_Element make(const DBConnections& all) {
  DXActionHelperDBConnections list;
  for (const DBConnection& connection : all.connections) {
    DXActionHelperDBConnection helper;
    helper.setDatabase(connection.database);
    helper.setCatalog(connection.catalog);
    helper.setSchema(connection.schema);
    helper.setDbType(connection.dbType);
    helper.setConnectionString(connection.connectionString);
    helper.setUserName(connection.userName);
    helper.setPassword(connection.password);
    TRNIDOM_Element element = made(helper);
    list.addDom(element);
  }
  return made(list);
}

DBConnections take(TRNIDOM_Element& root) {
  DXActionHelperDBConnections list;
  list.Take(root);
  DBConnections all;
  for (TRNIDOM_Element& element : list.getDomVector()) {
    DXActionHelperDBConnection helper;
    helper.Take(element);
    all.connections.push_back({helper.getDatabase(), helper.getCatalog(), helper.getSchema(), helper.getDbType(),
                               helper.getConnectionString(), helper.getUserName(), helper.getPassword()});
  }
  return all;
}

}  // namespace

Kind kinds::dbConnections() {
  Kind kind = kindOf(make, take);
  kind.summary = "The database connections of a data source";
  kind.purpose = R"(Describes the database connections of a data source to the modelling services: each with its
database, its type, how to connect and what to sign on with.)";
  kind.helper = "DXActionHelperDBConnections";
  kind.roots = {"dbConnections"};
  kind.example = R"({
  "dbConnections": [
    {
      "database": "sales",
      "catalog": "warehouse",
      "schema": "facts",
      "dbType": "OD",
      "connectionString": "DSN=sales;UID=ada;PWD=correct horse",
      "userName": "ada",
      "password": "correct horse"
    },
    {"database": "stock", "dbType": "OD", "connectionString": "DSN=stock"}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
