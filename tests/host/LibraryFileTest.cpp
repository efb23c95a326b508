#include <gtest/gtest.h>

#include <vector>

#include "host/Library.h"
#include "host/PeImage.h"

namespace orvane::host {
namespace {

// What every Windows has; a compiler's run-time DLL would have to be shipped along.
const std::set<std::string> SystemDlls = {
    "advapi32.dll", "comctl32.dll", "gdi32.dll",    "kernel32.dll", "msvcrt.dll",
    "ntdll.dll",    "ole32.dll",    "oleaut32.dll", "psapi.dll",    "shell32.dll",
    "shlwapi.dll",  "user32.dll",   "version.dll",  "winmm.dll",    "ws2_32.dll"};

TEST(LibraryFile, ImportsOnlySystemDlls) {
  for (const std::string& name : ImportedDlls(LibraryPath())) {
    EXPECT_TRUE(SystemDlls.contains(name)) << name;
  }
}

TEST(LibraryFile, CarriesItsVersionResourceAndManifest) {
  const std::wstring path = LibraryPath();
  DWORD ignored = 0;
  std::vector<char> info(GetFileVersionInfoSizeW(path.c_str(), &ignored));
  ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(info.size()), info.data()));
  void* text = nullptr;
  UINT length = 0;
  ASSERT_TRUE(
      VerQueryValueW(info.data(), L"\\StringFileInfo\\040904E4\\ProductName", &text, &length));
  EXPECT_STREQ(static_cast<const wchar_t*>(text), L"Orvane");

  const HMODULE file = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  EXPECT_TRUE(FindResourceW(file, MAKEINTRESOURCEW(2), MAKEINTRESOURCEW(24)));  // RT_MANIFEST
  FreeLibrary(file);
}

}  // namespace
}  // namespace orvane::host
