#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Handles.h"
#include "platform/UniqueResource.h"

namespace orvane {

/// A picture in one of the system's image lists. Files with the same picture have the same place.
struct SystemIcon {
  std::uintptr_t imageList = 0;
  std::int32_t index = 0;
};

/// The small icons that the shell shows beside files and folders. Asking is dear: about 2 ms for a
/// file, 0.03 ms for a kind.
class ShellIcons {
 public:
  virtual ~ShellIcons() = default;

  /// The icon of one file or folder, which the shell may open to find it; none when there is no
  /// such thing.
  virtual std::optional<SystemIcon> Find(const std::wstring& path) = 0;

  // The icon that all files of the extension (with its dot; empty for none), or all folders, share.
  // Touches no file.
  virtual std::optional<SystemIcon> FindFileKind(const std::wstring& extension) = 0;
  virtual std::optional<SystemIcon> FindFolderKind() = 0;

  /// Whether each file of the extension (with its dot, lower case) may have an icon of its own, as
  /// programs and shortcuts have.
  virtual bool HasOwnIcons(const std::wstring& extension) = 0;

  /// Where the shell would look for the icon of a shortcut: what it leads to and what it takes its
  /// icon from. Told without asking there; empty for other files.
  virtual std::vector<std::wstring> LeadsTo(const std::wstring& path) = 0;

  /// A copy of the icon, taken at `size` pixels where the shell keeps one so large, else as it is;
  /// the caller's to free. None when the system is out of icons.
  virtual IconHandle Take(const SystemIcon& icon, std::int32_t size) = 0;
  virtual void FreeIcon(IconHandle icon) = 0;
};

using UniqueIcon = UniqueResource<ShellIcons, IconHandle, &ShellIcons::FreeIcon>;

}  // namespace orvane
