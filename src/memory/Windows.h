#pragma once

#include <map>
#include <vector>

#include "memory/Effects.h"
#include "memory/Faults.h"
#include "platform/Windows.h"

namespace orvane::memory {

/// A desktop's windows as records. Messages are recorded as effects ("PostMessage", "SendMessage")
/// and answered from the record; no window does anything of its own.
class Windows : public orvane::Windows {
 public:
  static constexpr std::uint32_t OwnThread = 1;  // the calling one

  struct Window {
    WindowHandle parent = WindowHandle::None;
    std::wstring className = {};
    std::wstring caption = {};
    std::uint32_t process = 1;
    std::uint32_t thread = OwnThread;
    bool answers = true;                                  // false: hangs
    std::map<std::uint32_t, std::intptr_t> results = {};  // by message; 0 for the others
    int questionsLeft = -1;  // vanishes after so many more calls; negative: stays
  };

  Windows(Effects& effects, Faults& faults) : m_effects(effects), m_faults(faults) {}

  WindowHandle Parent(WindowHandle window) override;
  std::wstring ClassName(WindowHandle window) override;
  std::wstring Caption(WindowHandle window) override;
  WindowHandle Active() override { return m_active; }
  WindowHandle Find(const std::wstring& className) override;
  bool Post(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
            std::intptr_t lParam) override;
  std::optional<std::intptr_t> Send(WindowHandle window, std::uint32_t message,
                                    std::intptr_t wParam, std::intptr_t lParam,
                                    std::uint32_t timeout) override;
  void RunMessages(std::uint32_t) override {}

  // For tests, the preview and the nouns beside this one.

  WindowHandle Add(Window window);
  void Remove(WindowHandle window);

  /// The record to look at or change; null when there is no such window. Counts as a question.
  Window* Look(WindowHandle window);

  /// Makes it the active window, and with it the foreground window.
  void Activate(WindowHandle window) { m_active = window; }

  /// The first window without a parent that belongs to the process, or None.
  WindowHandle TopWindowOf(std::uint32_t process) const;

 private:
  struct Entry {
    WindowHandle handle;
    Window window;
  };

  void Record(const char* call, WindowHandle window, std::uint32_t message, std::intptr_t wParam,
              std::intptr_t lParam);

  Effects& m_effects;
  Faults& m_faults;
  std::vector<Entry> m_windows;
  std::uint32_t m_nextHandle = 0x20002;
  WindowHandle m_active = WindowHandle::None;
};

}  // namespace orvane::memory
