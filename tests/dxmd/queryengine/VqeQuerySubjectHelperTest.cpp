#include <dxmd/queryengine/VqeQuerySubjectHelper.h>

#include <trnidom/TRNIDOM_DOMException.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

std::string querySubject(const std::string& definition) {
  TRNIDOM_Element element = parsed(definition);
  const std::string xml = made(VqeQuerySubjectHelper("m", element));
  EXPECT_EQ(definition, xmlOf(element)) << "the caller's definition stays as it is";
  return xml;
}

std::string expected(const std::string& definition) {
  return inDXEnvelope(R"(<querySubject type="querySubject"><name>aBmtQuerySubject</name><definition>)" + definition +
                      "</definition></querySubject>");
}

}  // namespace

TEST(VqeQuerySubjectHelper, HoldsACopyOfTheDefinitionWithTheFirstSqlOfTheTypeRetyped) {
  expectXml(expected("<dbQuery><!--c-->text</dbQuery>"), querySubject("<dbQuery><!--c-->text</dbQuery>"));
  expectXml(expected(R"(<q><sql type="native"/><x><sql type="Veltra">a</sql></x><sql type="veltra"/></q>)"),
            querySubject(R"(<q><sql type="native"/><x><sql type="veltra">a</sql></x><sql type="veltra"/></q>)"));
  expectXml(expected(R"(<sql type="Veltra"/>)"), querySubject(R"(<sql type="veltra"/>)"));
  expectXml(expected(R"(<SQL type="veltra"/>)"), querySubject(R"(<SQL type="veltra"/>)"));
}

TEST(VqeQuerySubjectHelper, DefinitionIsCopiedWhenMadeAndOutlivesTheCallersHandle) {
  std::unique_ptr<VqeQuerySubjectHelper> command;
  {
    TRNIDOM_Element definition = parsed("<sql/>");
    command = std::make_unique<VqeQuerySubjectHelper>("m", definition);
    definition.setAttribute("type", "native");
  }
  expectXml(expected(R"(<sql type="native"/>)"), made(*command));
}

TEST(VqeQuerySubjectHelper, NullDefinitionIsRefusedByTheDom) {
  TRNIDOM_Element none;
  EXPECT_THROW(made(VqeQuerySubjectHelper("m", none)), TRNIDOM_DOMException);
}
