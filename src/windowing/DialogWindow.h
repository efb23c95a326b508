#pragma once

#include <windows.h>

#include <exception>
#include <optional>
#include <span>
#include <string>

#include "windowing/DialogLayout.h"
#include "windowing/DialogScale.h"

namespace orvane::windowing {

/// A modal, resizable dialog from a template of the module. What a handler throws ends the dialog
/// and comes out of Show.
class DialogWindow {
 public:
  DialogWindow(const DialogWindow&) = delete;
  DialogWindow& operator=(const DialogWindow&) = delete;

 protected:
  using Anchors = std::span<const DialogLayout::Anchor>;

  DialogWindow(HINSTANCE module, int resource, Anchors anchors)
      : m_module(module), m_resource(resource), m_anchors(anchors) {}
  virtual ~DialogWindow() = default;

  /// What End was given, 0 when the window went away by itself; none when it cannot be shown.
  std::optional<INT_PTR> Show(HWND owner);
  void End(INT_PTR result) { EndDialog(m_window, result); }

  HINSTANCE Instance() const { return m_module; }
  HWND Window() const { return m_window; }  // null when it is gone
  HWND Control(int id) const { return GetDlgItem(m_window, id); }
  /// A length of the screen on which the dialog opened, on the one where it is now.
  int Scaled(int length) const { return MulDiv(length, m_scale.Dpi(), m_scale.StartDpi()); }

  virtual void Opened() = 0;  // WM_INITDIALOG
  virtual void Rescaled() {}  // on a screen of another scaling now; fonts and places are seen to
  virtual void Command(int control, int notification) = 0;
  /// Any other message: the dialog procedure's answer.
  virtual INT_PTR Other(UINT message, WPARAM wParam, LPARAM lParam) = 0;

 private:
  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void Rescale(int dpi, const RECT& place);

  HINSTANCE m_module;
  int m_resource;
  Anchors m_anchors;
  HWND m_window = nullptr;
  DialogLayout m_layout;
  DialogScale m_scale;
  std::exception_ptr m_failure;
};

}  // namespace orvane::windowing
