#include "designerapp/ItemPictures.h"

#include <shellapi.h>

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

}  // namespace

ItemPictures::ItemPictures(FileReader& files, int size)
    : m_files(files),
      m_size(size),
      m_list(ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, 16, 64)) {}

int ItemPictures::IndexOf(const clsOrvaneData& item) {
  if (item.IsTypeSeparator()) return I_IMAGENONE;
  const std::wstring key = std::to_wstring(item.m_lType) + (item.OptionsIsCSIDL() ? L":" : L"|") +
                           std::wstring(item.Location());
  const auto [known, isNew] = m_known.try_emplace(key, I_IMAGENONE);
  if (isNew) known->second = Add(item);
  return known->second;
}

int ItemPictures::Add(const clsOrvaneData& item) {
  const bool isFolder = item.IsTypeFolder() || item.IsTypeDynamicFolder() || item.IsTypeCopyToX();
  if (item.OptionsIsCSIDL()) return AddBitmap(OwnFolder);
  if (!isFolder && !item.IsTypeFile()) return AddBitmap(BitmapOf(item));
  const int icon = AddIcon(std::wstring(item.Location()), isFolder);
  return icon >= 0 ? icon : AddBitmap(UnknownFile);
}

int ItemPictures::AddBitmap(int resource) {
  const UniqueBitmap bitmap(static_cast<HBITMAP>(
      LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(FirstBitmap + resource), IMAGE_BITMAP,
                 m_size, m_size, LR_DEFAULTCOLOR)));
  return bitmap ? ImageList_AddMasked(m_list.get(), bitmap.get(), RGB(255, 0, 255)) : I_IMAGENONE;
}

/// By its kind alone when it is not here or lies on another machine.
int ItemPictures::AddIcon(const std::wstring& path, bool isFolder) {
  const bool look = !m_files.LiesOnNetwork(path) && m_files.Attributes(path).has_value();
  SHFILEINFOW info{};
  SHGetFileInfoW(path.c_str(), isFolder ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL, &info,
                 sizeof info,
                 SHGFI_ICON | SHGFI_SMALLICON | (look ? 0U : UINT{SHGFI_USEFILEATTRIBUTES}));
  const UniqueIcon icon(info.hIcon);
  return icon ? ImageList_ReplaceIcon(m_list.get(), -1, icon.get()) : I_IMAGENONE;
}

}  // namespace orvane::designerapp
