#include "graphics/OwnerDrawMenu.h"

#include <algorithm>
#include <iterator>

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

}  // namespace

OwnerDrawMenu::OwnerDrawMenu(const clsOptions& options, Menus& menus, Gdi& gdi, ShellIcons&,
                             FileReader&, clsCollection& bitmaps, MenuItemLookup& lookup)
    : m_options(options), m_menus(menus), m_gdi(gdi), m_bitmaps(bitmaps), m_lookup(lookup) {}

void OwnerDrawMenu::ShellMenu(MenuHandle menu) {
  m_shellMenu = menu;
  m_fileNames.clear();
}

bool OwnerDrawMenu::AddMenuWithBitmap(const NewMenuItem& item) {
  TraceScope scope(L"AddMenuWithBitmap");
  try {
    return Insert(item);
  } catch (...) {
    scope.Caught();
    return false;
  }
}

bool OwnerDrawMenu::Insert(const NewMenuItem& item) {
  Log(L"lMenuCmdId=", item.id, L"  lBitmapKey=", item.bitmapKey, L"  szCaption=", item.caption);
  MenuEntry entry;
  entry.id = static_cast<std::uint32_t>(item.id);
  entry.submenu = item.submenu;
  entry.caption = item.trimCaption
                      ? clsOrvaneDataTools::TrimCaption(item.caption, m_options.m_lShellMaxMenuText)
                      : item.caption;
  entry.ownerDraw = m_options.m_bShellOwnerDraw && item.menu != m_shellMenu;
  if (item.fileName && entry.caption.find(L'&') != std::wstring::npos) {
    entry.caption = DoubleAmpersands(entry.caption);
    m_fileNames.insert(item.id);
  }

  const bool shown = ShowsBitmap(item.bitmapKey, m_options.m_lShellShowIcons);
  const std::int32_t key = item.bitmapKey == DesignerIcon ? 1 : item.bitmapKey;
  Log(L"bUseCheckMarks=", shown, L"  lBitmapKey=", key);
  return m_menus.Insert(item.menu, item.position, entry);
}

clsCollection::Node OwnerDrawMenu::StoredBitmap(std::int32_t key) const {
  return m_bitmaps.ItemViaKey(key);
}

BitmapHandle OwnerDrawMenu::Picture(clsOrvaneData& record) {
  return record.m_oBitmap ? ToHandle<BitmapHandle>(record.m_oBitmap->m_lData2) : BitmapHandle::None;
}

bool OwnerDrawMenu::HandleMessage(std::uint32_t, std::intptr_t, std::intptr_t) {
  return false;
}

}  // namespace orvane
