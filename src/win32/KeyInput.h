#pragma once

#include <windows.h>

#include <span>
#include <vector>

#include "platform/Keyboard.h"

namespace orvane::win32 {

/// The events with each Shortcut put as the layout has it: a key, with Shift where the character
/// needs it and it is not held. A character without a key there, or with one that takes AltGr,
/// becomes a Character.
std::vector<KeyEvent> OnLayout(std::span<const KeyEvent> events, HKL layout);

/// The releases of the modifier keys that are down at this moment.
std::vector<KeyEvent> HeldModifiersUp();

/// Sends all events together; false when not all were let through, with no key left down.
bool SendTogether(std::span<const KeyEvent> events);

/// Lets go of the keys that `sent`, broken off, holds: they would stay down for the user.
void ReleaseHeld(std::span<const KeyEvent> sent);

}  // namespace orvane::win32
