#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
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

  /// The file's icon at `size` pixels; the bitmap for unknown files when there is none. With
  /// `checkMark` its check mark comes from the same look at the icon.
  Node FindIcon(const IconFile& file, std::int32_t size, bool checkMark = false);

  /// Stands for the icon of an item's own file, which nobody has seen yet. One serves all: a menu
  /// may have thousands.
  const Node& IconToFetch() const { return m_iconToFetch; }
  /// The same for a file that is not the item's own.
  static Node IconToFetch(const std::wstring& path);

  /// Has an icon that is to be fetched take the node's place, at `size` pixels; `own` is the item's
  /// own file. Does nothing to other nodes.
  void Fetch(Node& picture, IconFile own, std::int32_t size);

  // The picture at its full size and at that of a check mark, which is made when it is first asked
  // for: what paints its entries itself hardly needs any. None for no node.
  static BitmapHandle Full(const Node& picture);
  static BitmapHandle CheckMark(const Node& picture);

  /// Pictures that are loaded.
  std::int32_t Count() const { return m_colBitmaps.Count(); }

 private:
  using IconKey = std::pair<std::uintptr_t, std::int32_t>;  // image list, index

  Node Load(Picture picture);
  Node Convert(const SystemIcon& icon, std::int32_t size, bool checkMark);
  Node Keep(Picture picture, UniqueBitmap full, std::function<UniqueBitmap(BitmapHandle)> scale);
  static void SetCheckMark(clsCollection& picture, UniqueBitmap scaled);

  Gdi& m_gdi;
  ShellIcons& m_icons;
  IconFinder m_finder;
  /// m_lData the scaled bitmap, 0 until it is made, m_lData2 the full one, both owned by m_oData;
  /// m_lKey the picture, 0 for an icon.
  clsCollection m_colBitmaps;
  std::map<Picture, Node> m_pictures;  // none for one that could not be loaded
  std::map<IconKey, Node> m_converted;
  Node m_iconToFetch = IconToFetch(std::wstring());
};

}  // namespace orvane
