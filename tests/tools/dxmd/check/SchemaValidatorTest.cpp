#include <gtest/gtest.h>

#include <tools/dxmd/Registry.h>
#include <tools/dxmd/check/SchemaValidator.h>

#include "RunTool.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

const SchemaNamespaces kNamespaces{"urn:dxmd:query-service:api:1", "urn:dxmd:service-bus:1"};

/// A line for each place: the number of the element, and the reason.
std::string misfits(const std::string& schema, const std::string& document,
                    const SchemaNamespaces& namespaces = kNamespaces) {
  std::string lines;
  for (const Misfit& misfit : SchemaValidator(DXMD_SCHEMAS, schema, namespaces).validate(document))
    lines += std::to_string(misfit.element) + " " + misfit.reason + "\n";
  return lines;
}

/// The document with the prefixes that stand around it where it is sent.
std::string declared(std::string document) {
  const std::string item = "<item ";
  if (document.compare(0, item.size(), item) == 0)
    document.insert(item.size(),
                    "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xmlns:bus='urn:dxmd:service-bus:1' ");
  return document;
}

std::string example(const std::string& kind) {
  return declared(encodedExample(kind));
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  EXPECT_NE(std::string::npos, at) << from;
  return text.replace(at, from.size(), to);
}

}  // namespace

TEST(SchemaValidator, ExampleOfEachKindFits) {
  for (const Kind& kind : allKinds()) EXPECT_EQ("", misfits(kind.name, example(kind.name))) << kind.name;
}

TEST(SchemaValidator, EachPlaceIsToldWithItsElement) {
  EXPECT_EQ(
      "0 holds text, where only elements may stand\n"
      "1 is not complete: it holds (level+)\n"
      "2 does not belong here: \"dimInfo\" holds (levels?,hierarchies?)\n"
      "5 is not complete: it holds (name,externalName,functionalDependency)\n"
      "7 does not belong here\n"
      "8 has no attribute \"a\"\n",
      misfits("dimInfo",
              "<dimInfo><levels/><other><x b='c'/></other><hierarchies><hierarchy><name/></hierarchy></hierarchies>"
              "<second/>text<hierarchies a='b'><hierarchy><name/><externalName/><functionalDependency/></hierarchy>"
              "</hierarchies></dimInfo>"));
  EXPECT_EQ(
      "2 has no attribute \"methods\"\n"
      "2 the attribute \"method\" is missing\n",
      misfits("externalizeReport",
              "<externalizeReport><entry objectID='' method=''/><entry objectID='' methods=''/></externalizeReport>"));
}

TEST(SchemaValidator, WrongOrderIsToldWhereItStarts) {
  EXPECT_EQ("3 does not belong here: \"securityObject\" holds (displayPath?,cmSearchPath,view*)\n",
            misfits("securityObjects",
                    "<securityObjects><securityObject type=''><cmSearchPath>a</cmSearchPath>"
                    "<displayPath>b</displayPath></securityObject></securityObjects>"));
}

TEST(SchemaValidator, TextsAllowedAreToldAndNoValueIs) {
  EXPECT_EQ("2 must be \"unspecified\", \"allow\" or \"deny\"\n",
            misfits("objectAccess", replaced(example("objectAccess"), "<rule>allow", "<rule>swordfish")));
  EXPECT_EQ("2 the attribute \"status\" must be \"success\", \"failure\" or \"unknown\"\n",
            misfits("updateObjectResponse",
                    replaced(example("updateObjectResponse"), "status=\"failure\"", "status=\"swordfish\"")));
  EXPECT_EQ(
      "2 the attribute \"name\" must be \"doSpecifiedChecks\"\n"
      "4 the attribute \"id\" must not be empty\n",
      misfits("analyzeModelRequest",
              "<analyzeModelRequest><tasks><task name='swordfish'><objects><object id=''/></objects><checks/></task>"
              "</tasks></analyzeModelRequest>"));
}

TEST(SchemaValidator, NamespaceIsThatOfTheDeployment) {
  const std::string command = example("closeConnections");
  const std::string other = replaced(command, "urn:dxmd:query-service:api:1", "urn:&amp;&lt;&quot;b");
  EXPECT_EQ("0 is in namespace \"urn:&<\\\"b\", and must be in namespace \"urn:dxmd:query-service:api:1\"\n",
            misfits("closeConnections", other));
  EXPECT_EQ("", misfits("closeConnections", other, {"urn:&<\"b", "urn:c"}));
  EXPECT_EQ("0 is in namespace \"urn:a\", and must be in no namespace\n",
            misfits("packages", "<packages xmlns='urn:a'><package/></packages>"));
  EXPECT_EQ("0 is in no namespace, and must be in namespace \"urn:dxmd:query-service:api:1\"\n",
            misfits("closeConnections", "<command><closeConnections/></command>"));
  const std::string item = example("parameterValueItem");
  EXPECT_EQ("0 \"xsi:type\" names no type that it may have\n", misfits("parameterValueItem", item, {"urn:a", "urn:b"}));
}

TEST(SchemaValidator, PrefixesAreThoseDeclared) {
  const std::string prefixed =
      "<q:command xmlns:q='urn:dxmd:query-service:api:1'><q:closeConnections/><q:commandID value=''/>"
      "<q:requestID value=''/></q:command>";
  EXPECT_EQ("", misfits("closeConnections", prefixed));
  EXPECT_EQ("1 the prefix \"r\" is not declared\n",
            misfits("closeConnections", replaced(prefixed, "<q:closeConnections", "<r:closeConnections")));
}

TEST(SchemaValidator, NothingIsLoadedThatADocumentNames) {
  TempFolder folder;
  const std::string schema = folder.add("any.xsd",
                                        "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element "
                                        "name='packages'><xs:complexType/></xs:element></xs:schema>");
  EXPECT_EQ("", misfits("packages",
                        "<packages xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                        "xsi:noNamespaceSchemaLocation='" +
                            schema + "'><package cmSearchPath='' defaultName=''/></packages>"));
}

TEST(SchemaValidator, OneValidatesManyDocuments) {
  SchemaValidator validator(DXMD_SCHEMAS, "getParameters", kNamespaces);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(1u, validator.validate("<parameters><parameter name=''/></parameters>").size());
    EXPECT_EQ(0u, validator.validate("<parameters><parameter name='' value=''/></parameters>").size());
    EXPECT_EQ(1u, validator.validate("<parameters><unclosed:a/></parameters>").size());
  }
}

TEST(SchemaValidator, DeepDocumentsAreValidated) {
  const std::string deep = repeated(SchemaValidator::kDeepest - 1, "<entry class='info'>") + "<entry/>" +
                           repeated(SchemaValidator::kDeepest - 1, "</entry>");
  EXPECT_EQ("10000 the attribute \"class\" is missing\n", misfits("feedback", "<feedback>" + deep + "</feedback>"));
}

TEST(SchemaValidator, MissingOrWrongSchemaIsAnError) {
  TempFolder folder;
  EXPECT_THROW(SchemaValidator(folder.path(""), "packages", kNamespaces), ToolError);
  folder.add("packages.xsd", "<packages/>");
  try {
    SchemaValidator(folder.path(""), "packages", kNamespaces);
    ADD_FAILURE() << "it is no schema";
  } catch (const ToolError& error) {
    EXPECT_EQ(kStatusFile, error.status());
    EXPECT_TRUE(has(error.what(), "packages.xsd: no schema: ")) << error.what();
  }
}
