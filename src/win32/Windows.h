#pragma once

#include "platform/Windows.h"

namespace orvane::win32 {

/// The windows of the desktop.
class Windows : public orvane::Windows {
 public:
  WindowHandle Parent(WindowHandle window) override;
  std::wstring ClassName(WindowHandle window) override;
  std::wstring Caption(WindowHandle window) override;
  WindowHandle Active() override;
  WindowHandle Find(const std::wstring& className) override;
  bool Post(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
            std::intptr_t lParam) override;
  std::optional<std::intptr_t> Send(WindowHandle window, std::uint32_t message,
                                    std::intptr_t wParam, std::intptr_t lParam,
                                    std::uint32_t timeout) override;
  void RunMessages(std::uint32_t milliseconds) override;
};

}  // namespace orvane::win32
