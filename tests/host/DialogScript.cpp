#include "host/DialogScript.h"

#include <utility>

namespace orvane::host {
namespace {

thread_local DialogScript* t_script = nullptr;

struct Search {
  HINSTANCE module;
  HWND dialog = nullptr;
};

BOOL CALLBACK Look(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  wchar_t name[16];
  GetClassNameW(window, name, 16);
  const auto owner = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(window, GWLP_HINSTANCE));
  if (std::wstring(name) != L"#32770" || owner != search.module) return TRUE;
  search.dialog = window;
  return FALSE;
}

}  // namespace

std::wstring TextOf(HWND window) {
  wchar_t text[1024];
  return std::wstring(text, static_cast<std::size_t>(GetWindowTextW(window, text, 1024)));
}

HWND OpenDialog(const wchar_t* module) {
  Search search{GetModuleHandleW(module)};
  EnumThreadWindows(GetCurrentThreadId(), Look, reinterpret_cast<LPARAM>(&search));
  return search.dialog;
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

void CALLBACK DialogScript::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
  if (!t_script || t_script->IsDone()) return;
  const HWND dialog = OpenDialog(t_script->m_module);
  if (dialog && IsWindowEnabled(dialog)) t_script->m_steps[t_script->m_next++](dialog);
}

}  // namespace orvane::host
