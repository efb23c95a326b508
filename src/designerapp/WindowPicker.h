#pragma once

#include <windows.h>

#include <functional>

#include "designerapp/Program.h"

namespace orvane::designerapp {

/// A button that chooses a window of the desktop: dragged onto one, or pressed, which offers the
/// open windows in a menu.
class WindowPicker {
 public:
  explicit WindowPicker(Program& program) : m_program(program) {}

  void Attach(HWND button);
  /// The button was pressed.
  void Choose();
  /// Gives up dragging; false when nothing is dragged.
  bool Cancel();

  std::function<void(HWND)> onMove;  // over that window, null: over none that can be chosen
  std::function<void(HWND)> onPick;  // the innermost window below the pointer, or a top window

 private:
  static LRESULT CALLBACK Procedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR self) noexcept;
  LRESULT Message(UINT message, WPARAM wParam, LPARAM lParam);
  HWND Below(LPARAM place) const;

  Program& m_program;
  HWND m_button = nullptr;
};

/// The windows that a user sees, those of the dialog and its owner left out; the front one first.
std::vector<HWND> OpenWindows(HWND dialog);

}  // namespace orvane::designerapp
