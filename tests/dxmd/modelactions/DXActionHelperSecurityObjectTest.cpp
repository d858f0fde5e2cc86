#include <dxmd/modelactions/DXActionHelperSecurityObject.h>

#include <dxmd/modelactions/DXActionHelperSecurityObjectSpec.h>

#include <type_traits>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using SecurityObject = DXActionHelperSecurityObject;
using Spec = DXActionHelperSecurityObjectSpec;
using ViewInfo = Spec::ViewInfo;

const char* const kFile = "DXActionHelperSecurityObject";

std::string readObject(const std::string& xml) {
  TRNIDOM_Element element = parsed(xml);
  const SecurityObject object(element);
  return (object.cmSearchPath + "|" + object.displayPath + "|" + object.type).toUtf8();
}

// The next principal with its views, as "path[view+package,...]"; "end" when there is none.
std::string nextEntry(Spec& spec) {
  std::vector<ViewInfo> views;
  const TRNSmartPointer<SecurityObject> object = spec.getEntry(views);
  std::string text = object.isNull() ? "end" : object->cmSearchPath.toUtf8();
  for (const ViewInfo& view : views) {
    std::vector<I18NString> packages;
    view.getPackageRefs(packages);
    text += "[" + view.getViewRef().toUtf8();
    for (const I18NString& package : packages) text += "+" + package.toUtf8();
    text += "]";
  }
  return text;
}

}  // namespace

// A literal 0 is a null pointer too, and so converts to a text.
template <typename Type>
constexpr bool isAccessType = std::is_constructible_v<SecurityObject, const char*, const char*, Type>;
static_assert(!isAccessType<int> && !isAccessType<long>);
static_assert(isAccessType<SecurityObject::EAccessType> && isAccessType<const char*>);

TEST(SecurityObject, PathsComeFromElementsWhenThereIsASearchPathElement) {
  const auto read = [](const std::string& inside) {
    return readObject("<securityObject cmSearchPath='a' displayPath='d' type='role'>" + inside + "</securityObject>");
  };
  EXPECT_EQ("a|d|role", read(""));
  EXPECT_EQ("a||role",
            readObject("<securityObject cmSearchPath='a' type='role'><displayPath>x</displayPath></securityObject>"));
  EXPECT_EQ("e||role", read("<x><cmSearchPath>e</cmSearchPath></x>"));
  EXPECT_EQ("e|f|role", read("<cmSearchPath>e</cmSearchPath><x><displayPath>f</displayPath></x>"));
  // An access element has attributes only.
  EXPECT_EQ("a||", readObject("<access cmSearchPath='a'><cmSearchPath>e</cmSearchPath></access>"));
}

TEST(SecurityObject, OtherElementsAreRefused) {
  const char* const text = "TRN_ASSERT(securityObjectElemName == dxmd_actionhelper_resources_securityObject_str);";
  expectAssert(text, kFile, [] { readObject("<Access/>"); });
  expectAssert(text, kFile, [] {
    TRNIDOM_Element null;
    const SecurityObject object(null);
  });
}

TEST(SecurityObject, AccessTypesAndTheirTexts) {
  EXPECT_EQ("account", SecurityObject::getAccessTypeStr(SecurityObject::kUser));
  EXPECT_EQ("role", SecurityObject("p", "", SecurityObject::kRole).type);
  EXPECT_EQ("group", SecurityObject("p", "", SecurityObject::kGroup).type);
  expectAssert("TRN_ASSERT(eAccessType == DXActionHelperSecurityObject::kUser);", kFile,
               [] { SecurityObject("p", "", static_cast<SecurityObject::EAccessType>(3)); });
}

TEST(SecurityObjectSpec, WritesPrincipalsWithTheirViewsAndReadsThemBackWithoutPackages) {
  Spec spec;
  TRNIDOM_Element element = madeElement(spec);
  ViewInfo view("v1");
  for (const char* package : {"p1", "p2", "p1"}) view.addPackageRef(package);
  spec.addEntry({"a", "A", SecurityObject::kRole}, {view, ViewInfo("v2")});
  spec.addEntry({"b", "", SecurityObject::kUser}, {});
  spec.addEntry({"", "ignored", SecurityObject::kUser}, {view});
  spec.addEntry({"b", "", SecurityObject::kUser}, {});
  expectXml(
      "<securityObjects><securityObject type=\"role\"><displayPath>A</displayPath><cmSearchPath>a</cmSearchPath>"
      "<view><viewref>v1</viewref><packageref>p1</packageref><packageref>p2</packageref></view>"
      "<view><viewref>v2</viewref></view></securityObject>"
      "<securityObject type=\"account\"><cmSearchPath>b</cmSearchPath></securityObject>"
      "<securityObject type=\"account\"><cmSearchPath>b</cmSearchPath></securityObject></securityObjects>",
      element);
  EXPECT_EQ(element, element.getOwnerDocument().getDocumentElement());
  spec.Take(element);
  for (const char* entry : {"a[v1][v2]", "b", "b", "end", "end"}) EXPECT_EQ(entry, nextEntry(spec));
}

TEST(SecurityObjectSpec, NestedViewsArePackagesOfTheOuterAndViewsOfTheirOwn) {
  const auto spec = taken<Spec>(
      "<securityObjects><securityObject cmSearchPath='a'><x><view><viewref>v1</viewref>"
      "<view>p1<viewref>v2</viewref></view></view></x></securityObject></securityObjects>");
  EXPECT_EQ("a[v1+p1][v2]", nextEntry(*spec));
}

TEST(SecurityObjectSpec, ReadsAListInTheMiddleOfADocumentAndWritesIntoIt) {
  TRNIDOM_Element document = parsed(
      "<r><a/><securityObjects><securityObject cmSearchPath='1'/><securityObject cmSearchPath='2'/></securityObjects>"
      "<securityObjects><securityObject cmSearchPath='3'/></securityObjects></r>");
  Spec spec;
  spec.Take(document);
  EXPECT_EQ("1", nextEntry(spec));
  take(spec, TRNIDOM_Element());  // keeps the place
  EXPECT_EQ("2", nextEntry(spec));
  EXPECT_EQ("end", nextEntry(spec));

  TRNIDOM_Element second = document.getLastChild();
  spec.Take(second);
  spec.addEntry({"4", "", "t"}, {});
  for (const char* entry : {"3", "4", "end"}) EXPECT_EQ(entry, nextEntry(spec));
}

TEST(SecurityObjectSpec, PrincipalsMustStandSideBySideInTheirList) {
  expectAssert(
      "TRN_ASSERT(m_currentSecurityObjectElem.isNull() || m_currentSecurityObjectElem.getParentNode().getNodeName() == "
      "kElemNameRoot);",
      kFile, [] { taken<Spec>("<securityObjects><x><securityObject/></x></securityObjects>"); });
  for (const char* between : {"<access/>", " ", "<!--note-->"}) {
    const auto spec = taken<Spec>(std::string("<securityObjects><securityObject/>") + between + "</securityObjects>");
    expectAssert(
        "TRN_ASSERT(m_currentSecurityObjectElem.isNull() || m_currentSecurityObjectElem.getNodeName() == "
        "dxmd_actionhelper_resources_securityObject_str);",
        kFile, [&] { nextEntry(*spec); });
  }
}

TEST(SecurityObjectSpec, AddingNeedsAListInADocument) {
  Spec spec;
  expectAssert("TRN_ASSERT(!m_requestRoot.isNull());", kFile, [&] { spec.addEntry({"", "", ""}, {}); });
  TRNIDOM_Element document = TRNIDOM_Node(newDocument());
  spec.Take(document);
  expectAssert("TRN_ASSERT(!domDoc.isNull());", kFile, [&] { spec.addEntry({"", "", ""}, {}); });
}

TEST(SecurityObjectSpec, NoReferenceOfAViewIsEmpty) {
  expectAssert("TRN_ASSERT(!m_viewRef.empty());", kFile, [] { ViewInfo(""); });
  expectAssert("TRN_ASSERT(!packageRef.empty());", kFile, [] { ViewInfo("v").addPackageRef(""); });
  const auto read = [](const char* xml) {
    TRNIDOM_Element element;
    if (xml != nullptr) element = parsed(xml);
    const ViewInfo view(element);
  };
  expectAssert("TRN_ASSERT(!viewElem.isNull());", kFile, [&] { read(nullptr); });
  expectAssert("TRN_ASSERT(!viewRefElem.isNull());", kFile, [&] { read("<view/>"); });
  expectAssert("TRN_ASSERT(!m_viewRef.empty());", kFile, [&] { read("<view><viewref/></view>"); });
  expectAssert("TRN_ASSERT(!packageRef.empty());", kFile, [&] { read("<view><viewref>v</viewref><view/></view>"); });
}
