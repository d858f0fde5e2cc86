#ifndef TOOLS_DXMD_PROGRESS_H
#define TOOLS_DXMD_PROGRESS_H

#include <cstdint>
#include <functional>
#include <iosfwd>

namespace dxmd_tool {

/// Tells on a terminal how far the reading is, once it takes longer than a second; the line goes with the object.
class Progress {
 public:
  /// @param seconds  a clock, which tells how long the work has taken.
  /// @param whole    how many bytes there are to read; 0 when that is not known.
  Progress(std::ostream& err, std::function<double()> seconds, std::uintmax_t whole);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  void advance(std::uintmax_t bytes);

  /// Clears the line, for something else to be written.
  void clear();

 private:
  std::ostream& m_err;
  std::function<double()> m_seconds;
  std::uintmax_t m_whole;
  std::uintmax_t m_read = 0;
  double m_next = 1;  ///< when to tell next
  bool m_hasTold = false;
};

}  // namespace dxmd_tool

#endif
