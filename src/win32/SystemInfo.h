#pragma once

#include <windows.h>

#include "platform/SystemInfo.h"

namespace orvane::win32 {

class SystemInfo : public orvane::SystemInfo {
 public:
  /// `module`: the DLL or program whose folder counts as the program's.
  explicit SystemInfo(HINSTANCE module) : m_module(module) {}

  std::wstring ComputerName() override;
  std::wstring UserName() override;
  std::wstring Organisation() override;
  Version OsVersion() override;
  std::wstring ProgramFolder() override;
  std::wstring SystemFolder() override;
  std::wstring Environment(const std::wstring& name) override;
  std::int32_t Module() override;
  std::array<wchar_t, 256> AnsiCharacters() override;

  /// The first of the two code pages, the process's and the system's, in which each byte is a
  /// character, or the Western one: a process may have UTF-8 for its own.
  static UINT SingleBytePage(UINT processPage, UINT systemPage);

 private:
  HINSTANCE m_module;
};

}  // namespace orvane::win32
