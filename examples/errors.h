// What can go wrong, told on standard error, for every example alike.

#ifndef EXAMPLES_ERRORS_H
#define EXAMPLES_ERRORS_H

#include <exception>
#include <iostream>
#include <string>

#include <trn/TRNAssertError.h>
#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_ParseError.h>

/// Does the work, which prints to standard output, and returns the program's exit status.
/// @param subject  what is worked on: a file's name, or the program's own.
template <typename Work>
int exitStatus(const std::string& subject, const Work& work) {
  try {
    work();
    std::cout.flush();
    if (std::cout) return 0;
    std::cerr << subject << ": the output cannot be written\n";
  } catch (const TRNIDOM_ParseError& error) {  // not well-formed, with line and column; or no such file
    std::cerr << subject << (error.getLine() > 0 ? ":" : ": ") << error.what() << "\n";
  } catch (const TRNAssertError& error) {  // well-formed, but not what the reader requires; or a value is missing
    std::cerr << subject << ": " << error.what() << "\n";
  } catch (const TRNIDOM_DOMException& error) {  // what no document can hold: a control character, a name that is none
    std::cerr << subject << ": " << error.what() << "\n";
  } catch (const std::exception& error) {  // memory
    std::cerr << subject << ": " << error.what() << "\n";
  }
  return 1;
}

#endif
