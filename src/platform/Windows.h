#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Handles.h"

namespace orvane {

/// The desktop's windows. They belong to other programs: nothing here waits for one of them
/// without a limit, and a window may vanish between two calls.
class Windows {
 public:
  virtual ~Windows() = default;

  /// GetParent: the parent or owner; None for a top window and for what is no window.
  virtual WindowHandle Parent(WindowHandle window) = 0;

  /// Class name, empty when the window is gone; at most 4,095 characters.
  virtual std::wstring ClassName(WindowHandle window) = 0;

  /// Caption as the window manager keeps it; at most 4,095 characters.
  virtual std::wstring Caption(WindowHandle window) = 0;

  /// The active window of the calling thread, or None.
  virtual WindowHandle Active() = 0;

  /// The first top window of the class, or None.
  virtual WindowHandle Find(const std::wstring& className) = 0;

  virtual bool Post(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
                    std::intptr_t lParam) = 0;

  /// The message's result; none when the window did not answer within `timeout` milliseconds.
  virtual std::optional<std::intptr_t> Send(WindowHandle window, std::uint32_t message,
                                            std::intptr_t wParam, std::intptr_t lParam,
                                            std::uint32_t timeout) = 0;

  /// Lets the calling thread's waiting messages run, until none is left or `milliseconds` are over.
  virtual void RunMessages(std::uint32_t milliseconds) = 0;
};

}  // namespace orvane
