#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// One key going down or up: a virtual key, or a UTF-16 unit that is typed whatever the layout.
struct KeyEvent {
  enum class Kind { VirtualKey, Character };

  Kind kind = Kind::VirtualKey;
  std::uint16_t code = 0;
  bool up = false;

  bool operator==(const KeyEvent&) const = default;
};

/// The keyboard: what is held down, and keys pressed on the user's behalf.
class Keyboard {
 public:
  static constexpr std::uint16_t Shift = 16;
  static constexpr std::uint16_t Control = 17;
  static constexpr std::uint16_t Alt = 18;
  static constexpr std::uint16_t LeftWindows = 91;

  virtual ~Keyboard() = default;

  /// Whether the virtual key is down at this moment.
  virtual bool IsDown(std::uint16_t virtualKey) = 0;

  /// Presses or releases one key, wherever the focus is, and does not wait for it.
  virtual void Press(std::uint16_t virtualKey, bool up) = 0;

  /// Plays the events into the foreground window, in order, and waits until it has taken them: at
  /// most `Patience` milliseconds without any progress. The calling thread's own messages run
  /// meanwhile, since the window may be its own. `text` is the notation the events were made of.
  /// False when the keys could not be sent or were not taken in time.
  virtual bool Type(const std::wstring& text, const std::vector<KeyEvent>& events) = 0;

  static constexpr std::uint32_t Patience = 2000;
};

}  // namespace orvane
