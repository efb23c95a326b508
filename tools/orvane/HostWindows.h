#pragma once

#include <array>
#include <memory>
#include <optional>

#include "platform/FileSystem.h"
#include "platform/Shell.h"
#include "platform/SystemInfo.h"

namespace orvane::tool {

/// The Windows that the companion runs on, as far as menus are made for it.
class HostWindows {
 public:
  virtual ~HostWindows() = default;

  virtual FileReader& Files() = 0;
  virtual Shell& Names() = 0;
  virtual SystemInfo& System() = 0;
};

/// Null when the companion does not run on Windows.
std::unique_ptr<HostWindows> FindWindows();

/// The characters of a code page in which each byte is one, by its number (1252, 1251, 874, ...);
/// none when this machine does not know such a page. A byte that the page leaves open stands for
/// the control character of its number.
std::optional<std::array<wchar_t, 256>> CodePageCharacters(int number);

}  // namespace orvane::tool
