#ifndef TRN_TRNFILELOCATION_H
#define TRN_TRNFILELOCATION_H

#include <trn/TRNExport.h>

/// A place in the sources: the file's name without folder or ending, and the line.
///
/// Threads: a value that does not change; safe from any number of threads at once.
class TRN_API TRNFileLocation {
 public:
  /// @param file  the file's name without folder or ending: a text that lives as long as the process; not copied.
  /// @param line  counted from 1.
  constexpr TRNFileLocation(const char* file, int line) noexcept : m_file(file), m_line(line) {}

  /// The file's name, as in "VqeRefineObjectsHelper".
  constexpr const char* getFile() const noexcept { return m_file; }

  /// The line, counted from 1.
  constexpr int getLine() const noexcept { return m_line; }

 private:
  const char* m_file;
  int m_line;
};

#endif
