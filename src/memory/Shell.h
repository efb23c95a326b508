#pragma once

#include <map>

#include "memory/Faults.h"
#include "platform/FileSystem.h"
#include "platform/Shell.h"

namespace orvane::memory {

/// A name space over a file system: drives and shares, their folders and files, and the special
/// folders by CSIDL number, of which some are virtual (they have no path). Lists have an encoding
/// of their own: one item a name. Left out: hidden extensions, folders inside virtual folders.
class Shell : public orvane::Shell {
 public:
  struct Special {
    std::wstring path;  // empty for a virtual folder
    std::wstring displayName;
  };

  Shell(FileReader& files, Faults& faults);

  std::wstring Path(const ItemIdList& item) override;
  ItemIdList Parse(WindowHandle owner, const std::wstring& path) override;
  ItemIdList SpecialFolder(WindowHandle owner, std::int32_t csidl) override;
  std::wstring DisplayName(const ItemIdList& item) override;
  std::wstring DisplayName(const std::wstring& path) override;

  /// The special folders, to be changed at will.
  std::map<std::int32_t, Special> specialFolders;

  /// The list of a path, whether there is such a thing or not.
  static ItemIdList ItemOf(const std::wstring& path);

  /// Readable form of a list for effects: its path, or its display name.
  std::wstring Text(const ItemIdList& item);

 private:
  const Special* FindSpecial(const ItemIdList& item) const;

  FileReader& m_files;
  Faults& m_faults;
};

}  // namespace orvane::memory
