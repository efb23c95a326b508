#include "host/Library.h"

namespace orvane::host {

std::wstring LibraryPath() {
  std::wstring path(4096, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path.substr(0, path.rfind(L'\\') + 1) + L"orvane.dll";
}

}  // namespace orvane::host
