#ifndef TESTS_FUZZ_JSONVALUES_H
#define TESTS_FUZZ_JSONVALUES_H

#include <vector>

#include <nlohmann/json.hpp>

namespace dxmd_fuzz {

/// Adds the value and all below it.
inline void collectValues(nlohmann::ordered_json& json, std::vector<nlohmann::ordered_json*>& all) {
  all.push_back(&json);
  if (json.is_object())
    for (auto& member : json.get_ref<nlohmann::ordered_json::object_t&>()) collectValues(member.second, all);
  else if (json.is_array())
    for (nlohmann::ordered_json& item : json) collectValues(item, all);
}

}  // namespace dxmd_fuzz

#endif
