#ifndef TOOLS_DXMD_KIND_H
#define TOOLS_DXMD_KIND_H

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <trnidom/TRNIDOM_Element.h>

#include <tools/dxmd/json/JsonFwd.h>
#include <tools/dxmd/json/JsonReader.h>
#include <tools/dxmd/shape/Description.h>
#include <tools/dxmd/shape/Shape.h>

// How to add a kind of message.
//
// A kind is one line in kinds/kinds.def, one file kinds/<family>/<kind>.cpp, and one test of that name. The verbs,
// their help, the schemas, the masking of secrets and the tests that run over every kind all work from these.
//
//   namespace dxmd_tool {
//
//   namespace {
//
//   struct Notice {
//     I18NString text;
//     Urgency urgency{};
//   };
//   void shape(Shape& s, Notice& notice) {
//     s.required("text", notice.text, "What the users of the model are told");
//     s.optional("urgency", notice.urgency, "How soon they should act", kUrgencies);
//   }
//
//   TRNIDOM_Element make(const Notice& notice) {
//     DXNoticeHelper helper;
//     helper.SetText(notice.text);
//     helper.SetUrgency(notice.urgency);
//     return made(helper);
//   }
//
//   Notice take(TRNIDOM_Element& root) {
//     DXNoticeHelper helper;
//     helper.Take(root);
//     return {helper.GetText(), helper.GetUrgency()};
//   }
//
//   }  // namespace
//
//   Kind kinds::notice() {
//     Kind kind = kindOf(make, take);
//     kind.summary = "A notice to the users of a model";
//     kind.purpose = "Sent to the modelling service, which shows it to whoever opens the model.";
//     kind.helper = "DXNoticeHelper";
//     kind.roots = {"notice"};
//     kind.example = R"({"text": "Closed on Monday"})";
//     return kind;
//   }
//
//   }  // namespace dxmd_tool
//
// JSON keys are the XML's names, or where the XML has none the setter's, with a small first letter. What a getter gives
// goes under the key that the setter's value came from. The example shows every key; tests break it in every place.

namespace dxmd_tool {

class Output;

/// How a decoder prints that prints by itself.
struct Printing {
  Output& out;
  unsigned indent;
  bool showSecrets;
};

/// What a decoder gives to print: JSON, a document to write back as XML, a text, or the function that prints what is
/// too large to be held as one of these, which hides secrets itself.
class Decoded {
 public:
  using Print = std::function<void(const Printing&)>;

  Decoded(Json json);                // NOLINT: whichever a decoder returns
  Decoded(TRNIDOM_Element element);  // NOLINT
  Decoded(std::string text);         // NOLINT
  Decoded(Print print);              // NOLINT

  /// The JSON; null when it is something else.
  Json* json() const { return m_json.get(); }
  /// The document; null when it is something else.
  const TRNIDOM_Element& element() const { return m_element; }
  const std::string& text() const { return m_text; }
  /// The function; null when it is something else.
  const Print& print() const { return m_print; }

 private:
  std::shared_ptr<Json> m_json;
  TRNIDOM_Element m_element;
  std::string m_text;
  Print m_print;
};

/// Decodes a document that may be larger than memory: elements of one name are handed over one by one, and are no part
/// of the root that comes last.
struct PieceDecoder {
  std::string element;
  std::function<void(const TRNIDOM_Element&)> visit;
  /// Whether all that was visited stood where it belongs, as far as the root tells.
  std::function<bool(const TRNIDOM_Element& root)> fits;
  std::function<Decoded(TRNIDOM_Element& root)> finish;
};

/// An option of one kind, which joins the help of that kind's verb and is refused for other kinds.
struct KindOption {
  enum Verb { kEncode, kDecode };

  Verb verb;
  const char* name;                       ///< as typed: "--from"
  const char* argument;                   ///< what its value is, as help shows it: "FILE"
  const char* help;                       ///< one line
  std::vector<std::string> choices = {};  ///< the values allowed; empty allows any
  bool replacesInput = false;             ///< given without FILE, the input is `{}` and standard input is not read
  bool keepsDocument = false;  ///< given, white space and all else stays in the document, which is written back
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

/// Who reads or writes a document: a helper of the library, or the tool where the library has none for that.
enum class Does { kLibrary, kTool };

/// One kind of message and all that the tool knows of it.
struct Kind {
  std::string name;     ///< as typed; from kinds.def
  std::string family;   ///< the folder of its helper; from kinds.def
  std::string summary;  ///< one line
  std::string purpose;  ///< who needs it for what, in whole sentences; lines of at most 100 columns
  std::string notes;    ///< what the keys' meanings cannot say, for the kind's help; lines of at most 100 columns

  std::string helper;  ///< the class that writes or reads it; its header bears the same name
  Does writes = Does::kLibrary;
  Does reads = Does::kLibrary;
  std::string reply;  ///< the kind that answers it

  /// The root element: what `encode` writes first, then others that `decode` takes.
  std::vector<std::string> roots;
  /// For a command: the element inside the envelope, or inside "dxCommand" there, that tells it from other commands.
  std::string wrapped;
  /// `decode` takes a root of any name when the document holds an element of one of these names.
  std::vector<std::string> orHolding;
  /// What tells it from other kinds of its root, when that is not `orHolding`: it holds an element of one of these
  /// names.
  std::vector<std::string> marks;
  /// For a reply that may report errors: what they are, in words; empty when the document reports none.
  std::function<std::string(const TRNIDOM_Element& root)> errors;

  std::function<Description()> describe;  ///< its JSON
  std::function<TRNIDOM_Element(JsonObject&, const KindOptions&)> encode;
  std::function<Decoded(TRNIDOM_Element&, const KindOptions&)> decode;
  /// Decodes large documents in the stead of `decode`, with the same result; null for a kind that has no large ones.
  std::function<PieceDecoder(const KindOptions&)> decodePieces;

  std::string example;  ///< complete JSON to encode
  std::vector<KindOption> options;
};

/// The element that the helper's `Make` hands back.
template <typename Helper>
TRNIDOM_Element made(const Helper& helper) {
  TRNIDOM_Element element;
  helper.Make(element);
  return element;
}

Decoded runDecoded(const std::function<void(Shape&)>& run);

/// The record as decoded JSON.
template <typename Record>
Decoded decodedRecord(const Record& record) {
  return runDecoded([&](Shape& s) { shape(s, const_cast<Record&>(record)); });
}

/// A kind whose JSON is that of a record.
template <typename Record>
Kind kindOf(TRNIDOM_Element (*make)(const Record&), Record (*take)(TRNIDOM_Element&)) {
  Kind kind;
  kind.describe = [] { return describe<Record>(); };
  kind.encode = [make](JsonObject& json, const KindOptions&) {
    Record record{};
    readRecord(json, record);
    return make(record);
  };
  kind.decode = [take](TRNIDOM_Element& root, const KindOptions&) { return decodedRecord(take(root)); };
  return kind;
}

// Each kind's own function.
namespace kinds {

#define DXMD_KIND(family, kind) Kind kind();
#include <tools/dxmd/kinds/kinds.def>
#undef DXMD_KIND

}  // namespace kinds

}  // namespace dxmd_tool

#endif
