#include "designer/Labels.h"
#include "designerapp/PropertyPane.h"
#include "menudata/ShellPaths.h"
#include "support/Utf8.h"

// The fields that an item's kind has, and what they show.

namespace orvane::designerapp {
namespace {

using Bits = std::int32_t clsOrvaneData::*;
using Text = FieldText clsOrvaneData::*;

constexpr int LastSpecialFolder = 0x3D;
constexpr const wchar_t* KeysOfMenuBar = L"feivth";

std::wstring Wide(std::string_view text) {
  return FromUtf8(text).value_or(std::wstring());
}

TTTOOLINFOW TipOf(HWND control) {
  TTTOOLINFOW tip{};
  tip.cbSize = sizeof tip;
  tip.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tip.hwnd = GetParent(control);
  tip.uId = reinterpret_cast<UINT_PTR>(control);
  return tip;
}

bool CanBrowse(FieldUse use) {
  return IsPath(use) || use == FieldUse::Script;
}

}  // namespace

void PropertyPane::Clear() {
  m_rows.clear();
  m_kind = m_task = nullptr;
  while (const HWND child = GetWindow(Handle(), GW_CHILD)) {
    TTTOOLINFOW tip = TipOf(child);  // it would outlive the control
    SendMessageW(m_tips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tip));
    DestroyWindow(child);
  }
}

void PropertyPane::MakeRows() {
  const clsOrvaneData& data = m_item->data;
  const ItemKind* kind = FindKind(data.m_lType);
  const wchar_t* known = data.IsTypeRoot() ? L"The menu as a whole." : L"An unknown kind of item.";
  m_kind =
      Make(L"STATIC", kind && !data.IsTypeRoot() ? Wide(kind->meaning) : known, SS_NOPREFIX, 0);
  if (!kind) return;
  for (const ItemField& field : kind->fields) {
    if (std::holds_alternative<Text>(field.value)) AddText(field);
  }
  for (const ItemField& field : kind->fields) {
    if (std::holds_alternative<Bits>(field.value)) AddBits(field);
  }
  if (data.IsTypeFolder()) AddBits(OptionsField());
  if (data.IsTypeSelectionTask()) AddTaskView();
  Label();
}

HWND PropertyPane::Make(const wchar_t* className, const std::wstring& text, DWORD style,
                        DWORD exStyle) {
  const auto id = static_cast<INT_PTR>(100 + m_rows.size());
  const HWND control =
      CreateWindowExW(exStyle, className, text.c_str(), style | WS_CHILD | WS_VISIBLE, 0, 0, 0, 0,
                      Handle(), reinterpret_cast<HMENU>(id), m_program.instance, nullptr);
  SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), FALSE);
  return control;
}

void PropertyPane::AddTip(HWND control, std::string_view meaning) {
  std::wstring text = Wide(meaning);
  TTTOOLINFOW tip = TipOf(control);
  tip.lpszText = text.data();
  SendMessageW(m_tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tip));
}

void PropertyPane::AddText(const ItemField& field) {
  Row row;
  row.field = &field;
  row.label = Make(L"STATIC", designer::LabelOf(field.name), SS_LEFT, 0);
  if (IsSpecialFolder(row)) {
    row.control = Make(L"COMBOBOX", L"", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, 0);
    FillSpecialFolders(row);
  } else {
    row.control = Make(L"EDIT", L"", ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE);
    SendMessageW(row.control, EM_SETLIMITTEXT, DefinitionFile::MaxLength, 0);
    if (CanBrowse(field.use)) row.browse = Make(L"BUTTON", L"...", BS_PUSHBUTTON | WS_TABSTOP, 0);
  }
  AddTip(row.control, field.meaning);
  m_rows.push_back(row);
}

void PropertyPane::AddBits(const ItemField& field) {
  for (const NamedBit& bit : field.bits) {
    if (bit.name == "leaf") continue;
    Row row;
    row.field = &field;
    row.bit = &bit;
    row.control = Make(L"BUTTON", designer::LabelOf(bit.name), BS_AUTOCHECKBOX | WS_TABSTOP, 0);
    AddTip(row.control, bit.meaning);
    m_rows.push_back(row);
  }
}

void PropertyPane::AddTaskView() {
  m_task =
      Make(L"EDIT", L"", ES_MULTILINE | ES_READONLY | WS_VSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE);
  ShowTask();
}

/// Gives each label its letter; none that opens a menu of the menu bar.
void PropertyPane::Label() {
  std::vector<std::wstring> labels;
  for (const Row& row : m_rows)
    labels.push_back(designer::LabelOf(row.bit ? row.bit->name : row.field->name));
  designer::AddAccessKeys(labels, KeysOfMenuBar);
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    SetWindowTextW(m_rows[i].bit ? m_rows[i].control : m_rows[i].label, labels[i].c_str());
}

bool PropertyPane::IsSpecialFolder(const Row& row) const {
  return row.field->use == FieldUse::Folder && m_item->data.IsTypeFolder() &&
         m_item->data.OptionsIsCSIDL();
}

void PropertyPane::FillSpecialFolders(Row& row) {
  Shell& shell = m_program.platform.shell;
  for (int csidl = 0; csidl <= LastSpecialFolder; ++csidl) {
    const std::wstring name = GetSpecialFolderName(shell, WindowHandle::None, csidl, true);
    if (name.empty()) continue;
    const LRESULT index =
        SendMessageW(row.control, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    SendMessageW(row.control, CB_SETITEMDATA, static_cast<WPARAM>(index), csidl);
  }
}

void PropertyPane::Fill() {
  m_filling = true;
  for (Row& row : m_rows) Fill(row);
  m_filling = false;
}

void PropertyPane::Fill(Row& row) {
  const clsOrvaneData& data = m_item->data;
  if (row.bit) {
    const bool on = (data.*std::get<Bits>(row.field->value) & row.bit->bit) != 0;
    SendMessageW(row.control, BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
    return;
  }
  const std::wstring text(data.*std::get<Text>(row.field->value));
  if (IsSpecialFolder(row)) {
    const LRESULT count = SendMessageW(row.control, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      const LRESULT csidl = SendMessageW(row.control, CB_GETITEMDATA, static_cast<WPARAM>(i), 0);
      if (std::to_wstring(csidl) == text)
        SendMessageW(row.control, CB_SETCURSEL, static_cast<WPARAM>(i), 0);
    }
  } else if (TextOf(row.control) != text) {
    SetWindowTextW(row.control, text.c_str());
  }
}

}  // namespace orvane::designerapp
