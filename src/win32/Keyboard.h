#pragma once

#include "platform/Keyboard.h"

namespace orvane::win32 {

/// The keyboard of the desktop.
class Keyboard : public orvane::Keyboard {
 public:
  bool IsDown(std::uint16_t virtualKey) override;
  WindowHandle Front() override;
  void Press(std::uint16_t virtualKey, bool up) override;
  bool Type(const std::vector<KeyText>& texts) override;
  void Pause(std::uint32_t milliseconds) override;
};

}  // namespace orvane::win32
