#include "Progress.h"

#include <ostream>
#include <utility>

namespace dxmd_tool {

namespace {

constexpr const char* kClearLine = "\r\x1B[K";

}  // namespace

Progress::Progress(std::ostream& err, std::function<double()> seconds, std::uintmax_t whole)
    : m_err(err), m_seconds(std::move(seconds)), m_whole(whole) {}

Progress::~Progress() {
  clear();
}

void Progress::clear() {
  if (m_hasTold) m_err << kClearLine << std::flush;
  m_hasTold = false;
}

void Progress::advance(std::uintmax_t bytes) {
  constexpr double kBetween = 0.2;
  constexpr std::uintmax_t kMega = 1000000;
  m_read += bytes;
  const double now = m_seconds();
  if (now < m_next) return;
  m_next = now + kBetween;
  m_hasTold = true;
  m_err << kClearLine << "dxmd: " << m_read / kMega << " MB read";
  if (m_whole > 0) m_err << ", " << m_read * 100 / m_whole << "%";
  m_err << std::flush;
}

}  // namespace dxmd_tool
