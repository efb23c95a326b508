#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace orvane {

/// What the machine says of itself. Texts are empty when it does not know.
class SystemInfo {
 public:
  struct Version {
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::uint32_t build = 0;
    std::uint32_t platform = 0;  // 1 Windows (VER_PLATFORM_WIN32_WINDOWS), 2 NT
  };

  virtual ~SystemInfo() = default;

  virtual std::wstring ComputerName() = 0;
  virtual std::wstring UserName() = 0;
  virtual std::wstring Organisation() = 0;
  virtual Version OsVersion() = 0;

  /// The folder that holds the program file (the DLL), without a backslash at its end.
  virtual std::wstring ProgramFolder() = 0;

  /// The folder of the system's own programs, without a backslash at its end.
  virtual std::wstring SystemFolder() = 0;

  /// The value of an environment variable; empty when it is not set.
  virtual std::wstring Environment(const std::wstring& name) = 0;

  /// The program's module handle, as a number for the log.
  virtual std::int32_t Module() = 0;

  /// The characters of the 256 bytes of the ANSI code page. Every byte has one of its own: those
  /// that the page leaves open stand for the character of their number.
  virtual std::array<wchar_t, 256> AnsiCharacters() = 0;
};

}  // namespace orvane
