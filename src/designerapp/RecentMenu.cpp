#include "designerapp/RecentMenu.h"

#include <algorithm>
#include <cstdlib>

#include "designerapp/CommandIds.h"

namespace orvane::designerapp {
namespace {

constexpr const wchar_t* ExitKey = L"id_fileexit";
constexpr std::size_t PrefixLength = 4;  // of "mru_1"

}  // namespace

void RecentMenu::Attach(HMENU fileMenu) {
  m_menu = fileMenu;
  m_keys.assign(static_cast<std::size_t>(GetMenuItemCount(fileMenu)), {});
  for (std::size_t i = 0; i < m_keys.size(); ++i)
    if (GetMenuItemID(fileMenu, static_cast<int>(i)) == ID_FILE_EXIT) m_keys[i] = ExitKey;
}

UINT RecentMenu::PositionOf(const std::wstring& key) const {
  return static_cast<UINT>(std::ranges::find(m_keys, key) - m_keys.begin());
}

std::wstring RecentMenu::SubItemKey(std::int32_t position) {
  return m_keys[static_cast<std::size_t>(position) - 1];
}

void RecentMenu::RemoveSubItem(const std::wstring& key) {
  const UINT position = PositionOf(key);
  if (position < m_keys.size() && DeleteMenu(m_menu, position, MF_BYPOSITION))
    m_keys.erase(m_keys.begin() + static_cast<std::ptrdiff_t>(position));
}

void RecentMenu::InsertSubItem(const std::wstring& key, const std::wstring& caption,
                               const std::wstring& before) {
  const UINT position = PositionOf(before);
  const auto number = static_cast<UINT>(std::wcstoul(key.c_str() + PrefixLength, nullptr, 10));
  const bool done = caption.empty()
                        ? InsertMenuW(m_menu, position, MF_BYPOSITION | MF_SEPARATOR, 0, nullptr)
                        : InsertMenuW(m_menu, position, MF_BYPOSITION | MF_STRING,
                                      ID_FILE_RECENT + number - 1, caption.c_str());
  if (done) m_keys.insert(m_keys.begin() + static_cast<std::ptrdiff_t>(position), key);
}

}  // namespace orvane::designerapp
