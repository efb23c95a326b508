#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

namespace orvane::host {

/// The class under test.
inline constexpr CLSID ClsidContextMenuHandler = {
    0x493e3910, 0xbc83, 0x443b, {0x90, 0x17, 0xf5, 0xb5, 0x3d, 0xb5, 0xf5, 0xc4}};

/// Path of this program.
inline std::wstring HostPath() {
  wchar_t path[4096];
  return {path, path + GetModuleFileNameW(nullptr, path, 4096)};
}

/// Path of orvane.dll, which lies beside this program.
inline std::wstring LibraryPath() {
  return std::filesystem::path(HostPath()).replace_filename(L"orvane.dll").wstring();
}

/// orvane.dll loaded by hand, for its plain exports.
class Library {
 public:
  Library() : m_module(LoadLibraryW(LibraryPath().c_str())) {}
  ~Library() { FreeLibrary(m_module); }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  HMODULE Module() const { return m_module; }
  template <class Function>
  Function* Export(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_module, name)));
  }
  HRESULT Call(const char* name) const { return Export<HRESULT WINAPI()>(name)(); }

 private:
  HMODULE m_module;
};

}  // namespace orvane::host
