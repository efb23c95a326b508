#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>

#include "memory/Faults.h"
#include "platform/FileSystem.h"
#include "platform/ShellIcons.h"

namespace orvane::memory {

/// Icons by rule: one for folders, one for each extension, one for each file whose kind has icons
/// of its own. Left out: folders with a picture of their own, overlays, what is in the image list.
class ShellIcons : public orvane::ShellIcons {
 public:
  ShellIcons(FileReader& files, Faults& faults) : m_files(files), m_faults(faults) {}

  std::optional<SystemIcon> Find(const std::wstring& path) override;
  std::optional<SystemIcon> FindFileKind(const std::wstring& extension) override;
  std::optional<SystemIcon> FindFolderKind() override;
  bool HasOwnIcons(const std::wstring& extension) override;
  std::vector<std::wstring> LeadsTo(const std::wstring& path) override;
  IconHandle Take(const SystemIcon& icon, std::int32_t size) override;
  void FreeIcon(IconHandle icon) override;

  // For tests.
  std::set<std::wstring> ownIcons = {L".exe", L".lnk"};
  std::map<std::wstring, std::wstring> shortcuts;  // what the file leads to
  std::size_t finds = 0;                           // dear questions
  std::size_t kindFinds = 0;                       // cheap ones
  std::size_t takes = 0;
  std::int32_t lastSize = 0;  // as Take was asked
  std::size_t Live() const { return m_live.size(); }
  bool wronglyFreed = false;

 private:
  SystemIcon Place(const std::wstring& kind);

  FileReader& m_files;
  Faults& m_faults;
  std::map<std::wstring, std::int32_t> m_places;
  std::set<IconHandle> m_live;
  std::uint32_t m_next = 0;
};

}  // namespace orvane::memory
