#ifndef TOOLS_DXMD_FILES_H
#define TOOLS_DXMD_FILES_H

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace dxmd_tool {

/// The whole of a file.
/// @throws ToolError (file)
std::string readFile(const std::string& path);

/// The rest of a stream; `name` names it in errors.
/// @throws ToolError (file)
std::string readStream(std::istream& in, const std::string& name);

/// Gives up to `size` bytes into `buffer` and says how many; 0 at the end.
/// @throws ToolError (file)
using Source = std::function<std::size_t(char* buffer, std::size_t size)>;

Source fileSource(const std::string& path);
/// The stream must outlive the source.
Source streamSource(std::istream& in, const std::string& name);
/// The rest of a source, but no more than `most` bytes.
std::string readSource(const Source& source, std::size_t most = static_cast<std::size_t>(-1));

/// Where a result goes, piece by piece.
class Output {
 public:
  Output() = default;
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  virtual ~Output() = default;

  /// @throws ToolError (file)
  virtual void write(std::string_view bytes) = 0;
  /// The result is whole. Without it a file is left as it was.
  /// @throws ToolError (file)
  virtual void finish() = 0;
  /// The result holds secrets: a file that is created is its owner's alone.
  virtual void holdsSecrets() {}
  /// What comes is JSON.
  virtual void isJson() {}
};

/// Standard output, or what stands for it.
class StreamOutput final : public Output {
 public:
  explicit StreamOutput(std::ostream& out) : m_out(out) {}

  void write(std::string_view bytes) override;
  void finish() override;

 private:
  std::ostream& m_out;
};

/// A terminal: controls print as escapes, and JSON in colours.
class TerminalOutput final : public Output {
 public:
  TerminalOutput(std::ostream& out, bool hasColours) : m_stream(out), m_hasColours(hasColours) {}

  /// @param bytes  whole characters, and of JSON whole strings.
  void write(std::string_view bytes) override;
  void finish() override { m_stream.finish(); }
  void isJson() override { m_isJson = true; }

 private:
  StreamOutput m_stream;
  bool m_hasColours;
  bool m_isJson = false;
};

/// A text.
class StringOutput final : public Output {
 public:
  void write(std::string_view bytes) override { m_text += bytes; }
  void finish() override {}
  std::string take() { return std::move(m_text); }

 private:
  std::string m_text;
};

/// A file.
///
/// A regular file is written beside its place and renamed onto it by `finish`; owner and mode of one that is replaced
/// stay, but not its set-user-ID and set-group-ID bits. Symbolic links are followed, also to what is not there yet.
/// What is there and no regular file, such as a pipe or a device, is written to, and so is a descriptor of this process
/// by a name such as /dev/stdout, whatever stands behind it.
///
/// Signals that end the process remove the new file; one at a time is known to them.
class FileOutput final : public Output {
 public:
  explicit FileOutput(std::string path);
  ~FileOutput() override;

  void write(std::string_view bytes) override;
  void finish() override;
  void holdsSecrets() override { m_holdsSecrets = true; }

 private:
  class Descriptor;
  class Replacement;

  void open();

  std::string m_path;
  std::unique_ptr<Descriptor> m_direct;
  std::unique_ptr<Replacement> m_replacement;
  bool m_holdsSecrets = false;
};

/// Writes a file whole or not at all, as FileOutput does.
/// @throws ToolError (file)
void writeFile(const std::string& path, const std::string& bytes);

/// Writes to a stream.
/// @throws ToolError (file), with an empty text when the reader of a pipe is gone
void writeStream(std::ostream& out, const std::string& bytes);

}  // namespace dxmd_tool

#endif
