#include "designerapp/ItemPictures.h"

#include "win32/NativeHandles.h"

namespace orvane::designerapp {
namespace {

// Keys of the menu's own pictures; 100 more is the resource.
constexpr int Mark = 1;
constexpr int OwnFolder = 4;
constexpr int UnknownFile = 6;
constexpr int Action = 7;
constexpr int Task = 8;
constexpr int Popup = 9;
constexpr int FirstBitmap = 100;

int BitmapOf(const clsOrvaneData& item) {
  switch (item.m_lType) {
    case clsOrvaneData::TypeRoot:
      return Mark;
    case clsOrvaneData::TypePopupMenu:
      return Popup;
    case clsOrvaneData::TypeSelectionTask:
      return Task;
    case clsOrvaneData::TypeCustomAction:
      return Action;
    default:
      return UnknownFile;
  }
}

bool HasIcon(const clsOrvaneData& item) {
  return !item.OptionsIsCSIDL() && (item.IsTypeFile() || item.IsTypeFolder() ||
                                    item.IsTypeDynamicFolder() || item.IsTypeCopyToX());
}

}  // namespace

ItemPictures::ItemPictures(const Platform& platform, int size)
    : m_icons(platform.icons),
      m_finder(platform.icons, platform.files),
      m_size(size),
      m_list(ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, 16, 64)) {}

int ItemPictures::IndexOf(const clsOrvaneData& item, bool withIcons) {
  if (item.IsTypeSeparator()) return I_IMAGENONE;
  if (!withIcons && HasIcon(item)) return AddBitmap(item.IsTypeFile() ? UnknownFile : OwnFolder);
  const std::wstring key = std::to_wstring(item.m_lType) + (item.OptionsIsCSIDL() ? L":" : L"|") +
                           std::wstring(item.Location());
  const auto [known, isNew] = m_known.try_emplace(key, I_IMAGENONE);
  if (isNew) known->second = Add(item);
  return known->second;
}

int ItemPictures::Add(const clsOrvaneData& item) {
  if (item.OptionsIsCSIDL()) return AddBitmap(OwnFolder);
  if (!HasIcon(item)) return AddBitmap(BitmapOf(item));
  const auto icon = m_finder.Find({std::wstring(item.Location()), !item.IsTypeFile()});
  const int place = icon ? AddIcon(*icon) : I_IMAGENONE;
  return place >= 0 ? place : AddBitmap(UnknownFile);
}

int ItemPictures::AddBitmap(int resource) {
  const auto [known, isNew] = m_taken.try_emplace(-resource, I_IMAGENONE);
  if (!isNew) return known->second;
  const UniqueBitmap bitmap(static_cast<HBITMAP>(
      LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(FirstBitmap + resource), IMAGE_BITMAP,
                 m_size, m_size, LR_DEFAULTCOLOR)));
  if (bitmap) known->second = ImageList_AddMasked(m_list.get(), bitmap.get(), RGB(255, 0, 255));
  return known->second;
}

int ItemPictures::AddIcon(const SystemIcon& icon) {
  const auto [known, isNew] = m_taken.try_emplace(icon.index, I_IMAGENONE);
  if (!isNew) return known->second;
  const UniqueIcon copy(win32::ToNative<HICON>(m_icons.Take(icon, m_size)));
  if (copy) known->second = ImageList_ReplaceIcon(m_list.get(), -1, copy.get());
  return known->second;
}

}  // namespace orvane::designerapp
