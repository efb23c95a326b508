#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// A text as JSON with comments.
struct JsonText {
  nlohmann::json value;
  std::vector<std::string> twice;  // places of the keys that stand in their object twice
  std::string error;               // why the text is no JSON, with the place; empty when it is
};

/// Of a key that stands in its object twice the first value is kept.
JsonText ReadJson(std::string_view text);

/// The place of a member of what is at `place`, as JSON pointer.
std::string MemberPlace(const std::string& place, std::string_view key);
std::string ElementPlace(const std::string& place, std::size_t index);

}  // namespace orvane
