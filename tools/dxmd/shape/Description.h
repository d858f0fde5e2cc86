#ifndef TOOLS_DXMD_SHAPE_DESCRIPTION_H
#define TOOLS_DXMD_SHAPE_DESCRIPTION_H

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// What the JSON of a kind looks like, as help, schemas, masking and tests need it. It is gathered from the kind's
// records by `describe` (see Shape.h) and never written by hand.

namespace dxmd_tool {

struct DescribedRecord;

/// The type of a value.
struct DescribedType {
  enum Of {
    kText,
    kLocale,  ///< a text that names a locale
    kXml,     ///< a text of XML
    kBoolean,
    kInteger,
    kList,
    kTexts,  ///< an object of texts under keys of the writer's own choice
    kRecord
  };

  Of of = kText;
  std::vector<std::string> choices;           ///< the texts allowed; empty allows any
  std::int64_t least = 0;                     ///< of an integer
  std::int64_t most = 0;                      ///< of an integer
  std::shared_ptr<const DescribedType> item;  ///< of a list
  const DescribedRecord* record = nullptr;    ///< of a record, which may hold itself
};

/// What keeps a value from coming back as it was when what was encoded is decoded.
struct Loss {
  enum How {
    kNever,     ///< the value is not read
    kAbsent,    ///< what is written without the value reads as something else, or is refused
    kEmpty,     ///< an empty text or list is not written, or not read
    kRepeated,  ///< of items that are the same, or have the same member `key`, one is left or they are changed
    kOrder,     ///< items are sorted, by the member `key` if there is one
    kChoice     ///< of the texts allowed, `key` comes back as another
  };

  How how;
  std::string why;
  std::string key;
};

struct DescribedKey {
  std::string name;
  std::string meaning;
  DescribedType type;
  bool required = false;
  bool alwaysWritten = false;  ///< decoded JSON has it, whatever its value
  bool nonEmpty = false;       ///< an empty text or list is refused
  bool nonEmptyItems = false;  ///< an empty text in a list of texts is refused
  bool nullableItems = false;  ///< a text in a list of texts may be null
  bool elementNames = false;   ///< the keys of an object of texts must be names of elements
  bool lines = false;          ///< a text that is not empty ends with a line feed
  bool secret = false;
  std::string otherwise;  ///< what the key is when it is absent, as JSON; empty when that is no value of its type
  std::string kind;       ///< the kind whose JSON it takes, if there is one
  std::string onlyFor;    ///< the text of the record's `choice` that it goes with; empty goes with all
  std::vector<Loss> losses;
};

/// What holds among the keys of a record.
struct DescribedRule {
  enum Of {
    kExclusive,  ///< at most one is there
    kOneOf,      ///< exactly one is there
    kNeedsTrue   ///< the first is a list; unless it is empty, the second is true
  };

  Of of;
  std::vector<std::string> keys;
};

struct DescribedRecord {
  const DescribedKey* find(std::string_view name) const;

  std::vector<DescribedKey> keys;  ///< a key that goes with several choices is there once for each
  std::vector<DescribedRule> rules;
  std::string choice;  ///< the key whose text tells which others there are
};

/// The records of a kind. Valid as long as it lives; moving keeps references to records.
struct Description {
  std::deque<DescribedRecord> records;  ///< the first is the whole

  const DescribedRecord& whole() const { return records.front(); }
};

}  // namespace dxmd_tool

#endif
