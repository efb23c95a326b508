#pragma once

#include <string>
#include <string_view>

#include "menudata/clsCollection.h"

namespace orvane {

/// The bare names of a script's tokens. A token stands in square brackets and may carry an
/// argument after one blank: [orv_pause 500].
struct ActionToken {
  static constexpr std::wstring_view Item = L"orv_item";
  static constexpr std::wstring_view Date = L"orv_date";    // argument: a date format
  static constexpr std::wstring_view Pause = L"orv_pause";  // argument: milliseconds
  static constexpr std::wstring_view Selection = L"orv_selection";
};

struct ScriptResult {
  bool whole = false;      // the script was parsed to its end
  std::wstring badNumber;  // the pause argument that is no number, when that ended the parsing
};

/// Breaks a script into its steps, one node each, in script order: m_szKey the token's bare name
/// (empty: literal keystrokes), m_szData the literal text or the date format, m_lData the pause.
/// Clears `steps` first. After a failure they hold what was parsed before it.
ScriptResult ParseActionScript(std::wstring_view script, clsCollection& steps);

}  // namespace orvane
