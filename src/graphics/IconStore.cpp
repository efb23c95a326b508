#include "graphics/IconStore.h"

#include <utility>

#include "graphics/Bitmaps.h"
#include "graphics/ColConst.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

const wchar_t FolderKind[] = L"\\";          // no extension
constexpr std::size_t ShellPathLimit = 260;  // the shell is not asked about longer ones

/// With its dot, lower case; empty without one.
std::wstring ExtensionOf(const std::wstring& path) {
  const std::size_t dot = path.find_last_of(L".\\/");
  if (dot == std::wstring::npos || path[dot] != L'.') return {};
  return LowerCase(path.substr(dot));
}

bool IsDrive(const std::wstring& path) {
  return path.ends_with(L":\\") || path.ends_with(L':');
}

/// The shell looks for a folder's own icon only where one of these is set (Windows: "How to
/// Customize Folders with Desktop.ini").
bool MayHaveOwnIcon(std::uint32_t folderAttributes) {
  return (folderAttributes & (FileAttribute::ReadOnly | FileAttribute::System)) != 0;
}

/// The hidden surface on which icons are turned into bitmaps: a memory context that holds bitmaps
/// of the screen's kind, which a fresh one does not.
class PictureSurface {
 public:
  explicit PictureSurface(Gdi& gdi)
      : m_screen(gdi, gdi.OpenScreen()),
        m_context(gdi, gdi.CreateContext()),
        m_bitmap(gdi, gdi.CreateCompatible(m_screen.get(), {1, 1})),
        m_selected(gdi, m_context.get(), m_bitmap.get()) {}

  explicit operator bool() const { return static_cast<bool>(m_selected); }
  DeviceContext get() const { return m_context.get(); }

 private:
  UniqueScreen m_screen;
  UniqueContext m_context;
  UniqueBitmap m_bitmap;
  Selected<BitmapHandle> m_selected;
};

}  // namespace

clsCollection::Node IconStore::Find(const File& file, std::int32_t size) {
  Log(L"szFilename=", file.path);
  const bool isInNameSpaceOnly = file.path.starts_with(L"::");
  // A server that does not answer must not hold the menu up.
  if (!isInNameSpaceOnly && m_files.LiesOnNetwork(file.path))
    return FindKind(file.isFolder ? FolderKind : ExtensionOf(file.path), size);
  if (isInNameSpaceOnly || IsDrive(file.path)) return Store(m_icons.Find(file.path), size);

  std::uint32_t attributes = FileAttribute::Normal;
  if (file.isFolder || !file.isThere) {
    const auto found = m_files.Attributes(file.path);
    if (!found) return Unknown();
    attributes = *found;
  }
  const bool isFolder = (attributes & FileAttribute::Directory) != 0;
  const std::wstring kind = isFolder ? FolderKind : ExtensionOf(file.path);
  const bool own = isFolder ? MayHaveOwnIcon(attributes) : KindOf(kind).ownIcons;
  return own && file.path.size() < ShellPathLimit ? Store(m_icons.Find(file.path), size)
                                                  : FindKind(kind, size);
}

IconStore::Kind& IconStore::KindOf(const std::wstring& name) {
  const auto [place, isNew] = m_kinds.try_emplace(name);
  if (isNew && name != FolderKind) place->second.ownIcons = m_icons.HasOwnIcons(name);
  return place->second;
}

clsCollection::Node IconStore::FindKind(const std::wstring& name, std::int32_t size) {
  Kind& kind = KindOf(name);
  if (!kind.bitmap)
    kind.bitmap =
        Store(name == FolderKind ? m_icons.FindFolderKind() : m_icons.FindFileKind(name), size);
  return kind.bitmap;
}

clsCollection::Node IconStore::Store(const std::optional<SystemIcon>& icon, std::int32_t size) {
  if (!icon) return Unknown();
  const std::wstring key =
      L"icon " + std::to_wstring(icon->index) + L" of " + std::to_wstring(icon->imageList);
  clsCollection::Node node = m_bitmaps.ItemViaKey(key);
  if (!node) node = Convert(*icon, key, size);
  return node ? node : Unknown();
}

clsCollection::Node IconStore::Convert(const SystemIcon& icon, const std::wstring& key,
                                       std::int32_t size) {
  const UniqueIcon taken(m_icons, m_icons.Take(icon, size));
  Log(L"hImageList=", Hex(static_cast<std::int32_t>(icon.imageList)), L"  iIcon=", icon.index,
      L"  hIcon=", Hex(taken.get()));
  if (!taken) return {};
  const PictureSurface surface(m_gdi);
  Log(L"m_frmTemp.picTemp.hDC=", Hex(surface.get()));
  if (!surface) return {};

  UniqueBitmap normal(m_gdi,
                      IconToBitmap(m_gdi, surface.get(), taken.get(), ColConst::Menu, size, 0));
  Log(L"hBitmap=", Hex(normal.get()));
  if (!normal) return {};
  UniqueBitmap scaled(
      m_gdi, IconToBitmap(m_gdi, surface.get(), taken.get(), ColConst::Menu, size, SmallerIcon));
  Log(L"Adding to bitmap collection");
  clsCollection::Node node = m_bitmaps.Add(key);
  node->m_lData = ToNumber(scaled.release());
  node->m_lData2 = ToNumber(normal.release());
  return node;
}

}  // namespace orvane
