#include <tools/dxmd/Secrets.h>

#include <gtest/gtest.h>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/shape/Shape.h>

using namespace dxmd_tool;

namespace {

std::string masked(const std::string& text, const DescribedRecord* record = nullptr) {
  Json json = Json::parse(text);
  maskSecrets(json, record);
  return json.dump();
}

}  // namespace

TEST(Secrets, NamesHideWhatStandsUnderThem) {
  EXPECT_EQ(R"({"password":"***","VAMPassport":"***","SSOTicket":["***","***"],"cubePassword":{"a":"***"},"name":"x"})",
            masked(R"({"password":"p","VAMPassport":1,"SSOTicket":["t","u"],"cubePassword":{"a":"p"},"name":"x"})"));
  EXPECT_EQ(R"({"password":""})", masked(R"({"password":""})"));
}

TEST(Secrets, NamedValueIsHiddenByItsName) {
  EXPECT_EQ(R"([{"name":"password","value":"***"},{"name":"user","value":"u"}])",
            masked(R"([{"name":"password","value":"p"},{"name":"user","value":"u"}])"));
}

namespace {

struct Card {
  I18NString pin;
  std::vector<Card> cards;
};

void shape(Shape& s, Card& card) {
  s.optional("pin", card.pin, "What the owner knows", secret());
  s.optional("cards", card.cards, "Cards within");
}

}  // namespace

TEST(Secrets, DescriptionTellsMore) {
  const Description description = describe<Card>();
  EXPECT_EQ(
      R"({"pin":"***","cards":[{"pin":"***"}],"link":"UID=u;PWD=***","other":{"pin":"1"}})",
      masked(R"({"pin":"1","cards":[{"pin":"2"}],"link":"UID=u;PWD=p","other":{"pin":"1"}})", &description.whole()));
}

TEST(Secrets, ConnectionStringsKeepAllButPasswords) {
  EXPECT_EQ("DSN=x;UID=u;PWD=***;DB=d", maskedParameters("DSN=x;UID=u;PWD=p;DB=d"));
  EXPECT_EQ("Password=***", maskedParameters("Password= p q "));
  EXPECT_EQ("pwd=***;x=1", maskedParameters("pwd={a;b};x=1"));
  EXPECT_EQ("pwd=***;x=1", maskedParameters("pwd='a;b';x=1"));
  EXPECT_EQ("pwd=***", maskedParameters("pwd={a;b"));
  EXPECT_EQ("pwd=;x=1;;", maskedParameters("pwd=;x=1;;"));
  EXPECT_EQ("", maskedParameters(""));
  EXPECT_EQ("a= b=c;d", maskedParameters("a= b=c;d"));
  EXPECT_EQ("Pwd=***;x", maskedParameters("Pwd=\"a\"\";b\";x"));
  EXPECT_EQ("PWD=***", maskedParameters("PWD={a}};b}"));
  EXPECT_EQ("PWD=***;x", maskedParameters("PWD=\t\"a;b\";x"));
  EXPECT_EQ("Extended=\"Password=***;x=1\"", maskedParameters("Extended=\"Password=p;x=1\""));
  EXPECT_EQ("jdbc:x://h?user=a&password=***;y", maskedParameters("jdbc:x://h?user=a&password=p&b=1;y"));
}

TEST(Secrets, TextsOfXmlAreSearchedToo) {
  EXPECT_EQ(R"({"e":"<a password=\"***\"><password>***</password><p name=\"password\" value=\"***\"/><b>t</b></a>"})",
            masked(R"({"e":"<a password='p'><password>p</password><p name='password' value='p'/><b>t</b></a>"})"));
  EXPECT_EQ(R"({"e":"<a><ticket><b c=\"***\">***</b><!--***--></ticket><b>t</b></a>"})",
            masked(R"({"e":"<a><ticket><b c='t'>t</b><!--t--></ticket><b>t</b></a>"})"));
  EXPECT_EQ(R"({"e":"<a connectionString=\"pwd=***\"><connectionString>pwd=***;x</connectionString></a>"})",
            masked(R"({"e":"<a connectionString='pwd=p'><connectionString>pwd=p;x</connectionString></a>"})"));
  EXPECT_EQ(R"({"e":"***"})", masked(R"({"e":"<password>p"})"));
  EXPECT_EQ(R"({"e":"<a  b='c'/>"})", masked(R"({"e":"<a  b='c'/>"})"));
}
