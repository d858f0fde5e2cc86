#include "Tags.h"

#include <algorithm>

#include <tools/dxmd/text/Words.h>

namespace dxmd_tool {

namespace {

/// Behind that end, at `at` or further on.
std::size_t behind(std::string_view text, std::string_view end, std::size_t at) {
  const std::size_t found = text.find(end, at);
  return found == std::string_view::npos ? text.size() : found + end.size();
}

/// Behind the tag that begins at `at`, whose attribute values may have a ">".
std::size_t behindTag(std::string_view text, std::size_t at) {
  for (at = text.find_first_of("\"'>", at); at != std::string_view::npos; at = text.find_first_of("\"'>", at)) {
    if (text[at] == '>') return at + 1;
    at = behind(text, text.substr(at, 1), at + 1);
  }
  return text.size();
}

}  // namespace

Tags::Tags(std::string_view text) : m_text(text) {
  std::vector<std::size_t> open;
  for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at)) {
    const std::string_view markup = text.substr(at);
    if (startsWith(markup, "<!--")) {
      at = behind(text, "-->", at + 4);
    } else if (startsWith(markup, "<![CDATA[")) {
      at = behind(text, "]]>", at);
    } else if (startsWith(markup, "<?")) {
      at = behind(text, "?>", at);
    } else if (startsWith(markup, "</")) {
      at = behind(text, ">", at);
      if (open.empty()) continue;
      m_elements[open.back()].end = at;
      open.pop_back();
    } else {
      const std::size_t end = behindTag(text, at);
      m_depth = std::max(m_depth, open.size() + 1);
      if (text.substr(at, end - at).substr(end - at - 2) != "/>") open.push_back(m_elements.size());
      m_elements.push_back({at, end});
      at = end;
    }
  }
}

std::string_view Tags::textOf(std::size_t element) const {
  const Element& found = m_elements.at(element);
  return m_text.substr(found.begin, found.end - found.begin);
}

std::vector<Tags::Place> Tags::placesOf(const std::vector<std::size_t>& elements) const {
  std::vector<Place> places;
  Place place{1, 1};
  std::size_t at = 0;
  for (const std::size_t element : elements) {
    for (const std::size_t end = m_elements.at(element).begin; at < end; ++at) {
      const bool isContinuation = (static_cast<unsigned char>(m_text[at]) & 0xC0U) == 0x80U;
      if (m_text[at] == '\n')
        place = {place.line + 1, 1};
      else if (!isContinuation)
        ++place.column;
    }
    places.push_back(place);
  }
  return places;
}

}  // namespace dxmd_tool
