#ifndef TESTS_FUZZ_TITLED_H
#define TESTS_FUZZ_TITLED_H

#include <string>
#include <vector>

namespace dxmd_fuzz {

/// An input whose first line says what the rest, XML or JSON, is for.
struct Titled {
  std::string title;
  std::string body;
};

/// Without a line break it is all title.
Titled titled(const std::string& input);

/// An input to begin with for each title, which each target of such inputs has. The mutator brings them in, so that new
/// ones need no file.
const std::vector<Titled>& examples();

}  // namespace dxmd_fuzz

#endif
