#include <windows.h>

#include <objbase.h>

#include "HostWindows.h"
#include "win32/FileSystem.h"
#include "win32/Shell.h"
#include "win32/SystemInfo.h"

namespace orvane::tool {
namespace {

class Windows : public HostWindows {
 public:
  // The shell parses names through COM.
  Windows() : m_initialized(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
  ~Windows() override {
    if (m_initialized) CoUninitialize();
  }
  Windows(const Windows&) = delete;
  Windows& operator=(const Windows&) = delete;

  FileReader& Files() override { return m_files; }
  Shell& Names() override { return m_shell; }
  SystemInfo& System() override { return m_system; }

 private:
  bool m_initialized;
  win32::FileSystem m_files;
  win32::Shell m_shell;
  win32::SystemInfo m_system{GetModuleHandleW(nullptr)};
};

bool IsSingleByte(UINT page) {
  CPINFO info{};
  return GetCPInfo(page, &info) && info.MaxCharSize == 1;
}

wchar_t CharacterOf(UINT page, unsigned byte) {
  const char in = static_cast<char>(byte);
  wchar_t character = 0;
  const int count = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, &in, 1, &character, 1);
  const bool isPrivate = character >= 0xE000 && character <= 0xF8FF;
  return count == 1 && !isPrivate ? character : static_cast<wchar_t>(byte);
}

}  // namespace

std::unique_ptr<HostWindows> FindWindows() {
  return std::make_unique<Windows>();
}

std::optional<std::array<wchar_t, 256>> CodePageCharacters(int number) {
  const auto page = static_cast<UINT>(number);
  if (number <= 0 || !IsSingleByte(page)) return std::nullopt;
  std::array<wchar_t, 256> characters{};
  for (unsigned byte = 0; byte < 256; ++byte) characters[byte] = CharacterOf(page, byte);
  return characters;
}

}  // namespace orvane::tool
