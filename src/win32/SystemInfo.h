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

  /// From now on this folder counts as the program's: of a program that serves a DLL elsewhere.
  void ProgramFolder(std::wstring folder) { m_folder = std::move(folder); }

 private:
  HINSTANCE m_module;
  std::wstring m_folder;  // empty: the module's
};

}  // namespace orvane::win32
