#pragma once

#include "platform/Keyboard.h"

namespace orvane::win32 {

/// The keyboard of the desktop.
class Keyboard : public orvane::Keyboard {
 public:
  bool IsDown(std::uint16_t virtualKey) override;
  void Press(std::uint16_t virtualKey, bool up) override;
  bool Type(const std::wstring& text, const std::vector<KeyEvent>& events) override;
};

}  // namespace orvane::win32
