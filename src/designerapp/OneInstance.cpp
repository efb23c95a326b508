#include "designerapp/OneInstance.h"

namespace orvane::designerapp {
namespace {

constexpr ULONG_PTR Mark = 0x4456524F;  // what the message is
constexpr std::size_t MaxPath = 32768;
constexpr UINT Patience = 5000;  // milliseconds

/// The first designer may be on its way to its window still.
HWND FindFirst() {
  for (UINT waited = 0; waited < Patience; waited += 100) {
    if (const HWND window = FindWindowW(MainWindowClass, nullptr)) return window;
    Sleep(100);
  }
  return nullptr;
}

}  // namespace

bool OneInstance::IsFirst() {
  m_mutex.reset(CreateMutexW(nullptr, FALSE, L"Local\\OrvaneDesigner"));
  return GetLastError() != ERROR_ALREADY_EXISTS;
}

bool OneInstance::HandOver(const std::wstring& file) {
  const HWND first = FindFirst();
  if (!first) return false;
  DWORD process = 0;
  GetWindowThreadProcessId(first, &process);
  AllowSetForegroundWindow(process);
  COPYDATASTRUCT data{};
  data.dwData = Mark;
  data.cbData = static_cast<DWORD>(file.size() * sizeof(wchar_t));
  data.lpData = const_cast<wchar_t*>(file.data());
  DWORD_PTR answer = 0;
  return SendMessageTimeoutW(first, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data),
                             SMTO_ABORTIFHUNG, Patience, &answer) &&
         answer != 0;
}

std::optional<std::wstring> OneInstance::FileOf(const COPYDATASTRUCT& data) {
  const std::size_t length = data.cbData / sizeof(wchar_t);
  if (data.dwData != Mark || data.cbData % sizeof(wchar_t) != 0 || length > MaxPath)
    return std::nullopt;
  return std::wstring(static_cast<const wchar_t*>(data.lpData), length);
}

}  // namespace orvane::designerapp
