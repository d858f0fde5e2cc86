#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include <trnidom/TRNIDOM_Document.h>

#include <tools/dxmd/Detect.h>
#include <tools/dxmd/Input.h>
#include <tools/dxmd/Registry.h>
#include <tools/dxmd/Secrets.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/Verbs.h>
#include <tools/dxmd/capture/Message.h>
#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

/// What is larger is decoded piece by piece where the kind knows how.
constexpr std::size_t kWhole = std::size_t{4} << 20;

void printDecoded(const Decoded& decoded, const Kind& kind, const Settings& settings, Output& out) {
  if (settings.showSecrets) out.holdsSecrets();
  if (Json* const json = decoded.json()) {
    checkJsonDepth(*json);
    if (!settings.showSecrets) {
      const Description description = kind.describe();
      maskSecrets(*json, &description.whole());
    }
    out.isJson();
    out.write(toText(*json, settings.indent.value_or(kJsonIndent)) + "\n");
  } else if (!decoded.element().isNull()) {
    // A message to send on, which would be of no use without its secrets.
    if (holdsSecrets(decoded.element())) out.holdsSecrets();
    out.write(xmlText(decoded.element(), settings.indent.value_or(0)));
  } else if (decoded.print()) {
    decoded.print()({out, settings.indent.value_or(kJsonIndent), settings.showSecrets});
  } else {
    out.write(settings.showSecrets ? decoded.text() : shownText(decoded.text()));
  }
}

/// Whether an option was given that writes the document back.
bool keepsDocument(const Kind& kind, const Settings& settings) {
  return std::any_of(kind.options.begin(), kind.options.end(), [&](const KindOption& option) {
    return option.keepsDocument && settings.kindOptions.value(option.name).has_value();
  });
}

/// The element to decode.
TRNIDOM_Element rootOf(const TRNIDOM_Document& document, const Kind* asked, const Settings& settings) {
  const bool isKept = settings.exact || (asked != nullptr && keepsDocument(*asked, settings));
  return isKept ? document.getDocumentElement() : messageIn(document, &isMessageName);
}

/// The kind of the message: the one asked for, which it must be of, or else the one that it is of.
const Kind& settledKind(const Kind* asked, const TRNIDOM_Element& root, const std::string& name) {
  if (asked == nullptr) return kindOf(root, name);
  checkKind(*asked, root, name);
  return *asked;
}

/// Decodes one message and tells of errors that it reports, unless the kind asked for is one that reports them.
void printMessage(const Kind& kind, const Kind* asked, const TRNIDOM_Element& root, const std::string& name,
                  const std::function<void()>& print) {
  const bool isExpected = asked != nullptr && kind.errors;
  const std::string errors = isExpected ? std::string() : errorsReportedBy(root);
  print();
  if (!errors.empty()) throw ToolError(kStatusReported, name + ": " + kind.name + ": it reports: " + errors);
}

/// The name that elements of that local name have in the text, or may have.
std::string prefixedName(std::string text, const std::string& localName) {
  // Of UTF-16 every second byte is one.
  text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
    const std::size_t end = text.find_first_of(" \t\r\n/>", at + 1);
    if (end == std::string::npos) break;
    std::string name = text.substr(at + 1, std::min<std::size_t>(end - at - 1, 256));
    if (name == localName ||
        (name.size() > localName.size() + 1 && name[0] != '!' &&
         name.compare(name.size() - localName.size() - 1, std::string::npos, ":" + localName) == 0))
      return name;
  }
  return localName;
}

/// Decodes a document without having all of it in memory, as that kind does.
void decodeLarge(const Kind& large, const Kind* asked, const Settings& settings, XmlInput& input, Output& out) {
  const PieceDecoder pieces = large.decodePieces(settings.kindOptions);
  const std::string element = settings.exact ? pieces.element : prefixedName(input.start(), pieces.element);
  bool hasPieces = false;
  const TRNIDOM_Document document = input.parseEach(element, [&](const TRNIDOM_Element& piece) {
    hasPieces = true;
    pieces.visit(settings.exact ? piece : withoutPrefix(piece));
  });
  const std::string& name = input.name();
  if (document.getDocumentElement().isNull())
    throw ToolError(kStatusUnfit, name + ": no " + large.name + ": it is one " + pieces.element);
  TRNIDOM_Element root = rootOf(document, asked, settings);
  const Kind& kind = settledKind(asked, root, name);
  const auto tooLarge = [&](const std::string& why) {
    throw ToolError(kStatusUnfit,
                    name + ": a document of this size is read one " + inQuotes(pieces.element) + " at a time, " + why);
  };
  const bool isPieceKind = kind.name == large.name;
  if (isPieceKind && !pieces.fits(root)) tooLarge("and in this one they do not all stand in one place");
  if (!isPieceKind && hasPieces) tooLarge("unless its kind is named: dxmd decode " + kind.name);
  printMessage(kind, asked, root, name, [&] {
    printDecoded(isPieceKind ? pieces.finish(root) : kind.decode(root, settings.kindOptions), kind, settings, out);
  });
}

/// The kind that may be large, of which a document is taken to be until it is known.
const Kind& largeKind() {
  return *std::find_if(allKinds().begin(), allKinds().end(), [](const Kind& kind) { return !!kind.decodePieces; });
}

void decodeOne(const Kind* asked, const Settings& settings, const Input& raw, Output& out) {
  XmlInput input(raw, settings.exact);
  refusalsNamed(input.name(), [&] {
    const Kind& large = asked != nullptr ? *asked : largeKind();
    const bool isWhole = input.endsWithin(kWhole);
    input.refuseHtml();
    if (!isWhole && large.decodePieces) return decodeLarge(large, asked, settings, input, out);
    const TRNIDOM_Document document = input.parse();
    TRNIDOM_Element root = rootOf(document, asked, settings);
    const Kind& kind = settledKind(asked, root, input.name());
    printMessage(kind, asked, root, input.name(),
                 [&] { printDecoded(kind.decode(root, settings.kindOptions), kind, settings, out); });
  });
}

}  // namespace

void decode(const Kind& kind, const Settings& settings, const Input& input, Output& out) {
  decodeOne(&kind, settings, input, out);
}

std::string decode(const Kind& kind, const Settings& settings, std::istream& in) {
  StringOutput out;
  decode(kind, settings, inputOf(settings.file, in, settings.onRead), out);
  return out.take();
}

Status decodeAll(const Kind* kind, const Settings& settings, const std::vector<std::string>& files, std::istream& in,
                 Output& out, const std::function<void(const std::string& message)>& tell) {
  Status worst = kStatusOk;
  for (const std::string& file : files) {
    const Outcome outcome = outcomeOf([&] { decodeOne(kind, settings, inputOf(file, in, settings.onRead), out); });
    // What the command line or the output is to blame for will be no better with the next file.
    const bool isOfFile = outcome.message.compare(0, file.size(), file) == 0 || file == "-";
    if (outcome.status == kStatusUsage || (outcome.status == kStatusFile && !isOfFile))
      throw ToolError(outcome.status, outcome.message);
    if (outcome.status != kStatusOk) tell(outcome.message);
    worst = worse(worst, outcome.status);
  }
  return worst;
}

}  // namespace dxmd_tool
