#pragma once

#include <vector>

#include "designer/SettingsDraft.h"
#include "designerapp/Program.h"
#include "windowing/DialogWindow.h"

namespace orvane::designerapp {

/// The window of all settings, in three pages. Below them stand the meaning of the setting that has
/// the focus, and the button that gives it its default.
class SettingsDialog : private windowing::DialogWindow {
 public:
  explicit SettingsDialog(Program& program);

  /// True when the settings may be others now; the program has read them again.
  bool Ask(HWND owner) { return Show(owner).value_or(FALSE) != FALSE; }

 private:
  /// A row and its controls; the ones that it does not have are null.
  struct Line {
    designer::SettingRow row;
    HWND control = nullptr;
    HWND label = nullptr;
    HWND browse = nullptr;
  };

  void Opened() override;
  void Rescaled() override { Arrange(); }
  void Command(int control, int notification) override;
  INT_PTR Other(UINT message, WPARAM wParam, LPARAM lParam) override;

  void ShowPage();
  void AddLine(const designer::SettingRow& row, const std::wstring& text);
  HWND Make(const wchar_t* className, const std::wstring& text, DWORD style, int id);
  void Arrange() const;
  void Place(HWND control, RECT units) const;
  void Fill(const Line& line);
  void Edited(Line& line, int notification);
  void Browse(const Line& line);
  void ToDefault();
  bool Take();
  void Save();

  Program& m_program;
  designer::SettingsDraft m_draft;
  std::vector<Line> m_lines;  // of the page that is shown
  std::size_t m_current = 0;  // the line that had the focus last
  HWND m_last = nullptr;      // the control made last
  RECT m_unit{};              // pixels for four dialog units, at the start
};

}  // namespace orvane::designerapp
