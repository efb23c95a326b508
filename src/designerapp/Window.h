#pragma once

#include <windows.h>

#include <string>

namespace orvane::designerapp {

/// A window of a class of our own. What a message's handler throws is told to the user and goes no
/// further.
class Window {
 public:
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  HWND Handle() const { return m_window; }  // null when it is gone

 protected:
  Window() = default;
  virtual ~Window() = default;

  struct Look {
    const wchar_t* className;
    const wchar_t* title;
    DWORD style;
    DWORD exStyle;
  };
  /// Registers the class when needed. Error when the window cannot be made.
  void Create(const Look& look, const RECT& place, HWND parent, HMENU menu);

  /// To be called by the destructor of each class that can be a window's last one, while its parts
  /// are there to answer messages.
  void Destroy() {
    if (m_window) DestroyWindow(m_window);
  }

  /// The answer to a message.
  virtual LRESULT Message(UINT message, WPARAM wParam, LPARAM lParam) = 0;
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(m_window, message, wParam, lParam);
  }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;

  HWND m_window = nullptr;
};

/// Tells the user of the exception being handled. Call it inside a catch clause only.
void TellFailure(HWND owner) noexcept;

std::wstring TextOf(HWND control);

}  // namespace orvane::designerapp
