#include <dxmd/queryengine/VqeTestConnectionHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct TestConnection {
  I18NString dataSource;
  I18NString name;
  I18NString signon;
  I18NString username;
  I18NString password;
  I18NString connectionString;
  I18NString cubePassword;
  I18NString nameSpace;
};

void shape(Shape& s, TestConnection& command) {
  s.required("dataSource", command.dataSource, "The name of the data source");
  s.optional("name", command.name, "The name of the connection");
  s.optional("signon", command.signon, "The name of the sign-on");
  s.optional("username", command.username, "The user's name");
  s.optional("password", command.password, "The user's password, written as plain text");
  s.required("connectionString", command.connectionString, "How to reach the database");
  s.optional("cubePassword", command.cubePassword, "The password of the cube, written as plain text");
  s.optional("namespace", command.nameSpace, "The namespace that the user signs on to");
}

TRNIDOM_Element make(const TestConnection& command) {
  return made(VqeTestConnectionHelper(command.dataSource, command.name, command.signon, command.username,
                                      command.password, command.connectionString, command.cubePassword,
                                      command.nameSpace));
}

TestConnection take(TRNIDOM_Element& root) {
  const TRNIDOM_Element service = requiredChild(root, "connection");
  requireAttribute(requiredChild(service, "dataSourceType"), "value", "QueryFrameworkService");
  const TRNIDOM_Element database = requiredChild(service, "connection");
  requireAttribute(requiredChild(database, "dataSourceType"), "value", "Database");
  const auto value = [&](const char* name) { return firstChild(database, name).getAttribute("value"); };
  return {value("dataSource"),
          value("name"),
          firstChild(firstChild(database, "signon"), "name").getAttribute("value"),
          value("username"),
          value("password"),
          value("connectionString"),
          value("cubePassword"),
          value("namespace")};
}

}  // namespace

Kind kinds::testConnection() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to test a database connection";
  kind.purpose = R"(Has the query engine try a database connection, given by its connection string and what to sign
on with. Unlike other commands it has no namespaces, no identifiers and no connection of its own
beside the tested one.)";
  kind.helper = "VqeTestConnectionHelper";
  kind.reads = Does::kTool;
  kind.roots = {"command"};
  kind.wrapped = "testConnection";
  kind.example = R"({
  "dataSource": "Orders",
  "name": "Orders test",
  "signon": "Orders sign-on",
  "username": "reader",
  "password": "swordfish",
  "connectionString": "Driver=Example;Server=db.example.com;Pwd=swordfish",
  "cubePassword": "opensesame",
  "namespace": "Staff"
})";
  return kind;
}

}  // namespace dxmd_tool
