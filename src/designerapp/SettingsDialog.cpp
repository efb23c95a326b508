#include "designerapp/SettingsDialog.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "designer/Labels.h"
#include "designerapp/CommandIds.h"
#include "designerapp/FileDialogs.h"
#include "designerapp/Window.h"
#include "platform/SystemInfo.h"

namespace orvane::designerapp {
namespace {

using designer::SettingRow;
using designer::SettingsDraft;
using Kind = SettingRow::Kind;

constexpr int FirstLine = 2000, FirstBrowse = 2500;  // identifiers of the controls

// In dialog units.
constexpr LONG Left = 14, Top = 26, Step = 13, FieldLeft = 110, FieldRight = 286, FieldHeight = 12;
constexpr LONG BrowseWidth = 16, ListHeight = 80;

constexpr const wchar_t* KeysOfButtons = L"d";

bool IsText(const SettingRow& row) {
  return row.kind == Kind::Number || row.kind == Kind::File;
}

}  // namespace

SettingsDialog::SettingsDialog(Program& program)
    : DialogWindow(program.instance, IDD_SETTINGS, {}),
      m_program(program),
      m_draft(program.globals.options, DefaultSettings(program.platform.system)) {}

void SettingsDialog::Opened() {
  m_unit = {0, 0, 400, 400};
  MapDialogRect(Window(), &m_unit);
  for (std::size_t page = 0; page < SettingsDraft::Pages; ++page) {
    TCITEMW tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = const_cast<wchar_t*>(SettingsDraft::TitleOf(page));
    SendMessageW(Control(IDC_SETTINGS_PAGES), TCM_INSERTITEMW, page,
                 reinterpret_cast<LPARAM>(&tab));
  }
  ShowPage();
  SetFocus(m_lines.front().control);
}

void SettingsDialog::ShowPage() {
  for (const Line& line : m_lines) {
    for (const HWND window : {line.label, line.control, line.browse})
      if (window) DestroyWindow(window);
  }
  m_lines.clear();
  m_last = HWND_TOP;
  const int page = TabCtrl_GetCurSel(Control(IDC_SETTINGS_PAGES));
  const std::vector<SettingRow> rows = SettingsDraft::Rows(static_cast<std::size_t>(page));
  std::vector<std::wstring> labels;
  for (const SettingRow& row : rows) labels.push_back(row.Label());
  designer::AddAccessKeys(labels, KeysOfButtons);
  for (std::size_t i = 0; i < rows.size(); ++i) AddLine(rows[i], labels[i]);
  Arrange();
  for (const Line& line : m_lines) Fill(line);
  m_current = 0;
  SetWindowTextW(Control(IDC_SETTINGS_HELP), m_draft.Help(rows.front()).c_str());
}

void SettingsDialog::AddLine(const SettingRow& row, const std::wstring& text) {
  const int id = FirstLine + static_cast<int>(m_lines.size());
  Line line{.row = row};
  if (row.kind == Kind::Check) {
    const bool isFirst = m_lines.empty() || m_lines.back().row.setting != row.setting;
    if (row.bit && isFirst) line.label = Make(L"STATIC", row.setting->title, SS_NOPREFIX, -1);
    line.control = Make(L"BUTTON", text, BS_AUTOCHECKBOX | BS_NOTIFY | WS_TABSTOP, id);
  } else {
    line.label = Make(L"STATIC", text, SS_LEFT, -1);
    if (row.kind == Kind::Choice)
      line.control = Make(L"COMBOBOX", {}, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, id);
    else
      line.control = Make(L"EDIT", {}, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, id);
    for (const std::wstring& choice : row.Choices())
      SendMessageW(line.control, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.c_str()));
    if (row.kind == Kind::File)
      line.browse =
          Make(L"BUTTON", L"...", BS_PUSHBUTTON | WS_TABSTOP, id + FirstBrowse - FirstLine);
  }
  EnableWindow(line.control, !row.IsFixed());
  m_lines.push_back(line);
}

/// Behind the control made before it, in the order of Tab.
HWND SettingsDialog::Make(const wchar_t* className, const std::wstring& text, DWORD style, int id) {
  const HWND control =
      CreateWindowExW(0, className, text.c_str(), style | WS_CHILD | WS_VISIBLE, 0, 0, 0, 0,
                      Window(), reinterpret_cast<HMENU>(INT_PTR{id}), Instance(), nullptr);
  const LRESULT font = SendMessageW(Control(IDOK), WM_GETFONT, 0, 0);
  SendMessageW(control, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
  SetWindowPos(control, m_last, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  m_last = control;
  return control;
}

void SettingsDialog::Place(HWND control, RECT units) const {
  if (!control) return;
  const auto across = [&](LONG length) { return Scaled(MulDiv(length, m_unit.right, 400)); };
  const auto down = [&](LONG length) { return Scaled(MulDiv(length, m_unit.bottom, 400)); };
  SetWindowPos(control, nullptr, across(units.left), down(units.top),
               across(units.right - units.left), down(units.bottom - units.top),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void SettingsDialog::Arrange() const {
  LONG y = Top;
  for (const Line& line : m_lines) {
    const LONG end = FieldRight - (line.browse ? BrowseWidth + 2 : 0);
    const LONG height = line.row.kind == Kind::Choice ? ListHeight : FieldHeight;
    Place(line.label, {Left, y + 2, FieldLeft - 2, y + FieldHeight});
    Place(line.control, {FieldLeft, y, end, y + height});
    Place(line.browse, {FieldRight - BrowseWidth, y, FieldRight, y + FieldHeight});
    y += Step;
  }
}

void SettingsDialog::Fill(const Line& line) {
  if (line.row.kind == Kind::Check)
    Button_SetCheck(line.control, m_draft.Choice(line.row));
  else if (line.row.kind == Kind::Choice)
    ComboBox_SetCurSel(line.control, m_draft.Choice(line.row));
  else
    SetWindowTextW(line.control, m_draft.Text(line.row).c_str());
}

void SettingsDialog::Command(int control, int notification) {
  const auto lineOf = [&](int first) -> Line& {
    return m_lines.at(static_cast<std::size_t>(control - first));
  };
  if (control == IDOK && Take())
    Save();
  else if (control == IDCANCEL)
    End(FALSE);
  else if (control == IDC_SETTINGS_DEFAULT)
    ToDefault();
  else if (control >= FirstBrowse && notification == BN_CLICKED)
    Browse(lineOf(FirstBrowse));
  else if (control >= FirstLine && control < FirstBrowse)
    Edited(lineOf(FirstLine), notification);
}

void SettingsDialog::Edited(Line& line, int notification) {
  const bool isCheck = line.row.kind == Kind::Check, isChoice = line.row.kind == Kind::Choice;
  if (notification == (isCheck ? BN_SETFOCUS : isChoice ? CBN_SETFOCUS : EN_SETFOCUS)) {
    m_current = static_cast<std::size_t>(&line - m_lines.data());
    SetWindowTextW(Control(IDC_SETTINGS_HELP), m_draft.Help(line.row).c_str());
  } else if (isCheck && notification == BN_CLICKED) {
    m_draft.Choice(line.row, Button_GetCheck(line.control));
  } else if (isChoice && notification == CBN_SELCHANGE) {
    m_draft.Choice(line.row, ComboBox_GetCurSel(line.control));
  }
}

void SettingsDialog::Browse(const Line& line) {
  const std::wstring path = AskFile(Window(), Files::Any, TextOf(line.control));
  if (!path.empty()) SetWindowTextW(line.control, path.c_str());
}

void SettingsDialog::ToDefault() {
  const Line& line = m_lines[m_current];
  m_draft.ToDefault(line.row);
  Fill(line);
}

/// Takes over what is typed on the page; false when it cannot be, and the user is told.
bool SettingsDialog::Take() {
  for (const Line& line : m_lines) {
    if (!IsText(line.row)) continue;
    try {
      m_draft.Text(line.row, TextOf(line.control));
    } catch (const Error&) {
      TellFailure(Window());
      SetFocus(line.control);
      return false;
    }
  }
  return true;
}

void SettingsDialog::Save() {
  const Platform& services = m_program.platform;
  m_program.LoadSettings();
  End(TRUE);
  m_draft.Save({services.registry, services.files, services.boxes, services.system, services.clock,
                services.locale},
               m_program.globals.options);
}

INT_PTR SettingsDialog::Other(UINT message, WPARAM, LPARAM lParam) {
  if (message != WM_NOTIFY) return FALSE;
  const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
  if (header.idFrom != IDC_SETTINGS_PAGES) return FALSE;
  if (header.code == TCN_SELCHANGING)
    SetWindowLongPtrW(Window(), DWLP_MSGRESULT, Take() ? FALSE : TRUE);
  else if (header.code == TCN_SELCHANGE)
    ShowPage();
  return TRUE;
}

}  // namespace orvane::designerapp
