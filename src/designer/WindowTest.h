#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "customactions/CustomAction.h"
#include "customactions/WindowMatch.h"

namespace orvane::designer {

// What an action asks of windows, in words.

/// The ways of comparing, in the order in which they are offered.
inline constexpr std::int32_t Modes[] = {
    CustomAction::OptionMatchIgnore, CustomAction::OptionMatchPartial,
    CustomAction::OptionMatchExact, CustomAction::OptionMatchAnywhere};
/// "begins with" and the like, to be read between a criterion and its pattern.
std::wstring ModeText(std::int32_t mode);

/// What a field of the file is called, by its key.
std::wstring FieldLabel(std::wstring_view key);

/// One window held against an action.
struct WindowTest {
  std::wstring caption;
  bool matches = false;
  std::array<std::wstring, std::size(Criteria)> criteria;  // what came of each, in their order
  std::wstring outcome;
};
WindowTest TestWindow(const CustomAction& action, Windows& windows, clsProcess& process,
                      WindowHandle window);

/// Makes the action one for this window: program, caption and class are filled in, and compared
/// as before or, where they were not, in the way that suits most. What the window does not have is
/// not compared.
void TakeWindow(CustomAction& action, Windows& windows, clsProcess& process, WindowHandle window);

/// A line that tells one window from another: its caption, program and class.
std::wstring DescribeWindow(Windows& windows, clsProcess& process, WindowHandle window);

}  // namespace orvane::designer
