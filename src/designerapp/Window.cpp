#include "designerapp/Window.h"

#include "menudoc/MenuDocument.h"
#include "support/Error.h"
#include "support/Utf8.h"

namespace orvane::designerapp {
namespace {

constexpr const wchar_t* Title = L"Orvane Designer";

void Register(const wchar_t* className, WNDPROC procedure) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hIcon = LoadIconW(windowClass.hInstance, L"folder_open");
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  windowClass.lpszClassName = className;
  RegisterClassExW(&windowClass);  // fails for one that is there already
}

std::wstring Reason() {
  try {
    throw;
  } catch (const Error& error) {
    return error.Description();
  } catch (const DocumentError& error) {
    return FromUtf8(error.what()).value_or(L"This is no menu document.");
  } catch (const std::bad_alloc&) {
    return L"There is not enough memory.";
  } catch (...) {
    return L"Something went wrong.";
  }
}

}  // namespace

void Window::Create(const Look& look, const RECT& place, HWND parent, HMENU menu) {
  Register(look.className, Procedure);
  CreateWindowExW(look.exStyle, look.className, look.title, look.style, place.left, place.top,
                  place.right - place.left, place.bottom - place.top, parent, menu,
                  GetModuleHandleW(nullptr), this);
  if (!m_window) throw Error(Error::Internal, L"The window cannot be made.", {}, GetLastError());
}

LRESULT CALLBACK Window::Procedure(HWND window, UINT message, WPARAM wParam,
                                   LPARAM lParam) noexcept {
  if (message == WM_NCCREATE) {
    const auto& creation = *reinterpret_cast<const CREATESTRUCTW*>(lParam);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation.lpCreateParams));
    static_cast<Window*>(creation.lpCreateParams)->m_window = window;
  }
  auto* self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self) return DefWindowProcW(window, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    self->m_window = nullptr;
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    return DefWindowProcW(window, message, wParam, lParam);
  }
  try {
    return self->Message(message, wParam, lParam);
  } catch (...) {
    TellFailure(window);
    return 0;
  }
}

void TellFailure(HWND owner) noexcept {
  try {
    MessageBoxW(owner, Reason().c_str(), Title, MB_ICONEXCLAMATION | MB_OK);
  } catch (...) {
  }
}

std::wstring TextOf(HWND control) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)), L'\0');
  const int length = GetWindowTextW(control, text.data(), static_cast<int>(text.size() + 1));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace orvane::designerapp
