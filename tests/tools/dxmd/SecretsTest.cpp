#include <tools/dxmd/Secrets.h>

#include <gtest/gtest.h>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonError.h>
#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/shape/Shape.h>

#include "RunTool.h"

using namespace dxmd_test;
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
  EXPECT_EQ("DSN=x;UID=u;PWD=***;DB=d", maskedText("DSN=x;UID=u;PWD=p;DB=d"));
  EXPECT_EQ("Password=***", maskedText("Password= p q "));
  EXPECT_EQ("pwd=***;x=1", maskedText("pwd={a;b};x=1"));
  EXPECT_EQ("pwd=***;x=1", maskedText("pwd='a;b';x=1"));
  EXPECT_EQ("pwd=***", maskedText("pwd={a;b"));
  EXPECT_EQ("pwd=;x=1;;", maskedText("pwd=;x=1;;"));
  EXPECT_EQ("", maskedText(""));
  EXPECT_EQ("a= b=c;d", maskedText("a= b=c;d"));
  EXPECT_EQ("Pwd=***;x", maskedText("Pwd=\"a\"\";b\";x"));
  EXPECT_EQ("PWD=***", maskedText("PWD={a}};b}"));
  EXPECT_EQ("PWD=***;x", maskedText("PWD=\t\"a;b\";x"));
  EXPECT_EQ("Extended=\"Password=***;x=1\"", maskedText("Extended=\"Password=p;x=1\""));
  EXPECT_EQ("jdbc:x://h?user=a&password=***;y", maskedText("jdbc:x://h?user=a&password=p&b=1;y"));
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

TEST(Secrets, TextsOfXmlWithinXmlAreSearchedToo) {
  const std::string inner = "&lt;p name='password' value='p'/>";
  EXPECT_EQ(
      "<a b=\"&lt;p name=&quot;password&quot; value=&quot;***&quot;/>\">&lt;p name=\"password\" value=\"***\"/&gt;</a>",
      shownText("<a b=\"" + inner + "\">" + inner + "</a>"));
  std::string deep = "<p name='password' value='planted'/>";
  for (int i = 0; i < 9; ++i) {
    for (std::size_t at = 0; (at = deep.find_first_of("<&", at)) != std::string::npos; at += 4)
      deep.replace(at, 1, deep[at] == '<' ? "&lt;" : "&amp;");
    deep = "<a>" + deep + "</a>";
  }
  EXPECT_FALSE(has(shownText(deep), "planted"));
}

TEST(Secrets, ErrorsQuoteNoneOfXml) {
  EXPECT_EQ(R"("<p name=\"password\" value=\"***\"/>")", inQuotes("<p name='password' value='p'/>"));
  EXPECT_EQ(R"("<ticket><a>***</a></ticket>")", inQuotes("<ticket><a>t</a></ticket>"));
}

TEST(Secrets, NamesAreToldByWholeWords) {
  for (const char* name :
       {"password", "cubePassword", "VAMPassport", "SSOTicket", "SSOTICKET", "PWD1", "dbPwd", "apikey", "X-Api-Key",
        "access_token", "clientSecret", "secret_name", "pass", "Authorization", "Password 2"})
    EXPECT_TRUE(isSecretName(name)) << name;
  for (const char* name : {"Ticket class", "TICKET_ID", "passenger", "compass", "bypass", "tokenizer", "key",
                           "uniqueKey", "secretary", "passwordless", "passport number", "authorizationless", ""})
    EXPECT_FALSE(isSecretName(name)) << name;
}

TEST(Secrets, TextsAreMaskedByWhatStandsAroundSecrets) {
  const struct {
    const char* text;
    const char* masked;
  } cases[] = {
      {"password: x", "password: ***"},
      {"user: u\npassword: x y, z\nhost: h", "user: u\npassword: ***\nhost: h"},
      {"Authorization: Basic dTpw\r\nHost: h", "Authorization: ***\r\nHost: h"},
      {R"(got {"user": "u", "password": "p\"q", "n": 1})", R"(got {"user": "u", "password": "***", "n": 1})"},
      {R"({"token": 12, "n": 1})", R"({"token": ***, "n": 1})"},
      {R"({"secret": {"a": "b"}, "n": 1})", R"({"secret": ***, "n": 1})"},
      {R"({\"password\": \"p\", \"n\": 1})", R"({\"password\": \"***\", \"n\": 1})"},
      {"http://u:p@h/x?mail=a@b", "http://u:***@h/x?mail=a@b"},
      {"to u:p@h now", "to u:***@h now"},
      {"to u:p@q@h now", "to u:***@h now"},
      {"connect scott/tiger@orcl", "connect scott/***@orcl"},
      {"scott/tiger@", "scott/***@"},
      {"apikey=k;x=1", "apikey=***;x=1"},
      {"token:\"a;secret=\"b\";x=1", "token:***;secret=***;x=1"},
      {"token:\"a;secret=\"?b\";x=1", "token:\"***\";x=1"},
      {"password: \"a", "password: \"***"},
      {"token:[a\npassword=b]}c;x=1", "token:***;x=1"},
      {"pass=k;secret = l;token=m", "pass=***;secret =***;token=***"},
      {"failed for <password a='b'>p</password>.", "failed for <password a='b'>***</password>."},
      {"select * from t where TICKET_ID = 5 and x = 'y'", "select * from t where TICKET_ID = 5 and x = 'y'"},
      {"Ticket class: first", "Ticket class: first"},
      {"Passenger: p, compass=n", "Passenger: p, compass=n"},
      {"http://h:8080/a@b, a@b.c, mailto:a@b", "http://h:8080/a@b, a@b.c, mailto:a@b"},
      {"/content/package[@name='Sales']/a/@b at 12:30", "/content/package[@name='Sales']/a/@b at 12:30"},
      {"a > b and c:d", "a > b and c:d"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(each.masked, maskedText(each.text));
    EXPECT_EQ(each.masked, maskedText(each.masked)) << "masked again";
  }
}

TEST(Secrets, LoginThatBeginsInBracketsIsHiddenToItsEnd) {
  EXPECT_EQ("token:******@base", maskedText("token:[x;scott/a]]b@base"));
}

TEST(Secrets, MasksAreToldFromSecrets) {
  EXPECT_TRUE(holdsSecrets(Json::parse(R"({"a": [{"connection": "UID=u;PWD=p"}]})"), nullptr));
  EXPECT_TRUE(holdsSecrets(Json::parse(R"({"password": 1})"), nullptr));
  EXPECT_FALSE(holdsSecrets(Json::parse(R"({"a": [{"connection": "UID=u;PWD="}], "password": ""})"), nullptr));
  EXPECT_NO_THROW(refuseMasks(Json::parse(R"({"a": "***", "password": "p***"})"), nullptr, "in"));
  for (const char* json : {R"({"password": "***"})", R"({"a": "PWD=***;x"})", R"({"a": "<a password='***'/>"})",
                           R"({"a": "u:***@h"})", R"({"a": "PWD='***'"})"})
    EXPECT_THROW(refuseMasks(Json::parse(json), nullptr, "in"), JsonError) << json;
}
