#include "win32/SystemInfo.h"

#include "win32/GrowingText.h"

extern "C" NTSYSAPI LONG NTAPI RtlGetVersion(RTL_OSVERSIONINFOW*);

namespace orvane::win32 {

namespace {

/// The ANSI code page of the system's language, whatever this process has chosen.
UINT SystemPage() {
  DWORD page = 0;
  GetLocaleInfoEx(LOCALE_NAME_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                  reinterpret_cast<wchar_t*>(&page), sizeof page / sizeof(wchar_t));
  return page;
}

}  // namespace

std::wstring SystemInfo::ComputerName() {
  wchar_t name[MAX_COMPUTERNAME_LENGTH + 1];
  DWORD length = std::size(name);
  return GetComputerNameW(name, &length) ? std::wstring(name, length) : std::wstring();
}

std::wstring SystemInfo::UserName() {
  wchar_t name[256 + 1];  // UNLEN
  DWORD size = std::size(name);
  return GetUserNameW(name, &size) && size > 0 ? std::wstring(name, size - 1) : std::wstring();
}

std::wstring SystemInfo::Organisation() {
  wchar_t name[256];
  DWORD size = sizeof name;
  const LSTATUS result =
      RegGetValueW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion",
                   L"RegisteredOrganization", RRF_RT_REG_SZ, nullptr, name, &size);
  return result == ERROR_SUCCESS ? std::wstring(name) : std::wstring();
}

SystemInfo::Version SystemInfo::OsVersion() {
  // GetVersionEx answers Windows 8 to a host that does not claim to know later ones.
  RTL_OSVERSIONINFOW info{};
  info.dwOSVersionInfoSize = sizeof info;
  if (RtlGetVersion(&info) != 0) return {};
  return {info.dwMajorVersion, info.dwMinorVersion, info.dwBuildNumber, info.dwPlatformId};
}

std::wstring SystemInfo::ProgramFolder() {
  if (!m_folder.empty()) return m_folder;
  const std::wstring file = GrowingText(
      [this](wchar_t* text, DWORD size) { return GetModuleFileNameW(m_module, text, size); });
  const std::size_t slash = file.rfind(L'\\');
  return slash == std::wstring::npos ? std::wstring() : file.substr(0, slash);
}

std::wstring SystemInfo::SystemFolder() {
  return GrowingText([](wchar_t* text, DWORD size) { return GetSystemDirectoryW(text, size); });
}

std::wstring SystemInfo::Environment(const std::wstring& name) {
  return GrowingText([&name](wchar_t* text, DWORD size) {
    return GetEnvironmentVariableW(name.c_str(), text, size);
  });
}

std::int32_t SystemInfo::Module() {
  return static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(m_module) & 0xFFFFFFFF);
}

UINT SystemInfo::SingleBytePage(UINT processPage, UINT systemPage) {
  constexpr UINT WesternPage = 1252;
  for (const UINT page : {processPage, systemPage}) {
    CPINFO info;
    if (page != CP_ACP && GetCPInfo(page, &info) && info.MaxCharSize == 1) return page;
  }
  return WesternPage;
}

std::array<wchar_t, 256> SystemInfo::AnsiCharacters() {
  char bytes[256];
  for (std::size_t byte = 0; byte < std::size(bytes); ++byte) bytes[byte] = static_cast<char>(byte);
  std::array<wchar_t, 256> characters{};
  MultiByteToWideChar(SingleBytePage(GetACP(), SystemPage()), 0, bytes, std::size(bytes),
                      characters.data(), static_cast<int>(characters.size()));
  for (std::size_t byte = 0x80; byte < characters.size(); ++byte) {
    // Windows gives open bytes characters for private use, or a replacement that others share.
    wchar_t& character = characters[byte];
    const bool open = (character >= 0xE000 && character <= 0xF8FF) || character == 0xFFFD ||
                      character == L'?' || character == 0;
    if (open) character = static_cast<wchar_t>(byte);
  }
  return characters;
}

}  // namespace orvane::win32
