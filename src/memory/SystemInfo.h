#pragma once

#include <map>

#include "platform/SystemInfo.h"

namespace orvane::memory {

/// A machine whose facts are fields: tests change what they like. Windows 10, code page 1252.
class SystemInfo : public orvane::SystemInfo {
 public:
  std::wstring ComputerName() override { return computerName; }
  std::wstring UserName() override { return userName; }
  std::wstring Organisation() override { return organisation; }
  Version OsVersion() override { return version; }
  std::wstring ProgramFolder() override { return programFolder; }
  std::wstring SystemFolder() override { return systemFolder; }
  std::wstring Environment(const std::wstring& name) override;
  std::int32_t Module() override { return 0x10000000; }
  std::array<wchar_t, 256> AnsiCharacters() override;

  void SetEnvironment(const std::wstring& name, std::wstring value);

  /// The text with the value of each variable in place of its name between two "%".
  std::wstring Expand(const std::wstring& text);

  std::wstring computerName = L"WORKSHOP";
  std::wstring userName = L"Robin";
  std::wstring organisation = L"Workshop Ltd";
  Version version{10, 0, 19045, 2};
  std::wstring programFolder = L"C:\\Program Files\\Orvane";
  std::wstring systemFolder = L"C:\\Windows\\System32";

 private:
  std::map<std::wstring, std::wstring> m_environment = {
      {L"comspec", L"C:\\Windows\\System32\\cmd.exe"},
      {L"systemroot", L"C:\\Windows"},
      {L"temp", L"C:\\Windows\\Temp"},
  };
};

}  // namespace orvane::memory
