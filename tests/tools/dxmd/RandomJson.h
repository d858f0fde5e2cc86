#ifndef TESTS_TOOLS_DXMD_RANDOMJSON_H
#define TESTS_TOOLS_DXMD_RANDOMJSON_H

#include <random>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/shape/Description.h>

namespace dxmd_test {

/// Makes random JSON that fits a description: what is encoded from it decodes as it was, but for values that the
/// description says are never read. It leaves out what an absent key reads as, and keeps to the losses described.
class RandomJson {
 public:
  /// @param description  must live as long.
  RandomJson(const dxmd_tool::Description& description, unsigned seed) : m_description(description), m_random(seed) {}

  dxmd_tool::Json next() { return object(m_description.whole(), 0); }

 private:
  std::size_t below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random); }
  bool oneIn(std::size_t count) { return below(count) == 0; }

  dxmd_tool::Json object(const dxmd_tool::DescribedRecord& record, int depth);
  dxmd_tool::Json value(const dxmd_tool::DescribedType& type, const dxmd_tool::DescribedKey& key, int depth);
  dxmd_tool::Json list(const dxmd_tool::DescribedType& type, const dxmd_tool::DescribedKey& key, int depth);
  dxmd_tool::Json texts(const dxmd_tool::DescribedKey& key);
  std::string text();
  std::string elementName();
  std::string xml(int depth);

  const dxmd_tool::Description& m_description;
  std::mt19937 m_random;
};

/// Removes the values that are never read when what was encoded is decoded.
/// @return whether there were any.
bool dropLost(dxmd_tool::Json& json, const dxmd_tool::DescribedRecord& record);

/// Whether the description has keys whose values are never read.
bool losesKeys(const dxmd_tool::Description& description);

}  // namespace dxmd_test

#endif
