#ifndef TRN_TRNFILELOCATION_H
#define TRN_TRNFILELOCATION_H

/// A place in the sources.
class TRNFileLocation {
 public:
  /// @param file  the source file's name without folder and ending; a text that lives as long as the process.
  /// @param line  counted from 1.
  TRNFileLocation(const char* file, int line);
};

#endif
