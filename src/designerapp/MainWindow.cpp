#include "designerapp/MainWindow.h"

#include <commctrl.h>
#include <shellapi.h>
#include <windowsx.h>

#include <utility>

#include "designerapp/CommandIds.h"
#include "designerapp/OneInstance.h"
#include "designerapp/Placement.h"
#include "designerapp/Scale.h"

namespace orvane::designerapp {
namespace {

constexpr UINT_PTR CheckTimer = 1;
constexpr UINT CheckDelay = 300;  // milliseconds after the last edit, or the first look

// The window's own messages to itself.
constexpr UINT LookMessage = WM_APP;
constexpr UINT HandOverMessage = WM_APP + 1;

constexpr DWORD Style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

/// As large as is comfortable and the screen allows.
SIZE FirstSize(UINT dpi) {
  RECT screen{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  return {std::min<LONG>(Scaled(900, dpi), screen.right - screen.left),
          std::min<LONG>(Scaled(620, dpi), screen.bottom - screen.top)};
}

bool IsTextField(HWND window) {
  wchar_t name[16] = L"";
  GetClassNameW(window, name, 16);
  return lstrcmpiW(name, L"Edit") == 0;
}

}  // namespace

MainWindow::MainWindow(Program& program)
    : m_program(program),
      m_tree(program),
      m_properties(program),
      m_findings(program),
      m_preview(program),
      m_files(program),
      m_keys(LoadAcceleratorsW(program.instance, MAKEINTRESOURCEW(IDR_MAIN))),
      m_treeKeys(LoadAcceleratorsW(program.instance, MAKEINTRESOURCEW(IDC_TREE))) {}

void MainWindow::Open(const std::wstring& path, int show) {
  const RECT place{CW_USEDEFAULT, 0, CW_USEDEFAULT, 0};
  Create({MainWindowClass, L"Orvane Designer", Style, WS_EX_ACCEPTFILES}, place, nullptr,
         LoadMenuW(m_program.instance, MAKEINTRESOURCEW(IDR_MAIN)));
  const SIZE size = FirstSize(DpiOf(Handle()));
  SetWindowPos(Handle(), nullptr, 0, 0, size.cx, size.cy,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  m_files.Owner(Handle());
  m_recent.Attach(GetSubMenu(GetMenu(Handle()), 0));
  m_program.recent.FileMenu(&m_recent);
  m_program.recent.UpdateFileMenu({});
  ShowDocument();
  if (!m_program.globals.options.m_bGeneralSaveWindowPos ||
      !RestorePlacement(Handle(), m_program.platform.registry, show))
    ShowWindow(Handle(), show);
  UpdateWindow(Handle());
  try {
    m_files.Start(path);
  } catch (...) {
    TellFailure(Handle());
  }
  ShowDocument();
}

bool MainWindow::Translate(MSG& message) {
  const HWND focus = GetFocus();
  const bool editsLabel = TreeView_GetEditControl(m_tree.Handle()) != nullptr;
  if (!editsLabel && TranslateAcceleratorW(Handle(), m_keys.get(), &message)) return true;
  if (!IsTextField(focus) && TranslateAcceleratorW(Handle(), m_treeKeys.get(), &message))
    return true;
  return !editsLabel && IsDialogMessageW(Handle(), &message);
}

void MainWindow::MakeParts() {
  m_program.document.Listen(this);
  m_tree.Create(Handle());
  m_properties.Create(Handle());
  m_findings.Create(Handle());
  m_status = CreateWindowExW(0, STATUSCLASSNAMEW, nullptr, WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP,
                             0, 0, 0, 0, Handle(), reinterpret_cast<HMENU>(IDC_STATUS),
                             m_program.instance, nullptr);
  m_tree.onSelect = [this] { ShowCurrent(); };
  m_tree.onDrag = [this](designer::MenuItem& item) { BeginDrag(item); };
  m_tree.onRename = [this](designer::MenuItem& item, const std::wstring& caption) {
    clsOrvaneData data = item.data;
    data.Caption(caption);
    m_program.document.Edits().Pause();
    m_program.document.Edits().Type(L"Rename", item, std::move(data));
    m_program.document.Edits().Pause();
    EditsHappened();
  };
  m_properties.onChange = [this](designer::MenuItem& item, clsOrvaneData data,
                                 const std::wstring& name) {
    m_program.document.Edits().Type(name, item, std::move(data));
    EditsHappened();
  };
  m_properties.onPause = [this] { m_program.document.Edits().Pause(); };
  m_findings.onChoose = [this](designer::MenuItem* item, const std::string& field) {
    GoTo(item, field);
  };
  Resolution(DpiOf(Handle()));
}

void MainWindow::Resolution(UINT dpi) {
  UniqueFont font = MessageFont(dpi);
  for (const HWND part : {m_tree.Handle(), m_findings.Handle(), m_status})
    SendMessageW(part, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
  m_tree.Resolution(dpi);
  m_findings.Resolution(dpi);
  m_properties.Resolution(dpi, font.get());
  m_font = std::move(font);
  Arrange();
}

void MainWindow::Arrange() {
  SendMessageW(m_status, WM_SIZE, 0, 0);
  RECT status{};
  GetWindowRect(m_status, &status);
  RECT client{};
  GetClientRect(Handle(), &client);
  const LONG height = std::max<LONG>(client.bottom - (status.bottom - status.top), 0);
  const Dividers::Places places =
      m_dividers.PlacesIn({client.right, height}, Scaled(4, DpiOf(Handle())));
  const auto place = [](HWND part, const RECT& rect) {
    MoveWindow(part, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, TRUE);
  };
  place(m_tree.Handle(), places.tree);
  place(m_properties.Handle(), places.properties);
  place(m_findings.Handle(), places.findings);
}

/// Whether the message was the mouse's way with a divider.
bool MainWindow::DividerMessage(UINT message) {
  using Divider = Dividers::Divider;
  const DWORD at = GetMessagePos();
  POINT point{GET_X_LPARAM(at), GET_Y_LPARAM(at)};
  ScreenToClient(Handle(), &point);
  const Divider here = m_moving == Divider::None ? m_dividers.At(point) : m_moving;
  if (m_dragging || here == Divider::None) return false;
  if (message == WM_SETCURSOR) {
    SetCursor(LoadCursorW(nullptr, here == Divider::Upright ? IDC_SIZEWE : IDC_SIZENS));
  } else if (message == WM_LBUTTONDOWN) {
    m_moving = here;
    SetCapture(Handle());
  } else if (message == WM_MOUSEMOVE && m_moving != Divider::None) {
    m_dividers.MoveTo(here, point);
    Arrange();
  } else if (message != WM_MOUSEMOVE) {
    m_moving = Divider::None;
    if (message == WM_LBUTTONUP) ReleaseCapture();
  }
  return true;
}

LRESULT MainWindow::Notify(NMHDR& header) {
  if (header.hwndFrom == m_tree.Handle()) {
    if (header.code == NM_RCLICK) ContextMenu(static_cast<LPARAM>(GetMessagePos()));
    return m_tree.Notify(header);
  }
  if (header.hwndFrom == m_findings.Handle()) return m_findings.Notify(header);
  return 0;
}

LRESULT MainWindow::HighlightChanged(WPARAM wParam) {
  const UINT id = LOWORD(wParam);
  if (HIWORD(wParam) & MF_POPUP) {
    Status({});  // its number is a place
  } else if (m_preview.IsOpen()) {
    Status(m_preview.HelpText(id));
  } else {
    wchar_t text[256] = L"";
    LoadStringW(m_program.instance, id, text, 256);
    Status(text);
  }
  return 0;
}

LRESULT MainWindow::Message(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  if (m_preview.Message(message, wParam, lParam, result)) return result;
  switch (message) {
    case WM_CREATE:
      MakeParts();
      return 0;
    case WM_SIZE:
      Arrange();
      return 0;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {360, 300};
      return 0;
    case WM_DPICHANGED: {
      const RECT& place = *reinterpret_cast<const RECT*>(lParam);
      SetWindowPos(Handle(), nullptr, place.left, place.top, place.right - place.left,
                   place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
      Resolution(LOWORD(wParam));
      return 0;
    }
    case WM_SETTINGCHANGE:
    case WM_SYSCOLORCHANGE:
      Resolution(DpiOf(Handle()));
      return 0;
    case WM_NOTIFY:
      return Notify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_COMMAND:
      if (lParam == 0) Command(LOWORD(wParam));
      return 0;
    case WM_INITMENUPOPUP:
      UpdateMenu(reinterpret_cast<HMENU>(wParam));
      return 0;
    case WM_MENUSELECT:
      return HighlightChanged(wParam);
    case WM_EXITMENULOOP:
      ShowCurrent();
      return 0;
    case WM_TIMER:
      KillTimer(Handle(), CheckTimer);
      m_tree.ShowIcons();
      m_findings.Check(false);
      return 0;
    case WM_DROPFILES:
      DroppedFiles(wParam);
      return 0;
    case WM_CONTEXTMENU:
      if (reinterpret_cast<HWND>(wParam) == m_tree.Handle()) ContextMenu(lParam);
      return 0;
    case WM_SETCURSOR:
      if (LOWORD(lParam) == HTCLIENT && DividerMessage(message)) return TRUE;
      break;
    case WM_LBUTTONDOWN:
      DividerMessage(message);
      return 0;
    case WM_MOUSEMOVE:
      if (!DividerMessage(message) && m_dragging) Drag();
      return 0;
    case WM_LBUTTONUP:
      if (!DividerMessage(message)) EndDrag(true);
      return 0;
    case WM_CAPTURECHANGED:
      if (!DividerMessage(message)) EndDrag(false);
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) break;
      PostMessageW(Handle(), LookMessage, 0, 0);  // when the click that brought it here is over
      break;
    case LookMessage:
      if (m_files.LookForChanges()) ShowDocument();
      return 0;
    case WM_COPYDATA: {
      auto file = OneInstance::FileOf(*reinterpret_cast<const COPYDATASTRUCT*>(lParam));
      if (!file) return FALSE;
      HandedOver(*std::move(file));
      return TRUE;
    }
    case HandOverMessage:
      OpenHandedOver();
      return 0;
    case WM_ENABLE:
      if (wParam && m_handedOver) PostMessageW(Handle(), HandOverMessage, 0, 0);
      return 0;
    case WM_SETFOCUS:
      SetFocus(m_tree.Handle());
      return 0;
    case WM_QUERYENDSESSION:
      return m_files.MayLeave();
    case WM_CLOSE:
      if (m_files.MayLeave()) DestroyWindow(Handle());
      return 0;
    case WM_DESTROY:
      if (m_program.globals.options.m_bGeneralSaveWindowPos)
        SavePlacement(Handle(), m_program.platform.registry);
      m_program.recent.FileMenu(nullptr);
      m_program.document.Listen(nullptr);
      PostQuitMessage(0);
      return 0;
    default:
      break;
  }
  return Default(message, wParam, lParam);
}

/// The other start waits: what it wants is done when it has gone.
void MainWindow::HandedOver(std::wstring file) {
  if (IsIconic(Handle())) ShowWindow(Handle(), SW_RESTORE);
  SetForegroundWindow(GetLastActivePopup(Handle()));
  if (file.empty()) return;
  m_handedOver = std::move(file);
  PostMessageW(Handle(), HandOverMessage, 0, 0);
}

void MainWindow::OpenHandedOver() {
  if (!m_handedOver || !IsWindowEnabled(Handle())) return;
  const std::wstring file = *std::exchange(m_handedOver, std::nullopt);
  if (m_files.Open(file)) ShowDocument();
}

void MainWindow::EditsHappened() {
  ShowTitle();
  SetTimer(Handle(), CheckTimer, CheckDelay, nullptr);
}

void MainWindow::Inserted(designer::MenuItem& item) {
  m_tree.Inserted(item);
}

void MainWindow::Removing(designer::MenuItem& item) {
  m_properties.Show(nullptr);
  m_tree.Removing(item);
}

void MainWindow::Changed(designer::MenuItem& item) {
  m_tree.Changed(item);
  m_properties.Refresh(item);
  if (&item == m_tree.Current()) Status(m_program.globals.tools.GetDesignerDescription(item.data));
}

void MainWindow::Clearing() {
  m_properties.Show(nullptr);
  m_tree.Clearing();
}

void MainWindow::ShowDocument() {
  m_tree.ShowAll();
  ShowTitle();
  ShowCurrent();
  SetTimer(Handle(), CheckTimer, CheckDelay, nullptr);
}

void MainWindow::ShowTitle() {
  const std::wstring title = m_program.document.Title();
  if (TextOf(Handle()) != title) SetWindowTextW(Handle(), title.c_str());
}

void MainWindow::ShowCurrent() {
  designer::MenuItem* item = m_tree.Current();
  m_properties.Show(item);
  Status(item ? m_program.globals.tools.GetDesignerDescription(item->data) : std::wstring());
}

void MainWindow::Status(const std::wstring& text) {
  SendMessageW(m_status, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void MainWindow::GoTo(designer::MenuItem* item, const std::string& field) {
  if (!item) return;
  m_tree.Select(item);
  ShowCurrent();
  m_properties.FocusField(field);
}

}  // namespace orvane::designerapp
