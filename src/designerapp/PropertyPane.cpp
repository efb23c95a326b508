#include "designerapp/PropertyPane.h"

#include <algorithm>

#include "commands/TaskText.h"
#include "designer/Labels.h"
#include "designerapp/FileDialogs.h"
#include "designerapp/Scale.h"
#include "designerapp/ScriptChoice.h"

namespace orvane::designerapp {
namespace {

using designer::MenuItem;
using Bits = std::int32_t clsOrvaneData::*;
using Text = FieldText clsOrvaneData::*;

}  // namespace

void PropertyPane::Create(HWND parent) {
  Window::Create({L"OrvaneDesignerProperties", L"Properties", WS_CHILD | WS_VISIBLE | WS_VSCROLL,
                  WS_EX_CONTROLPARENT},
                 {}, parent, nullptr);
  m_tips = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0,
                           0, 0, 0, Handle(), nullptr, m_program.instance, nullptr);
  SendMessageW(m_tips, TTM_SETMAXTIPWIDTH, 0, 400);
}

void PropertyPane::Resolution(UINT dpi, HFONT font) {
  m_dpi = dpi;
  m_font = font;
  for (HWND child = GetWindow(Handle(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  Arrange();
}

void PropertyPane::Show(MenuItem* item) {
  if (item == m_item) return;
  m_item = item;
  SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
  Clear();
  if (item) MakeRows();
  m_scrolled = 0;
  Fill();
  Arrange();
  SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
  RedrawWindow(Handle(), nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void PropertyPane::Refresh(MenuItem& item) {
  if (&item != m_item) return;
  const bool wasSpecial = std::ranges::any_of(m_rows, [](const Row& row) {
    return row.field->use == FieldUse::Folder && !row.browse && !row.bit;
  });
  if (item.data.IsTypeFolder() && wasSpecial != item.data.OptionsIsCSIDL()) {
    m_item = nullptr;
    return Show(&item);
  }
  Fill();
  ShowTask();
}

void PropertyPane::ShowTask() {
  if (!m_task || !m_item) return;
  std::wstring text = L"With " + m_program.sample.Text() + L":\r\n";
  try {
    designer::SampleSelection selection(m_program.sample);
    const TaskText made = TaskTextOf(m_item->data, selection, false, m_program.platform.files,
                                     m_program.globals.actionServices);
    text += made.CommandLine(m_item->data) + L"\r\nList:\r\n" + made.fileList;
  } catch (const Error& error) {
    text += error.Description();
  }
  SetWindowTextW(m_task, text.c_str());
}

int PropertyPane::LabelWidth() const {
  LONG width = 0;
  for (const Row& row : m_rows) {
    if (row.label)
      width = std::max(width, SizeOfText(Handle(), m_font, TextOf(row.label).c_str()).cx);
  }
  return width + Scaled(8, m_dpi);
}

void PropertyPane::Place(HWND control, int x, int y, int width, int height) const {
  if (control)
    SetWindowPos(control, nullptr, x, y - m_scrolled, std::max(width, 0), height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void PropertyPane::Arrange() {
  RECT client{};
  GetClientRect(Handle(), &client);
  const int gap = Scaled(8, m_dpi);
  const int line = SizeOfText(Handle(), m_font, L"Ag").cy + Scaled(8, m_dpi);
  const int step = line + Scaled(5, m_dpi);
  const int right = client.right - gap;
  const int fields = gap + LabelWidth();
  int y = gap;
  Place(m_kind, gap, y, right - gap, line);
  y += step;
  bool isSecond = false;  // of two check boxes in a line
  for (const Row& row : m_rows) {
    if (row.bit) {
      const int half = (right - fields) / 2;
      isSecond = isSecond && row.bit != &row.field->bits.front();
      if (isSecond) y -= step;
      Place(row.control, isSecond ? fields + half : fields, y, half, line);
      isSecond = !isSecond;
      y += step;
      continue;
    }
    const int browse = row.browse ? Scaled(28, m_dpi) : 0;
    Place(row.label, gap, y + Scaled(3, m_dpi), fields - gap, line - Scaled(3, m_dpi));
    if (row.browse) Place(row.browse, right - browse, y, browse, line);
    const int end = right - (browse ? browse + Scaled(4, m_dpi) : 0);
    const bool isList = row.label && !row.browse && row.field->use == FieldUse::Folder;
    Place(row.control, fields, y, end - fields, isList ? 10 * line : line);
    y += step;
  }
  if (m_task) {
    const int height = std::max(static_cast<int>(client.bottom) - y - gap, 4 * line);
    Place(m_task, gap, y, right - gap, height);
    y += height + gap;
  }
  m_height = y;
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_PAGE | SIF_RANGE | SIF_POS;
  info.nMax = m_height - 1;
  info.nPage = static_cast<UINT>(client.bottom);
  info.nPos = m_scrolled;
  SetScrollInfo(Handle(), SB_VERT, &info, TRUE);
}

void PropertyPane::ScrollTo(int position) {
  RECT client{};
  GetClientRect(Handle(), &client);
  const int most = std::max(0, m_height - static_cast<int>(client.bottom));
  const int wanted = std::clamp(position, 0, most);
  if (wanted == m_scrolled) return;
  m_scrolled = wanted;
  Arrange();
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void PropertyPane::ScrollBy(WORD request) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(Handle(), SB_VERT, &info);
  const int line = Scaled(24, m_dpi);
  switch (request) {
    case SB_LINEUP:
      return ScrollTo(m_scrolled - line);
    case SB_LINEDOWN:
      return ScrollTo(m_scrolled + line);
    case SB_PAGEUP:
      return ScrollTo(m_scrolled - static_cast<int>(info.nPage));
    case SB_PAGEDOWN:
      return ScrollTo(m_scrolled + static_cast<int>(info.nPage));
    case SB_THUMBTRACK:
      return ScrollTo(info.nTrackPos);
    default:
      return;
  }
}

void PropertyPane::RevealControl(HWND control) {
  RECT client{};
  GetClientRect(Handle(), &client);
  RECT rect{};
  GetWindowRect(control, &rect);
  MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&rect), 2);
  if (rect.top < 0)
    ScrollTo(m_scrolled + rect.top - Scaled(8, m_dpi));
  else if (rect.bottom > client.bottom)
    ScrollTo(m_scrolled + rect.bottom - client.bottom + Scaled(8, m_dpi));
}

const PropertyPane::Row* PropertyPane::RowOf(HWND control) const {
  const auto found = std::ranges::find_if(
      m_rows, [&](const Row& row) { return row.control == control || row.browse == control; });
  return found == m_rows.end() ? nullptr : &*found;
}

void PropertyPane::Command(WORD, WORD notification, HWND control) {
  const Row* row = RowOf(control);
  if (!row || m_filling) return;
  const bool isButton = row->bit || control == row->browse;
  const bool isList = !isButton && IsSpecialFolder(*row);
  if (isButton ? notification == BN_SETFOCUS
      : isList ? notification == CBN_SETFOCUS
               : notification == EN_SETFOCUS)
    return RevealControl(control);
  if (control == row->browse) {
    if (notification == BN_CLICKED) Browse(*row);
  } else if (isButton ? notification == BN_CLICKED
             : isList ? notification == CBN_SELCHANGE
                      : notification == EN_CHANGE) {
    Edited(*row);
  } else if (!isButton && !isList && notification == EN_KILLFOCUS && onPause) {
    onPause();
  }
}

void PropertyPane::Edited(const Row& row) {
  clsOrvaneData data = m_item->data;
  if (row.bit) {
    const bool on = SendMessageW(row.control, BM_GETCHECK, 0, 0) == BST_CHECKED;
    std::int32_t& bits = data.*std::get<Bits>(row.field->value);
    bits = on ? bits | row.bit->bit : bits & ~row.bit->bit;
  } else if (IsSpecialFolder(row)) {
    const auto chosen = static_cast<WPARAM>(SendMessageW(row.control, CB_GETCURSEL, 0, 0));
    const LRESULT csidl = SendMessageW(row.control, CB_GETITEMDATA, chosen, 0);
    data.*std::get<Text>(row.field->value) = std::to_wstring(csidl);
  } else {
    data.*std::get<Text>(row.field->value) = TextOf(row.control);
  }
  const std::string_view name = row.bit ? row.bit->name : row.field->name;
  if (onChange) onChange(*m_item, std::move(data), L"Change " + designer::LabelOf(name));
}

void PropertyPane::Browse(const Row& row) {
  const FieldUse use = row.field->use;
  const std::wstring chosen = use == FieldUse::Script ? AskScript(row.browse, m_program)
                              : use == FieldUse::Folder
                                  ? AskFolder(Handle(), TextOf(row.control))
                                  : AskFile(Handle(), Files::Any, TextOf(row.control));
  if (!chosen.empty()) SetWindowTextW(row.control, chosen.c_str());
}

void PropertyPane::FocusField(const std::string& name) {
  for (const Row& row : m_rows) {
    if (!name.empty() && row.field->name != name) continue;
    SetFocus(row.control);
    if (!row.bit) SendMessageW(row.control, EM_SETSEL, 0, -1);
    return;
  }
}

LRESULT PropertyPane::Message(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      Command(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
      return 0;
    case WM_SIZE:
      ScrollTo(m_scrolled);
      Arrange();
      return 0;
    case WM_VSCROLL:
      ScrollBy(LOWORD(wParam));
      return 0;
    case WM_MOUSEWHEEL:
      ScrollTo(m_scrolled - GET_WHEEL_DELTA_WPARAM(wParam) * Scaled(72, m_dpi) / WHEEL_DELTA);
      return 0;
    default:
      return Default(message, wParam, lParam);
  }
}

}  // namespace orvane::designerapp
