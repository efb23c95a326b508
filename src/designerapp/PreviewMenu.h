#pragma once

#include <functional>
#include <string>

#include "designer/Preview.h"
#include "designerapp/Program.h"

namespace orvane::designerapp {

/// The real popup menu that the handler makes of the menu as it is designed.
class PreviewMenu {
 public:
  explicit PreviewMenu(Program& program) : m_program(program) {}

  /// Shows it and answers what choosing the entry would have done; empty when nothing was chosen.
  std::wstring Show(HWND owner, POINT at);

  /// A message that the owner gets while the menu is open; false when it is none of the menu's.
  bool Message(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
  bool IsOpen() const { return m_open != nullptr; }
  /// The text for the status bar of the highlighted entry.
  std::wstring HelpText(UINT id) const;

 private:
  Program& m_program;
  designer::Preview* m_open = nullptr;
};

}  // namespace orvane::designerapp
