#include "windowing/DialogWindow.h"

#include "windowing/DialogTemplate.h"

namespace orvane::windowing {
namespace {

/// The module's manifest in force: the dialog gets the controls of the present look, the moving
/// progress bar among them, also in a program that did not ask for them.
class ModuleManifest {
 public:
  explicit ModuleManifest(HINSTANCE module) {
    ACTCTXW request{};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    request.hModule = module;
    request.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
    m_context = CreateActCtxW(&request);
    m_active = m_context != INVALID_HANDLE_VALUE && ActivateActCtx(m_context, &m_cookie);
  }
  ~ModuleManifest() {
    if (m_active) DeactivateActCtx(0, m_cookie);
    if (m_context != INVALID_HANDLE_VALUE) ReleaseActCtx(m_context);
  }
  ModuleManifest(const ModuleManifest&) = delete;
  ModuleManifest& operator=(const ModuleManifest&) = delete;

 private:
  HANDLE m_context;
  ULONG_PTR m_cookie = 0;
  bool m_active;
};

}  // namespace

std::optional<INT_PTR> DialogWindow::Show(HWND owner) {
  const std::vector<WORD> words = TemplateInMessageFont(m_module, m_resource);
  if (words.empty()) return std::nullopt;
  const ModuleManifest manifest(m_module);
  const HWND root = IsWindow(owner) ? GetAncestor(owner, GA_ROOT) : nullptr;
  const INT_PTR result =
      DialogBoxIndirectParamW(m_module, reinterpret_cast<const DLGTEMPLATE*>(words.data()), root,
                              Procedure, reinterpret_cast<LPARAM>(this));
  if (m_failure) std::rethrow_exception(m_failure);
  if (result == -1) return std::nullopt;
  return result;
}

INT_PTR CALLBACK DialogWindow::Procedure(HWND window, UINT message, WPARAM wParam,
                                         LPARAM lParam) noexcept {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    reinterpret_cast<DialogWindow*>(lParam)->m_window = window;
  }
  auto* dialog = reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(window, DWLP_USER));
  if (!dialog) return FALSE;
  try {
    return dialog->Handle(message, wParam, lParam);
  } catch (...) {
    dialog->m_failure = std::current_exception();
    EndDialog(window, 0);
    return FALSE;
  }
}

INT_PTR DialogWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      m_layout.Start(m_window, m_anchors);
      m_scale.Start(m_window);
      Opened();
      return TRUE;
    case WM_SIZE:
      m_layout.Arrange();
      return TRUE;
    case WM_DPICHANGED:
      Rescale(LOWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
      return TRUE;
    case WM_GETMINMAXINFO:
      m_layout.Limit(*reinterpret_cast<MINMAXINFO*>(lParam));
      return TRUE;
    case WM_COMMAND:
      Command(LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_NCDESTROY:
      m_window = nullptr;
      return FALSE;
    default:
      return Other(message, wParam, lParam);
  }
}

void DialogWindow::Rescale(int dpi, const RECT& place) {
  if (dpi <= 0) return;
  m_scale.Change(dpi);
  m_layout.Scale(dpi, m_scale.StartDpi());
  Rescaled();
  SetWindowPos(m_window, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
  m_layout.Arrange();  // also when the size happens to be the same
}

}  // namespace orvane::windowing
