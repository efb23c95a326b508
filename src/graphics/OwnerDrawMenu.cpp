#include "graphics/OwnerDrawMenu.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include "menudata/clsOrvaneDataTools.h"
#include "support/Trace.h"

namespace orvane {
namespace {

/// The icon level from which a bitmap key is shown; keys without a row never are.
struct BitmapRule {
  std::int32_t key;
  std::int32_t level;
};

constexpr BitmapRule BitmapRules[] = {
    {1, clsOptions::OptionLevel_Minimum},
    {2, clsOptions::OptionLevel_Minimum},
    {3, clsOptions::OptionLevel_Medium},
    {4, clsOptions::OptionLevel_Medium},
    {5, clsOptions::OptionLevel_Medium},
    {7, clsOptions::OptionLevel_Medium},
    {8, clsOptions::OptionLevel_Medium},
    {9, clsOptions::OptionLevel_Minimum},
    {OwnerDrawMenu::DesignerIcon, clsOptions::OptionLevel_Medium},
    {OwnerDrawMenu::OwnIcon, clsOptions::OptionLevel_Medium},
};

bool ShowsBitmap(std::int32_t key, std::int32_t level) {
  const auto* rule = std::ranges::find(BitmapRules, key, &BitmapRule::key);
  return rule != std::end(BitmapRules) && level >= rule->level;
}

std::wstring DoubleAmpersands(const std::wstring& name) {
  std::wstring doubled;
  for (wchar_t character : name) doubled.append(character == L'&' ? 2 : 1, character);
  return doubled;
}

std::wstring IconFile(const NewMenuItem& item) {
  if (item.iconFile) return *item.iconFile;
  return item.record ? std::wstring(item.record->Location()) : std::wstring();
}

/// Stands in a record for a picture that nobody has seen yet.
clsCollection::Node PictureToFetch(const NewMenuItem& item) {
  auto node = std::make_shared<clsCollection>();
  node->m_lKey = OwnerDrawMenu::OwnIcon;
  node->m_szFilename = IconFile(item);
  node->m_lData3 = item.fileName;
  return node;
}

bool IsToFetch(const clsCollection::Node& picture) {
  return picture && picture->m_lKey == OwnerDrawMenu::OwnIcon;
}

bool IsFolder(const clsOrvaneData* record) {
  return record && !record->IsTypeFile();
}

}  // namespace

OwnerDrawMenu::OwnerDrawMenu(const clsOptions& options, Menus& menus, Gdi& gdi, ShellIcons& icons,
                             FileReader& files, clsCollection& bitmaps, MenuItemLookup& lookup)
    : m_options(options),
      m_menus(menus),
      m_bitmaps(bitmaps),
      m_lookup(lookup),
      m_icons(gdi, icons, files, bitmaps),
      m_painter(gdi) {}

void OwnerDrawMenu::ShellMenu(MenuHandle menu) {
  m_shellMenu = menu;
  m_fileNames.clear();
  m_painter.MenuOpens();
}

bool OwnerDrawMenu::AddMenuWithBitmap(NewMenuItem item) {
  TraceScope scope(L"AddMenuWithBitmap");
  try {
    return Insert(item);
  } catch (...) {
    scope.Caught();
    return false;
  }
}

bool OwnerDrawMenu::Insert(NewMenuItem& item) {
  Log(L"lMenuCmdId=", item.id, L"  lBitmapKey=", item.bitmapKey, L"  szCaption=", item.caption);
  MenuEntry entry;
  entry.id = static_cast<std::uint32_t>(item.id);
  entry.submenu = item.submenu;
  entry.caption = std::move(item.caption);
  if (item.trimCaption)
    entry.caption =
        clsOrvaneDataTools::TrimCaption(std::move(entry.caption), m_options.m_lShellMaxMenuText);
  if (item.fileName && entry.caption.find(L'&') != std::wstring::npos) {
    entry.caption = DoubleAmpersands(entry.caption);
    m_fileNames.insert(item.id);
  }

  const bool shown = ShowsBitmap(item.bitmapKey, m_options.m_lShellShowIcons);
  const std::int32_t key = item.bitmapKey == DesignerIcon ? 1 : item.bitmapKey;
  Log(L"bUseCheckMarks=", shown, L"  lBitmapKey=", key);
  entry.ownerDraw = m_options.m_bShellOwnerDraw && item.menu != m_shellMenu;
  if (entry.ownerDraw) Log(L"Marked as ownerdraw");
  Log(L"Use check marks=", shown);
  if (shown) AddPicture(item, key, entry);
  return m_menus.Insert(item.menu, item.position, entry);
}

void OwnerDrawMenu::AddPicture(const NewMenuItem& item, std::int32_t key, MenuEntry& entry) {
  if (key == OwnIcon && entry.ownerDraw) {
    if (item.record) item.record->m_oBitmap = PictureToFetch(item);
    return;
  }
  const clsCollection::Node node =
      key == OwnIcon ? m_icons.Find({IconFile(item), IsFolder(item.record), item.fileName},
                                    m_painter.PictureSize())
                     : m_bitmaps.ItemViaKey(key);
  if (!node) {
    Log(L"Bitmap not found!");
    return;
  }
  if (item.record) item.record->m_oBitmap = node;
  Log(L"ScaledBitmap=", Hex(node->m_lData), L"  NormalBitmap=", Hex(node->m_lData2));
  entry.bitmap = ToHandle<BitmapHandle>(entry.ownerDraw ? node->m_lData2 : node->m_lData);
  Log(L"Bitmap=", Hex(entry.bitmap));
}

BitmapHandle OwnerDrawMenu::Picture(clsOrvaneData& record) {
  clsCollection::Node& picture = record.m_oBitmap;
  if (IsToFetch(picture))
    picture = m_icons.Find({picture->m_szFilename, IsFolder(&record), picture->m_lData3 != 0},
                           m_painter.PictureSize());
  return picture ? ToHandle<BitmapHandle>(picture->m_lData2) : BitmapHandle::None;
}

bool OwnerDrawMenu::HandleMessage(std::uint32_t message, std::intptr_t wParam,
                                  std::intptr_t lParam) {
  TraceScope scope(L"OwnerDrawMenu");
  if (message == MenuMessage::InitMenuPopup) m_painter.MenuOpens();
  if (lParam == 0) return false;
  try {
    if (message == MenuMessage::MeasureItem) {
      Measure(*reinterpret_cast<MeasureItem*>(lParam));
      return true;
    }
    if (message == MenuMessage::DrawItem && wParam == 0) {
      Draw(*reinterpret_cast<const DrawItem*>(lParam));
      return true;
    }
    return false;
  } catch (...) {
    scope.Caught();
    return true;
  }
}

void OwnerDrawMenu::Measure(MeasureItem& item) {
  std::wstring text = m_lookup.OwnerDrawMenu_GetCaption(item.id);
  text.erase(text.find_last_not_of(L' ') + 1);
  if (!m_fileNames.contains(item.id)) std::erase(text, L'&');
  m_painter.Measure(item, text);
}

void OwnerDrawMenu::Draw(const DrawItem& item) {
  Log(L"DrawInfo.itemState=", Hex(static_cast<std::int32_t>(item.state)));
  const BitmapHandle picture = m_lookup.OwnerDrawMenu_HasBitmap(item.id);
  std::wstring caption = m_lookup.OwnerDrawMenu_GetCaption(item.id);
  if (m_fileNames.contains(item.id)) caption = DoubleAmpersands(caption);
  m_painter.Draw(item, caption, picture);
}

}  // namespace orvane
