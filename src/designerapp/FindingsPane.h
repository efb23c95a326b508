#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>
#include <vector>

#include "designerapp/Program.h"
#include "menudoc/Finding.h"

namespace orvane::designerapp {

/// The list of what is wrong with the menu. It asks for texts as it shows them.
class FindingsPane {
 public:
  explicit FindingsPane(Program& program) : m_program(program) {}

  void Create(HWND parent);
  HWND Handle() const { return m_list; }
  void Resolution(UINT dpi);
  /// Checks the menu; `places`: also whether its files and folders are there, which may take a
  /// while.
  void Check(bool places);
  std::size_t Count() const { return m_findings.size(); }

  /// The user wants to go to the item (null: the menu as a whole) and its field.
  std::function<void(designer::MenuItem*, const std::string&)> onChoose;

  LRESULT Notify(NMHDR& header);

 private:
  void Answer(LVITEMW& asked);

  Program& m_program;
  HWND m_list = nullptr;
  std::vector<Finding> m_findings;
  std::wstring m_text;  // of the line the list asks for
};

}  // namespace orvane::designerapp
