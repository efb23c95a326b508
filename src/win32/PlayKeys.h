#pragma once

#include <span>

#include "platform/Keyboard.h"

namespace orvane::win32 {

/// Types the events into whoever has the keyboard: see Keyboard::Type, which answers the same.
bool PlayKeys(std::span<const KeyEvent> events);

}  // namespace orvane::win32
