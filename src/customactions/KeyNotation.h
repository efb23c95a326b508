#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Keyboard.h"

namespace orvane {

// Texts in the keystroke notation. Characters stand for themselves, except:
//   + ^ %         hold Shift, Ctrl, Alt for the next key, or for a group in parentheses
//   ~             Enter
//   {NAME}        a named key, in any case: {ENTER}, {TAB}, {F1}
//   {c}           the character c itself, whichever it is
//   {NAME n} {c n}  the same n times
// Square brackets stand for themselves too. Under a modifier a letter or digit means its key, so
// that ^C and ^c are one; under Ctrl and Alt every other character means the key that types it on
// the window's keyboard layout, where there is one.

/// More key events than any text has good use for, less than fill the memory or take a minute.
constexpr std::size_t MaxKeyEvents = 100'000;

/// The events that the text stands for, every pressed key released again. Error 5 or 13 for what is
/// no proper notation, Error 6 beyond MaxKeyEvents.
std::vector<KeyEvent> ParseKeyNotation(std::wstring_view text);

/// What is no proper notation: where it stands, and why.
struct KeyFault {
  std::size_t place = 0;
  std::size_t length = 0;
  std::wstring text;
};

/// The first thing that ParseKeyNotation refuses the text for.
std::optional<KeyFault> FindKeyFault(std::wstring_view text);

/// Types the text into the window that has the keyboard: see Keyboard::Type. Errors as from
/// ParseKeyNotation, nothing typed then.
bool SendKeys(Keyboard& keyboard, const std::wstring& text);

}  // namespace orvane
