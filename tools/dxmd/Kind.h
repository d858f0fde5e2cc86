#ifndef TOOLS_DXMD_KIND_H
#define TOOLS_DXMD_KIND_H

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <trnidom/TRNIDOM_Element.h>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonReader.h>
#include <tools/dxmd/json/JsonWriter.h>

// How to add a kind of message.
//
// A kind is one `Kind` in the list that its family returns, kinds/<Family>Kinds.cpp, and its mapping functions in the
// same file. Nothing else knows kinds one by one: the verbs, their help, the masking of secrets and the tests that run
// over every kind all work from this entry.
//
//   TRNIDOM_Element encodeNotice(JsonObject& json, const KindOptions&) {
//     DXNoticeHelper notice;
//     notice.SetText(json.required("text").text());
//     notice.SetUrgency(json.optional("urgency").enumerator(kUrgencies));
//     json.optional("lines").objects([&](JsonObject& line) { notice.AddLine(line.required("text").text()); });
//     return made(notice);
//   }
//
//   Decoded decodeNotice(TRNIDOM_Element& root, const KindOptions&) {
//     DXNoticeHelper notice;
//     notice.Take(root);
//     Json json = Json::object();
//     json["text"] = notice.GetText();
//     putUnlessEmpty(json, "urgency", kUrgencies.text(notice.GetUrgency()));
//     return json;
//   }
//
//   Kind notice;
//   notice.name = "notice";
//   notice.summary = "A notice to the users of a model";
//   notice.roots = {"notice"};
//   notice.encode = encodeNotice;
//   notice.decode = decodeNotice;
//   notice.roundTrips = true;
//   notice.example = R"({"text": "Closed on Monday"})";
//
// JSON keys are the XML's names, or where the XML has none the setter's, with a small first letter. What a getter gives
// goes under the key that the setter's value came from. The example shows every key; tests break it in every place.

namespace dxmd_tool {

/// What a decoder gives to print: JSON, a document to write back as XML, or text that is ready as it is.
using Decoded = std::variant<Json, TRNIDOM_Element, std::string>;

/// An option of one kind, which joins the help of that kind's verb and is refused for other kinds.
struct KindOption {
  enum Verb { kEncode, kDecode };

  Verb verb;
  const char* name;                       ///< as typed: "--from"
  const char* argument;                   ///< what its value is, as help shows it: "FILE"
  const char* help;                       ///< one line
  std::vector<std::string> choices = {};  ///< the values allowed; empty allows any
  bool replacesInput = false;             ///< given without FILE, the input is `{}` and standard input is not read
};

/// The options of its kind that the command line gave.
class KindOptions {
 public:
  explicit KindOptions(std::map<std::string, std::string> values = {}) : m_values(std::move(values)) {}

  /// The option's value; none when it was not given. Files named here are read with `readFile`.
  std::optional<std::string> value(const std::string& name) const;

 private:
  std::map<std::string, std::string> m_values;
};

/// One kind of message and all that the tool knows of it.
struct Kind {
  std::string name;     ///< as typed
  std::string summary;  ///< one line
  std::string notes;    ///< for the kind's help: forms of the JSON, peculiarities; lines of at most 100 columns

  /// The root element: what `encode` writes first, then others that `decode` takes.
  std::vector<std::string> roots;
  /// `decode` takes a root of any name when the document holds an element of one of these names.
  std::vector<std::string> orHolding;

  std::function<TRNIDOM_Element(JsonObject&, const KindOptions&)> encode;  ///< none when the kind is only read
  std::function<Decoded(TRNIDOM_Element&, const KindOptions&)> decode;     ///< none when the kind is only written
  bool roundTrips = false;  ///< decoding what was encoded from the example gives the example

  std::string example;  ///< complete JSON to encode; for a kind that is only read, complete XML to decode
  std::vector<KindOption> options;
};

/// The element that the helper's `Make` hands back.
template <typename Helper>
TRNIDOM_Element made(const Helper& helper) {
  TRNIDOM_Element element;
  helper.Make(element);
  return element;
}

}  // namespace dxmd_tool

#endif
