#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orvane {

/// The bare names of a script's tokens. A token stands in square brackets and may carry an
/// argument after one blank: [orv_pause 500].
struct ActionToken {
  static constexpr std::wstring_view Item = L"orv_item";
  static constexpr std::wstring_view Date = L"orv_date";    // argument: a date format
  static constexpr std::wstring_view Pause = L"orv_pause";  // argument: milliseconds
  static constexpr std::wstring_view Selection = L"orv_selection";
};

// The steps of a script.
struct LiteralStep {
  std::wstring keys;
  bool operator==(const LiteralStep&) const = default;
};
struct ItemStep {
  bool operator==(const ItemStep&) const = default;
};
struct SelectionStep {
  bool operator==(const SelectionStep&) const = default;
};
struct DateStep {
  std::wstring format;
  bool operator==(const DateStep&) const = default;
};
struct PauseStep {
  std::int32_t milliseconds;
  bool operator==(const PauseStep&) const = default;
};
using ActionStep = std::variant<LiteralStep, ItemStep, SelectionStep, DateStep, PauseStep>;
using ActionSteps = std::vector<ActionStep>;

struct ScriptResult {
  bool whole = false;      // the script was parsed to its end
  std::wstring badNumber;  // the pause argument that is no number, when that ended the parsing
  std::vector<std::size_t> places;  // where each step begins, and last what ended the parsing
};

/// Breaks a script into its steps, in its order. Clears `steps` first. After a failure they hold
/// what was parsed before it.
ScriptResult ParseActionScript(std::wstring_view script, ActionSteps& steps);

}  // namespace orvane
