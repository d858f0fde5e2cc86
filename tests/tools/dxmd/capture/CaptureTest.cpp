#include <tools/dxmd/capture/Capture.h>

#include <algorithm>

#include <gtest/gtest.h>
#include <zlib.h>

#include <tools/dxmd/ToolError.h>

#include "RunTool.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// Gives the bytes a few at a time.
Source sourceOf(const std::string& bytes, std::size_t most) {
  return [bytes, most, at = std::size_t{0}](char* buffer, std::size_t size) mutable {
    const std::size_t count = bytes.copy(buffer, std::min(size, most), at);
    at += count;
    return count;
  };
}

/// What is captured in the bytes, however they come.
std::string capturedIn(const std::string& bytes) {
  const std::string whole = readSource(captured(sourceOf(bytes, bytes.size() + 1), "in").source);
  for (const std::size_t most : {1u, 3u, 7u})
    EXPECT_EQ(whole, readSource(captured(sourceOf(bytes, most), "in").source)) << most;
  return whole;
}

std::string gzipped(const std::string& text) {
  z_stream stream{};
  EXPECT_EQ(Z_OK, deflateInit2(&stream, 1, Z_DEFLATED, 16 + MAX_WBITS, 8, Z_DEFAULT_STRATEGY));
  std::string bytes(deflateBound(&stream, static_cast<uLong>(text.size())), '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
  stream.avail_out = static_cast<uInt>(bytes.size());
  EXPECT_EQ(Z_STREAM_END, deflate(&stream, Z_FINISH));
  bytes.resize(stream.total_out);
  deflateEnd(&stream);
  return bytes;
}

/// UTF-16 or UTF-32 of that width, the lowest byte of a unit at `low`.
std::string wide(const std::string& text, std::size_t width, std::size_t low) {
  std::string bytes;
  for (const char c : text) {
    std::string unit(width, '\0');
    unit[low] = c;
    bytes += unit;
  }
  return bytes;
}

}  // namespace

TEST(Capture, DocumentStandsBehindHeadersOfHttp) {
  EXPECT_EQ("<a/>", capturedIn("HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\n\r\n<a/>"));
  EXPECT_EQ("<a/>", capturedIn("POST /x HTTP/1.1\nHost: h\n\n<a/>"));
  EXPECT_EQ("<a/>", capturedIn("Content-Type: text/xml\n\n<a/>"));
  EXPECT_EQ("<a/>", capturedIn("HTTP/1.1 100 Continue\r\n\r\nHTTP/2 200\r\nServer: s\r\n\r\n<a/>"));
  EXPECT_EQ(3u, captured(sourceOf("HTTP/1.1 200 OK\r\nServer: s\r\n\r\n<a/>", 5), "in").lines);
  // Without their end they are no headers, and without such a start neither.
  EXPECT_EQ("HTTP/1.1 200 OK\n<a/>", capturedIn("HTTP/1.1 200 OK\n<a/>"));
  EXPECT_EQ("no message\n\n<a/>", capturedIn("no message\n\n<a/>"));
}

TEST(Capture, ChunksAreJoined) {
  const std::string head = "HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip, Chunked\r\n\r\n";
  EXPECT_EQ("<a>b</a>", capturedIn(head + "3\r\n<a>\r\n5;x=y\r\nb</a>\r\n0\r\nTrailer: t\r\n\r\n"));
  EXPECT_EQ("<a/>", capturedIn(head + "<a/>"));
  const std::string damaged = "in: the chunks of the HTTP message are damaged";
  for (const char* chunks : {"3\r\n<a>5\r\n", "3\r\n<a>\r\n", "3\r\n<a", "3\r\n<a>\r\nx\r\n"})
    expectToolError(kStatusSyntax, damaged, [&] { capturedIn(head + chunks); });
}

TEST(Capture, GzipIsUnpacked) {
  const std::string packed = gzipped("<a>b</a>");
  EXPECT_EQ("<a>b</a>", capturedIn(packed));
  EXPECT_EQ("<a>b</a><a>b</a>", capturedIn(packed + packed));
  EXPECT_EQ("<a>b</a>", capturedIn("HTTP/1.1 200 OK\nContent-Encoding: gzip\n\n" + packed));
  EXPECT_EQ("<a>b</a>", capturedIn(gzipped("HTTP/1.1 200 OK\n\n" + packed)));
  std::string large;
  for (int i = 0; i < 100000; ++i) large += "<a n='" + std::to_string(i) + "'/>";
  EXPECT_TRUE(large == readSource(captured(sourceOf(gzipped(large), 1000), "in").source));
  expectToolError(kStatusSyntax, "in: the gzip data ends too early",
                  [&] { capturedIn(packed.substr(0, packed.size() - 1)); });
  std::string damaged = packed;
  damaged[packed.size() - 5] = static_cast<char>(damaged[packed.size() - 5] ^ 1);
  expectToolError(kStatusSyntax, "in: the gzip data is damaged", [&] { capturedIn(damaged); });
  std::string bomb = "<a/>";
  for (int i = 0; i < 20; ++i) bomb = gzipped(bomb);
  expectToolError(kStatusSyntax, "in: compressed or wrapped too many times", [&] { capturedIn(bomb); });
}

TEST(Capture, WhiteSpaceBeforeTheDeclarationAndNulsAtTheEndAreDropped) {
  EXPECT_EQ("<?xml version='1.0'?><a/>", capturedIn("\r\n \n<?xml version='1.0'?><a/>"));
  EXPECT_EQ("\n<a/>", capturedIn("\n<a/>"));
  const Capture capture = captured(sourceOf("\n\n  <?xml version='1.0'?><a/>", 9), "in");
  EXPECT_EQ(2u, capture.lines);
  EXPECT_EQ(2u, capture.columns);
  EXPECT_EQ("<a/>", capturedIn(std::string("<a/>\0", 5)));
  EXPECT_EQ("<a/>\n", capturedIn(std::string("<a/>\n\0\0\n", 8)));
  EXPECT_EQ(std::string("<a/>\0<b/>", 9), capturedIn(std::string("<a/>\0<b/>\0", 10)));
  EXPECT_EQ("", capturedIn(std::string(3, '\0')));
}

TEST(Capture, WideCharactersNeedNoMarkAndNoDeclaration) {
  const struct {
    std::size_t width;
    std::size_t low;
    std::string mark;
  } all[] = {{2, 0, "\xFF\xFE"},
             {2, 1, "\xFE\xFF"},
             {4, 0, std::string("\xFF\xFE\0\0", 4)},
             {4, 3, std::string("\0\0\xFE\xFF", 4)}};
  for (const auto& [width, low, mark] : all) {
    const std::string declared = wide("<?xml version='1.0' encoding='UTF-8'?><a/>", width, low);
    EXPECT_EQ(mark + declared, capturedIn(declared));
    EXPECT_EQ(mark + declared,
              capturedIn(mark + wide("\n", width, low) + declared + wide(std::string(2, '\0'), width, low)));
    EXPECT_EQ(mark + wide("<a/>", width, low), capturedIn(wide("<a/>", width, low)));
    // A unit that is cut off stays, for the parser to refuse.
    EXPECT_EQ(mark + declared + "<", capturedIn(declared + "<"));
  }
}

TEST(Capture, Utf8ThatDeclaresWideCharactersIsMarked) {
  for (const char* encoding : {"UTF-16", "utf-16le", "UCS-2", "ISO-10646-UCS-4"}) {
    const std::string document = "<?xml version='1.0' encoding=\"" + std::string(encoding) + "\"?><a/>";
    EXPECT_EQ("\xEF\xBB\xBF" + document, capturedIn(document));
  }
  const std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?><a>utf-16</a>";
  EXPECT_EQ(latin, capturedIn(latin));
  EXPECT_EQ("\xEF\xBB\xBF<a/>", capturedIn("\xEF\xBB\xBF<a/>"));
}
