#pragma once

#include "platform/ShellIcons.h"

namespace orvane::win32 {

/// The icons of the shell's own image lists. The calling thread has COM initialised, as the
/// shell's threads have.
class ShellIcons : public orvane::ShellIcons {
 public:
  std::optional<SystemIcon> Find(const std::wstring& path) override;
  std::optional<SystemIcon> FindFileKind(const std::wstring& extension) override;
  std::optional<SystemIcon> FindFolderKind() override;
  bool HasOwnIcons(const std::wstring& extension) override;
  std::vector<std::wstring> LeadsTo(const std::wstring& path) override;
  IconHandle Take(const SystemIcon& icon, std::int32_t size) override;
  void FreeIcon(IconHandle icon) override;
};

}  // namespace orvane::win32
