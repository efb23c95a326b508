#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "customactions/ActionsFile.h"
#include "customactions/CustomAction.h"

namespace orvane {

/// Something about a custom action that will not do what it seems to. An error keeps every window
/// action from being played.
struct ActionFinding {
  enum class Severity { Warning, Error };

  Severity severity = Severity::Warning;
  std::wstring action{};   // its name, which is the section's
  std::wstring field{};    // the key in the file; empty for the action as a whole
  std::size_t place = 0;   // in the field's text, with the length: what of it is meant
  std::size_t length = 0;  // 0: all of it
  std::wstring text{};     // what is wrong; begins with a verb of which the field is the subject
  std::wstring remedy{};
};
using ActionFindings = std::vector<ActionFinding>;

/// What of a script would not be played; of the findings no more than these parts are filled in:
/// place, length, text and remedy.
ActionFindings CheckScript(std::wstring_view script);

/// What is wrong with one action by itself.
ActionFindings CheckAction(const CustomAction& action);

/// What is wrong with actions that are tried in this order, one by one and beside each other.
ActionFindings CheckActions(const std::vector<CustomAction>& actions);

/// The actions of a file in the order in which they are tried; a number that is none becomes what
/// it is when it is missing, and a finding.
std::vector<CustomAction> ReadActions(const ActionsFile& file, ActionFindings& findings);

/// Sections that do not count.
ActionFindings FindUnseen(const ActionsFile& file);

/// All that is wrong with a file of actions.
ActionFindings CheckActionsFile(const ActionsFile& file);

}  // namespace orvane
