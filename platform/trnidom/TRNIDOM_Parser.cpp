#include <trnidom/TRNIDOM_Parser.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include <trnidom/TRNIDOM_ParseError.h>

#include "parse/ByteInput.h"
#include "parse/DocumentParser.h"
#include "text/Quote.h"

using namespace trnidom_detail;

TRNIDOM_Document TRNIDOM_Parser::parseString(const std::string& bytes) {
  ByteInput input{std::string_view(bytes)};
  return DocumentParser(input).parse();
}

TRNIDOM_Document TRNIDOM_Parser::parseFile(const std::string& path) {
  const auto unreadable = [&path](int error) {
    constexpr std::size_t kLongestPath = 4096;
    return TRNIDOM_ParseError(
        0, 0, "cannot read " + quotedName(path, kLongestPath) + ": " + std::generic_category().message(error));
  };
  if (path.find('\0') != std::string::npos) throw unreadable(ENOENT);
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
  if (file == nullptr) throw unreadable(errno);
  const Source source = [&](char* buffer, std::size_t size) {
    const std::size_t count = std::fread(buffer, 1, size, file.get());
    if (count == 0 && std::ferror(file.get()) != 0) throw unreadable(errno);
    return count;
  };
  ByteInput input(source);
  return DocumentParser(input).parse();
}

TRNIDOM_Document TRNIDOM_Parser::parseEach(const Source& source, const I18NString& name, const Visit& visit) {
  ByteInput input(source);
  return DocumentParser(input, name.toUtf8(), visit).parse();
}
