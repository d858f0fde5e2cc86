#ifndef TRNIDOM_PARSE_DECODER_H
#define TRNIDOM_PARSE_DECODER_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include <unicode/ucnv.h>

#include "parse/ByteInput.h"

namespace trnidom_detail {

/// Makes UTF-8 of the bytes of a document.
///
/// The encoding is that of the byte order mark, which is not part of the text, or else what the first bytes tell:
/// UTF-16 and UTF-32 of either byte order, EBCDIC, or bytes that continue ASCII. Of the last two there are many, and
/// the document has to say which; until then they are read as UTF-8 and as IBM's code page 37.
///
/// The text is valid UTF-8 without U+0000. It ends before the first sequence that is malformed in the encoding.
class Decoder {
 public:
  enum class State {
    kMore,       ///< there may be more
    kEnd,        ///< the input has ended
    kMalformed,  ///< the next bytes are malformed
    kNul         ///< the next character is U+0000
  };

  /// Looks at the first bytes of an input that nothing was read of.
  /// @throws std::bad_alloc; whatever reading throws.
  explicit Decoder(ByteInput& input);

  /// Writes the next characters, whole ones, to `out`, as many as `size` bytes have room for. Gives the number of
  /// bytes.
  /// @throws std::bad_alloc; whatever reading throws.
  std::size_t read(char* out, std::size_t size);

  /// What stands behind the text that has been read.
  State state() const noexcept { return m_state; }

  /// How an encoding that the document declares goes with the one it is read in.
  enum class Declared {
    kFits,        ///< it is the same, or the byte order mark has it
    kElse,        ///< it is another; the text now starts again in that one, from its first character
    kUnknown,     ///< nobody knows it
    kImpossible,  ///< the document cannot be in it: its declaration could not have been read
    kMissing      ///< there is none, and there has to be
  };

  /// Tells the encoding that the document declares, or none as the empty text. The input still has all bytes.
  /// @throws std::bad_alloc
  Declared declare(std::string_view encoding);

 private:
  struct CloseConverter {
    void operator()(UConverter* converter) const noexcept { ucnv_close(converter); }
  };
  using Converter = std::unique_ptr<UConverter, CloseConverter>;

  /// What the first bytes tell of the encoding.
  enum class Kind { kMarked, kAscii, kWide, kEbcdic };

  static Converter open(const char* encoding);
  std::size_t readUtf8(char* out, std::size_t size);
  std::size_t readConverted(char* out, std::size_t size);
  bool convert();

  ByteInput& m_input;
  Kind m_kind = Kind::kAscii;
  State m_state = State::kMore;
  bool m_isSettled = false;  // by a declaration
  Converter m_converter;     // null for UTF-8
  std::string_view m_bytes;  // read and not yet converted
  bool m_hasAllBytes = false;
  std::u16string m_units;  // converted; those before m_unitsAt are written
  std::size_t m_unitsAt = 0;
  State m_stateAfterUnits = State::kMore;
};

}  // namespace trnidom_detail

#endif
