#pragma once

#include <optional>
#include <string>

#include "designerapp/CommandIds.h"
#include "windowing/DialogWindow.h"

namespace orvane::designerapp {

/// Asks for the text to be found.
class FindDialog : private windowing::DialogWindow {
 public:
  explicit FindDialog(HINSTANCE module) : DialogWindow(module, IDD_FIND, {}) {}

  /// None when the user gives up; never empty.
  std::optional<std::wstring> Ask(HWND owner, const std::wstring& start);

 private:
  void Opened() override;
  void Command(int control, int notification) override;
  INT_PTR Other(UINT, WPARAM, LPARAM) override { return FALSE; }

  std::wstring m_text;
};

}  // namespace orvane::designerapp
