#pragma once

#include <functional>
#include <string>
#include <vector>

#include "designer/MenuItem.h"
#include "designerapp/Handles.h"
#include "designerapp/Program.h"
#include "designerapp/Window.h"
#include "menudoc/ItemKinds.h"

namespace orvane::designerapp {

/// The properties of one item: a field for each text and a check box for each bit that the item's
/// kind has in the table of kinds. Scrolls when they are more than fit.
class PropertyPane : public Window {
 public:
  explicit PropertyPane(Program& program) : m_program(program) {}
  ~PropertyPane() override { Destroy(); }

  void Create(HWND parent);
  void Resolution(UINT dpi, HFONT font);

  /// Null shows nothing.
  void Show(designer::MenuItem* item);
  /// The item's record has changed.
  void Refresh(designer::MenuItem& item);
  /// Sets the focus on the field of that name; empty: the first one.
  void FocusField(const std::string& name);
  /// The sample has changed.
  void ShowTask();

  /// A field was edited; the new record, and the step's name.
  std::function<void(designer::MenuItem&, clsOrvaneData, const std::wstring&)> onChange;
  std::function<void()> onPause;  // a field has been left

 protected:
  LRESULT Message(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  /// One field and its controls; the ones that it does not have are null.
  struct Row {
    const ItemField* field = nullptr;
    const NamedBit* bit = nullptr;  // of a check box
    HWND label = nullptr;
    HWND control = nullptr;
    HWND browse = nullptr;
  };

  void Clear();
  void MakeRows();
  void AddText(const ItemField& field);
  void AddBits(const ItemField& field);
  void AddTaskView();
  HWND Make(const wchar_t* className, const std::wstring& text, DWORD style, DWORD exStyle);
  void AddTip(HWND control, std::string_view meaning);
  void Label();
  void Fill();
  void Fill(Row& row);
  void FillSpecialFolders(Row& row);
  bool IsSpecialFolder(const Row& row) const;
  void Arrange();
  void Place(HWND control, int x, int y, int width, int height) const;
  void ScrollTo(int position);
  void ScrollBy(WORD request);
  void RevealControl(HWND control);
  void Command(WORD id, WORD notification, HWND control);
  void Edited(const Row& row);
  void Browse(const Row& row);
  int LabelWidth() const;
  const Row* RowOf(HWND control) const;

  Program& m_program;
  designer::MenuItem* m_item = nullptr;
  std::vector<Row> m_rows;
  HWND m_kind = nullptr;  // says what the item is
  HWND m_task = nullptr;  // what the task makes of the sample
  HWND m_tips = nullptr;
  HFONT m_font = nullptr;
  UINT m_dpi = USER_DEFAULT_SCREEN_DPI;
  int m_height = 0;  // of all rows
  int m_scrolled = 0;
  bool m_filling = false;
};

}  // namespace orvane::designerapp
