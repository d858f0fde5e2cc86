#ifndef TRN_TRNFILELOCATION_H
#define TRN_TRNFILELOCATION_H

/// A place in the sources.
class TRNFileLocation {
 public:
  /// @param file  the source file's name without folder and ending.
  TRNFileLocation(const char* file, int line);
};

#endif
