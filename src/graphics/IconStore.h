#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "menudata/clsCollection.h"
#include "platform/FileSystem.h"
#include "platform/Gdi.h"
#include "platform/ShellIcons.h"

namespace orvane {

/// Turns the shell icons of files and folders into bitmaps, each distinct icon once. The bitmaps
/// stand in the handler's bitmap store, under a text key made of image list and index.
class IconStore {
 public:
  struct File {
    const std::wstring& path;
    bool isFolder = false;
    bool isThere = false;  // known to exist, as what was just listed does
  };

  /// All are kept and outlive the object.
  IconStore(Gdi& gdi, ShellIcons& icons, FileReader& files, clsCollection& bitmaps)
      : m_gdi(gdi), m_icons(icons), m_files(files), m_bitmaps(bitmaps) {}

  /// The node with the icon at `size` pixels (m_lData2; m_lData holds it a little smaller); the
  /// bitmap for unknown files when there is no icon; none without that either.
  clsCollection::Node Find(const File& file, std::int32_t size);

 private:
  /// What is known of an extension, or of folders.
  struct Kind {
    bool ownIcons = false;  // each file has to be asked for
    clsCollection::Node bitmap;
  };

  Kind& KindOf(const std::wstring& name);
  clsCollection::Node FindKind(const std::wstring& name, std::int32_t size);
  clsCollection::Node Store(const std::optional<SystemIcon>& icon, std::int32_t size);
  clsCollection::Node Convert(const SystemIcon& icon, const std::wstring& key, std::int32_t size);
  clsCollection::Node Unknown() const { return m_bitmaps.ItemViaKey(6); }

  Gdi& m_gdi;
  ShellIcons& m_icons;
  FileReader& m_files;
  clsCollection& m_bitmaps;
  std::unordered_map<std::wstring, Kind> m_kinds;
};

}  // namespace orvane
