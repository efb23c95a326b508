#include "server/CopyToDialog.h"

#include "server/DialogIds.h"
#include "win32/NativeHandles.h"

namespace orvane::server {
namespace {

using Layout = windowing::DialogLayout;
constexpr unsigned Wider = Layout::Right;
constexpr unsigned Along = Layout::Left | Layout::Right;
constexpr unsigned AtCorner = Along | Layout::Top | Layout::Bottom;

constexpr Layout::Anchor Placing[] = {
    {IDC_DESTINATION, Wider}, {IDC_BROWSE, Along},   {IDC_RECENT, Wider | Layout::Bottom},
    {IDC_SLOT + 0, Wider},    {IDC_SLOT + 1, Wider}, {IDC_SLOT + 2, Wider},
    {IDC_SLOT + 3, Wider},    {IDC_SLOT + 4, Wider}, {IDC_SLOT + 5, Wider},
    {IDC_SLOT + 6, Wider},    {IDOK, AtCorner},      {IDCANCEL, AtCorner},
};

bool IsSlot(int control) {
  return control >= IDC_SLOT && control < IDC_SLOT + SLOT_COUNT;
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size() + 1));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

/// The caption with its number as the access key: "&1. C:\Backup".
std::wstring WithAccessKey(const std::wstring& caption) {
  std::wstring result = L"&";
  for (const wchar_t c : caption) result.append(c == L'&' ? 2 : 1, c);
  return result;
}

}  // namespace

CopyToDialog::CopyToDialog(HINSTANCE module, CopyToModel& model)
    : DialogWindow(module, IDD_COPY_TO, Placing), m_model(model) {}

void CopyToDialog::Opened() {
  LoadPictures();
  SetWindowTextW(Window(), m_model.Title().c_str());
  ShowSlots();
  Destination(m_model.InitialDestination());
}

void CopyToDialog::LoadPictures() {
  const auto load = [&](const wchar_t* name, UINT type, int size) {
    return LoadImageW(Instance(), name, type, size, size, LR_DEFAULTCOLOR);
  };
  UniqueIcon folder(
      static_cast<HICON>(load(L"folder_open", IMAGE_ICON, Scaled(GetSystemMetrics(SM_CXSMICON)))));
  SendMessageW(Control(IDC_BROWSE), BM_SETIMAGE, IMAGE_ICON,
               reinterpret_cast<LPARAM>(folder.get()));
  m_folder = std::move(folder);
  if (m_model.HasBackground())
    m_background.reset(static_cast<HBITMAP>(load(L"background", IMAGE_BITMAP, 0)));
}

void CopyToDialog::ShowSlots() {
  const std::vector<CopyToModel::Slot> slots = m_model.Slots();
  for (std::size_t i = 0; i < SLOT_COUNT; ++i) {
    const HWND control = Control(IDC_SLOT + static_cast<int>(i));
    if (i < slots.size()) SetWindowTextW(control, WithAccessKey(slots[i].caption).c_str());
    EnableWindow(control, i < slots.size() && slots[i].used);
  }
}

void CopyToDialog::Command(int control, int notification) {
  if (notification != BN_CLICKED) return;
  if (control == IDOK)
    Accept();
  else if (control == IDCANCEL)
    End(FALSE);
  else if (control == IDC_BROWSE)
    Destination(m_model.Browse(win32::FromNative<WindowHandle>(Window()), Destination()));
  else if (IsSlot(control))
    Destination(m_model.Choose(static_cast<std::size_t>(control - IDC_SLOT)));
}

void CopyToDialog::Accept() {
  if (m_model.Accept(Destination())) return End(TRUE);
  SetFocus(Control(IDC_DESTINATION));
  SendMessageW(Control(IDC_DESTINATION), EM_SETSEL, 0, -1);
}

INT_PTR CopyToDialog::Other(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto context = reinterpret_cast<HDC>(wParam);
  switch (message) {
    case WM_DRAWITEM:
      PaintSlot(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_ERASEBKGND:
      if (!PaintBackground(context)) return FALSE;
      SetWindowLongPtrW(Window(), DWLP_MSGRESULT, TRUE);
      return TRUE;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      if (!m_background) return FALSE;
      SetBkMode(context, TRANSPARENT);
      return reinterpret_cast<INT_PTR>(GetStockObject(NULL_BRUSH));
    default:
      return FALSE;
  }
}

/// A line as in a list, its path shortened in the middle as needed.
void CopyToDialog::PaintSlot(const DRAWITEMSTRUCT& item) const {
  const bool chosen = (item.itemState & (ODS_FOCUS | ODS_SELECTED)) != 0;
  const bool disabled = (item.itemState & ODS_DISABLED) != 0;
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(chosen ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, GetSysColor(disabled ? COLOR_GRAYTEXT
                                     : chosen ? COLOR_HIGHLIGHTTEXT
                                              : COLOR_WINDOWTEXT));
  RECT margin{0, 0, 4, 0};
  MapDialogRect(Window(), &margin);
  RECT rect = item.rcItem;
  InflateRect(&rect, -Scaled(margin.right), 0);
  const UINT keys = (item.itemState & ODS_NOACCEL) ? DT_HIDEPREFIX : 0;
  DrawTextW(item.hDC, TextOf(item.hwndItem).c_str(), -1, &rect,
            DT_SINGLELINE | DT_VCENTER | DT_PATH_ELLIPSIS | keys);
  if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT))
    DrawFocusRect(item.hDC, &item.rcItem);
}

bool CopyToDialog::PaintBackground(HDC context) const {
  BITMAP shape{};
  if (!m_background || !GetObjectW(m_background.get(), sizeof shape, &shape)) return false;
  const HDC source = CreateCompatibleDC(context);
  if (!source) return false;
  RECT client{};
  GetClientRect(Window(), &client);
  const HGDIOBJ before = SelectObject(source, m_background.get());
  SetStretchBltMode(context, HALFTONE);
  SetBrushOrgEx(context, 0, 0, nullptr);
  StretchBlt(context, 0, 0, client.right, client.bottom, source, 0, 0, shape.bmWidth,
             shape.bmHeight, SRCCOPY);
  SelectObject(source, before);
  DeleteDC(source);
  return true;
}

std::wstring CopyToDialog::Destination() const {
  return TextOf(Control(IDC_DESTINATION));
}

void CopyToDialog::Destination(const std::wstring& text) {
  SetWindowTextW(Control(IDC_DESTINATION), text.c_str());
}

}  // namespace orvane::server
