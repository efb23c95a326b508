#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "support/CodePage.h"

namespace orvane {

/// What the shell is told of an entry, and in which characters.
struct CommandText {
  enum class Kind { Nothing, Ansi, Wide };  // Nothing: the buffer is left alone

  Kind kind = Kind::Nothing;
  std::wstring text = {};
  bool isOurs = false;  // the handler has such an entry
};

// Copies into a buffer of the shell, whose size is all the room there is: what does not fit is left
// out, a zero always closes the text. An empty buffer stays empty.

void CopyBounded(std::wstring_view text, const CodePage& codePage, std::span<char> buffer);
/// Leaves the first half of a surrogate pair out too when the second does not fit.
void CopyBounded(std::wstring_view text, std::span<char16_t> buffer);

}  // namespace orvane
