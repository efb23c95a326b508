#include "graphics/PictureStore.h"

#include <utility>

#include "graphics/Bitmaps.h"
#include "graphics/ColConst.h"
#include "support/Trace.h"

namespace orvane {
namespace {

constexpr std::int32_t FirstResource = 101;  // of Picture::Mark
constexpr Colour MaskColour = Rgb(255, 0, 255);

struct OwnedBitmaps : Object {
  UniqueBitmap full;
  UniqueBitmap scaled;
  std::function<UniqueBitmap(BitmapHandle full)> scale;  // none once it was called
};

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

constexpr std::int32_t Key(Picture picture) {
  return static_cast<std::int32_t>(picture);
}

UniqueBitmap ConvertIcon(Gdi& gdi, IconHandle icon, std::int32_t size, std::int32_t flags) {
  const PictureSurface surface(gdi);
  Log(L"m_frmTemp.picTemp.hDC=", Hex(surface.get()));
  return surface ? IconToBitmap(gdi, surface.get(), icon, ColConst::Menu, size, flags)
                 : UniqueBitmap();
}

bool IsToFetch(const PictureStore::Node& picture) {
  return picture && picture->m_lKey == Key(Picture::OwnIcon);
}

}  // namespace

PictureStore::Node PictureStore::Find(Picture picture) {
  if (picture < Picture::Mark || picture > Picture::Popup) return {};
  const auto [place, isNew] = m_pictures.try_emplace(picture);
  if (isNew) place->second = Load(picture);
  return place->second;
}

PictureStore::Node PictureStore::Load(Picture picture) {
  const Colour menuColour = m_gdi.SystemColour(ColConst::Menu);
  UniqueBitmap full =
      ReplaceBitmapColour(m_gdi, FirstResource + Key(picture) - 1, MaskColour, menuColour);
  if (!full) return {};
  Node node = Keep(picture, std::move(full),
                   [&gdi = m_gdi](BitmapHandle loaded) { return ScaleBMP(gdi, loaded); });
  Log(L"Index=", node->Index, L"  Bitmap=", Hex(node->m_lData2), L"  lBitmapKey=", Key(picture));
  return node;
}

PictureStore::Node PictureStore::FindIcon(const IconFile& file, std::int32_t size, bool checkMark) {
  const std::optional<SystemIcon> icon = m_finder.Find(file);
  if (!icon) return Find(Picture::UnknownFile);
  const auto [place, isNew] = m_converted.try_emplace({icon->imageList, icon->index});
  if (isNew) place->second = Convert(*icon, size, checkMark);
  return place->second ? place->second : Find(Picture::UnknownFile);
}

PictureStore::Node PictureStore::Convert(const SystemIcon& icon, std::int32_t size,
                                         bool checkMark) {
  const UniqueIcon taken(m_icons, m_icons.Take(icon, size));
  Log(L"hImageList=", Hex(static_cast<std::int32_t>(icon.imageList)), L"  iIcon=", icon.index,
      L"  hIcon=", Hex(taken.get()));
  if (!taken) return {};
  UniqueBitmap full = ConvertIcon(m_gdi, taken.get(), size, 0);
  Log(L"hBitmap=", Hex(full.get()));
  if (!full) return {};
  Log(L"Adding to bitmap collection");
  Node node = Keep(
      Picture::None, std::move(full), [&gdi = m_gdi, &icons = m_icons, icon, size](BitmapHandle) {
        const UniqueIcon again(icons, icons.Take(icon, size));
        return again ? ConvertIcon(gdi, again.get(), size, SmallerIcon) : UniqueBitmap();
      });
  if (checkMark) SetCheckMark(*node, ConvertIcon(m_gdi, taken.get(), size, SmallerIcon));
  return node;
}

PictureStore::Node PictureStore::Keep(Picture picture, UniqueBitmap full,
                                      std::function<UniqueBitmap(BitmapHandle)> scale) {
  auto owner = std::make_shared<OwnedBitmaps>();
  owner->full = std::move(full);
  owner->scale = std::move(scale);
  Node node = m_colBitmaps.Add({}, Key(picture));
  node->m_lData2 = ToNumber(owner->full.get());
  node->m_oData = std::move(owner);
  return node;
}

PictureStore::Node PictureStore::IconToFetch(const std::wstring& path) {
  auto node = std::make_shared<clsCollection>();
  node->m_lKey = Key(Picture::OwnIcon);
  node->m_szFilename = path;
  return node;
}

void PictureStore::Fetch(Node& picture, IconFile own, std::int32_t size) {
  if (!IsToFetch(picture)) return;
  if (picture != m_iconToFetch) own.path = picture->m_szFilename;
  picture = FindIcon(own, size);
}

BitmapHandle PictureStore::Full(const Node& picture) {
  return picture ? ToHandle<BitmapHandle>(picture->m_lData2) : BitmapHandle::None;
}

BitmapHandle PictureStore::CheckMark(const Node& picture) {
  if (!picture) return BitmapHandle::None;
  auto* const owner = static_cast<OwnedBitmaps*>(picture->m_oData.get());
  if (owner && owner->scale) SetCheckMark(*picture, owner->scale(owner->full.get()));
  return ToHandle<BitmapHandle>(picture->m_lData);
}

void PictureStore::SetCheckMark(clsCollection& picture, UniqueBitmap scaled) {
  auto& owner = static_cast<OwnedBitmaps&>(*picture.m_oData);
  owner.scaled = std::move(scaled);
  owner.scale = {};
  picture.m_lData = ToNumber(owner.scaled.get());
}

}  // namespace orvane
