#include "host/DialogScript.h"

#include <utility>

namespace orvane::host {
namespace {

thread_local DialogScript* t_script = nullptr;

constexpr int TextOfBox = 0xFFFF;  // the identifier of a message box's text

BOOL CALLBACK Collect(HWND window, LPARAM dialogs) {
  wchar_t name[16];
  GetClassNameW(window, name, 16);
  if (std::wstring(name) == L"#32770") {
    reinterpret_cast<std::vector<HWND>*>(dialogs)->push_back(window);
  }
  return TRUE;
}

std::vector<HWND> Dialogs() {
  std::vector<HWND> dialogs;
  EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&dialogs));
  return dialogs;
}

bool IsOf(const wchar_t* module, HWND dialog) {
  const auto owner = reinterpret_cast<HMODULE>(GetWindowLongPtrW(dialog, GWLP_HINSTANCE));
  return owner == GetModuleHandleW(module);
}

}  // namespace

std::wstring TextOf(HWND window) {
  wchar_t text[1024];
  return std::wstring(text, static_cast<std::size_t>(GetWindowTextW(window, text, 1024)));
}

std::wstring TextOf(HWND dialog, int control) {
  return TextOf(GetDlgItem(dialog, control));
}

HWND OpenDialog(const wchar_t* module) {
  for (const HWND dialog : Dialogs()) {
    if (IsOf(module, dialog)) return dialog;
  }
  return nullptr;
}

void Click(HWND dialog, int control) {
  PostMessageW(GetDlgItem(dialog, control), BM_CLICK, 0, 0);
}

DialogScript::DialogScript(std::vector<Step> steps, const wchar_t* module)
    : m_steps(std::move(steps)), m_module(module), m_timer(SetTimer(nullptr, 0, 30, OnTimer)) {
  t_script = this;
}

DialogScript::~DialogScript() {
  KillTimer(nullptr, m_timer);
  t_script = nullptr;
}

void DialogScript::Continue(std::vector<Step> steps) {
  m_steps = std::move(steps);
  m_next = 0;
}

void DialogScript::Close(HWND box) {
  if (!GetDlgItem(box, TextOfBox) || box == m_closed) return;
  m_closed = box;
  boxes.push_back(TextOf(box) + L": " + TextOf(box, TextOfBox));
  PostMessageW(box, WM_COMMAND, IDOK, 0);
}

void CALLBACK DialogScript::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
  if (!t_script) return;
  DialogScript& self = *t_script;
  for (const HWND dialog : Dialogs()) {
    // The labels of the product's own dialogs have the identifier of a box's text.
    if (!IsOf(self.m_module, dialog)) self.Close(dialog);
  }
  const HWND dialog = OpenDialog(self.m_module);
  // A dialog that waits for a message box is disabled.
  if (dialog && IsWindowEnabled(dialog) && !self.IsDone()) self.m_steps[self.m_next++](dialog);
}

}  // namespace orvane::host
