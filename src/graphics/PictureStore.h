#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "graphics/IconFinder.h"
#include "graphics/Picture.h"
#include "menudata/clsCollection.h"
#include "platform/Gdi.h"
#include "platform/ShellIcons.h"

namespace orvane {

/// The pictures of one handler: the module's bitmaps, each loaded when it is first asked for, and
/// the icons of files, each distinct one converted once. Owns their bitmaps; a node that somebody
/// holds keeps its own alive.
class PictureStore {
 public:
  using Node = clsCollection::Node;

  /// All are kept and outlive the object and the nodes it hands out.
  PictureStore(Gdi& gdi, ShellIcons& icons, FileReader& files)
      : m_gdi(gdi), m_icons(icons), m_finder(icons, files) {}

  /// One of the module's bitmaps, its mask colour replaced by the menu's. None when it cannot be
  /// loaded, or is no bitmap of the module.
  Node Find(Picture picture);

  /// The file's icon at `size` pixels; the bitmap for unknown files when there is none.
  Node FindIcon(const IconFile& file, std::int32_t size);

  /// Stands for the icon of a file that nobody has seen yet.
  static Node IconToFetch(IconFile file);

  /// The picture at its full size, None for no node. An icon to fetch is fetched and takes the
  /// node's place.
  BitmapHandle Full(Node& picture, std::int32_t size);

  /// The picture at the size of a check mark; None for no node.
  static BitmapHandle CheckMark(const Node& picture);

  /// Pictures that are loaded.
  std::int32_t Count() const { return m_colBitmaps.Count(); }

 private:
  using IconKey = std::pair<std::uintptr_t, std::int32_t>;  // image list, index

  Node Load(Picture picture);
  Node Convert(const SystemIcon& icon, std::int32_t size);
  Node Keep(std::int32_t key, UniqueBitmap scaled, UniqueBitmap normal);

  Gdi& m_gdi;
  ShellIcons& m_icons;
  IconFinder m_finder;
  /// m_lData the scaled bitmap, m_lData2 the full one, both owned by m_oData; m_lKey the picture, 0
  /// for an icon.
  clsCollection m_colBitmaps;
  std::map<Picture, Node> m_pictures;  // none for one that could not be loaded
  std::map<IconKey, Node> m_converted;
};

}  // namespace orvane
