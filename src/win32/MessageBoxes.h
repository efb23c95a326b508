#pragma once

#include "platform/MessageBoxes.h"

namespace orvane::win32 {

/// Windows' message boxes; owned by no window.
class MessageBoxes : public orvane::MessageBoxes {
 public:
  Answer Show(const std::wstring& text, const std::wstring& title, Icon icon,
              Buttons buttons = Buttons::Ok) override;
};

}  // namespace orvane::win32
