#include "Input.h"

#include <algorithm>
#include <utility>

#include <trn/TRNAssertError.h>
#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_ParseError.h>

#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/capture/Capture.h>
#include <tools/dxmd/json/JsonError.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/json/SecretNames.h>
#include <tools/dxmd/text/Words.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

Input inputOf(const std::string& file, std::istream& in, const std::function<void(std::size_t bytes)>& onRead) {
  const std::string name = file == "-" ? "standard input" : file;
  Source source = file == "-" ? streamSource(in, name) : fileSource(file);
  return {name, [source = std::move(source), onRead](char* buffer, std::size_t size) {
            const std::size_t count = source(buffer, size);
            onRead(count);
            return count;
          }};
}

void refusalsNamed(const std::string& name, const std::function<void()>& action) {
  try {
    action();
  } catch (const TRNAssertError& error) {
    throw ToolError(kStatusUnfit,
                    name + ": " + error.getLocation().getFile() + " refuses it: " + error.getMessage().toUtf8());
  } catch (const JsonError& error) {
    throw ToolError(error.cause() == JsonError::kMalformed ? kStatusSyntax : kStatusUnfit, error.what());
  } catch (const JsonTooDeep& error) {
    throw ToolError(kStatusUnfit, name + ": " + error.what());
  } catch (const XmlError& error) {
    throw ToolError(kStatusUnfit, name + ": " + error.what());
  } catch (const TRNIDOM_DOMException& error) {
    throw ToolError(kStatusUnfit, name + ": " + error.what());
  }
}

XmlInput::XmlInput(const Input& input, bool exact) : m_name(input.name), m_source(input.source) {
  if (exact) return;
  Capture capture = captured(input.source, input.name);
  m_source = std::move(capture.source);
  m_lines = capture.lines;
  m_columns = capture.columns;
}

bool XmlInput::endsWithin(std::size_t most) {
  m_start = readSource(m_source, most);
  return m_start.size() < most;
}

void XmlInput::refuseHtml() const {
  constexpr std::size_t kMost = 4096;
  const std::string start = lowerCase(std::string_view(m_start).substr(0, kMost));
  const std::size_t first = std::min(start.find('<'), start.size());
  if (start.compare(first, 5, "<html") != 0 && start.find("<!doctype html") == std::string::npos) return;
  const std::size_t title = start.find("<title>");
  const std::size_t end = start.find('<', title + 1);
  const std::string text = title == std::string::npos || end == std::string::npos
                               ? ""
                               : ": " + inQuotes(maskedText(m_start.substr(title + 7, end - title - 7)));
  throw ToolError(kStatusUnfit, m_name + ": no message, but a page of HTML" + text);
}

void XmlInput::checkStart() const {
  const std::size_t first = m_start.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) throw ToolError(kStatusSyntax, m_name + ":1:1: empty where XML is expected");
  if (m_start[first] == '{' || m_start[first] == '[')
    throw ToolError(kStatusSyntax, m_name + ":1:1: not XML: this looks like JSON");
}

template <typename Action>
TRNIDOM_Document XmlInput::placed(const Action& action) const {
  try {
    return action();
  } catch (const TRNIDOM_ParseError& error) {
    const std::size_t column = error.getColumn() + (error.getLine() == 1 ? m_columns : 0);
    throw ToolError(kStatusSyntax, m_name + ":" + std::to_string(error.getLine() + m_lines) + ":" +
                                       std::to_string(column) + ": " + error.getReason());
  }
}

TRNIDOM_Document XmlInput::parse() {
  m_start += readSource(m_source);
  checkStart();
  return placed([&] { return TRNIDOM_Parser::parseString(m_start); });
}

TRNIDOM_Document XmlInput::parseEach(const std::string& element, const TRNIDOM_Parser::Visit& visit) {
  checkStart();
  std::size_t given = 0;
  const Source whole = [&](char* buffer, std::size_t size) {
    if (given == m_start.size()) return m_source(buffer, size);
    const std::size_t count = m_start.copy(buffer, size, given);
    given += count;
    return count;
  };
  return placed([&] { return TRNIDOM_Parser::parseEach(whole, element.c_str(), visit); });
}

}  // namespace dxmd_tool
