#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Handles.h"

namespace orvane {

/// One key going down or up.
struct KeyEvent {
  enum class Kind {
    VirtualKey,
    Character,  // a UTF-16 unit, typed whatever the keyboard layout
    Shortcut    // a UTF-16 unit by its key on the layout of the window; typed where it has none
  };

  Kind kind = Kind::VirtualKey;
  std::uint16_t code = 0;
  bool up = false;

  bool operator==(const KeyEvent&) const = default;
};

/// A text in the keystroke notation and the events that it stands for.
struct KeyText {
  std::wstring text;
  std::vector<KeyEvent> events;
};

/// The keyboard: what is held down, and keys pressed on the user's behalf.
class Keyboard {
 public:
  static constexpr std::uint16_t Shift = 16;
  static constexpr std::uint16_t Control = 17;
  static constexpr std::uint16_t Alt = 18;
  static constexpr std::uint16_t LeftWindows = 91;
  static constexpr std::uint16_t LetterR = 82;

  virtual ~Keyboard() = default;

  /// Whether the virtual key is down at this moment.
  virtual bool IsDown(std::uint16_t virtualKey) = 0;

  /// The window in front, which has the keyboard; None while that is changing hands.
  virtual WindowHandle Front() = 0;

  /// Presses or releases one key, wherever the focus is, and does not wait for it.
  virtual void Press(std::uint16_t virtualKey, bool up) = 0;

  /// Plays the texts, one behind the other, into whatever has the keyboard. Modifier keys that the
  /// user still holds are let go of first. A window of the calling thread finds all the keys
  /// together when this call has returned: only its own message loop knows what they do there. Any
  /// other window has taken them on return; it is waited for at most `Patience` milliseconds
  /// without any progress. False when the keys could not be sent or were not taken in time.
  virtual bool Type(const std::vector<KeyText>& texts) = 0;

  /// Keeps what is typed next behind the keys before it by as many milliseconds. With the keyboard
  /// at a window of the calling thread this call returns at once, and what comes next is typed when
  /// the thread's messages have run for that time.
  virtual void Pause(std::uint32_t milliseconds) = 0;

  static constexpr std::uint32_t Patience = 2000;
};

}  // namespace orvane
