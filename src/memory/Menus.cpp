#include "memory/Menus.h"

#include <utility>

namespace orvane::memory {

const Menus::Entries_* Menus::Find(MenuHandle menu) const {
  const std::size_t index = static_cast<std::size_t>(menu) - FirstHandle;
  return index < m_menus.size() && m_menus[index] ? &*m_menus[index] : nullptr;
}

Menus::Entries_* Menus::Find(MenuHandle menu) {
  return const_cast<Entries_*>(std::as_const(*this).Find(menu));
}

MenuHandle Menus::CreatePopup() {
  if (m_faults.Hit()) return MenuHandle::None;
  m_menus.emplace_back(Entries_());
  return static_cast<MenuHandle>(FirstHandle + m_menus.size() - 1);
}

void Menus::Destroy(MenuHandle menu) {
  Entries_* entries = Find(menu);
  if (!entries) return;
  const Entries_ taken = std::move(*entries);
  m_menus[static_cast<std::size_t>(menu) - FirstHandle].reset();
  for (const MenuEntry& entry : taken) Destroy(entry.submenu);
}

std::int32_t Menus::Count(MenuHandle menu) {
  const Entries_* entries = Find(menu);
  return entries ? static_cast<std::int32_t>(entries->size()) : -1;
}

bool Menus::Insert(MenuHandle menu, std::int32_t position, const MenuEntry& entry) {
  if (m_faults.Hit()) return false;
  Entries_* entries = Find(menu);
  if (!entries || (entry.submenu != MenuHandle::None && !Find(entry.submenu))) return false;
  const bool inside = position >= 0 && static_cast<std::size_t>(position) < entries->size();
  entries->insert(inside ? entries->begin() + position : entries->end(), entry);
  return true;
}

bool Menus::Remove(MenuHandle menu, std::int32_t position) {
  Entries_* entries = Find(menu);
  if (m_faults.Hit() || !entries || position < 0 ||
      static_cast<std::size_t>(position) >= entries->size()) {
    return false;
  }
  const MenuHandle submenu = (*entries)[static_cast<std::size_t>(position)].submenu;
  entries->erase(entries->begin() + position);
  Destroy(submenu);
  return true;
}

bool Menus::Look(MenuHandle menu, std::int32_t position, std::wstring& caption,
                 MenuHandle& submenu) {
  const Entries_* entries = Find(menu);
  if (m_faults.Hit() || !entries || position < 0 ||
      static_cast<std::size_t>(position) >= entries->size()) {
    return false;
  }
  const MenuEntry& entry = (*entries)[static_cast<std::size_t>(position)];
  caption.assign(entry.caption, 0, 255);
  submenu = entry.submenu;
  return true;
}

const std::vector<MenuEntry>& Menus::Entries(MenuHandle menu) const {
  static constexpr Entries_ None;
  const Entries_* entries = Find(menu);
  return entries ? *entries : None;
}

std::size_t Menus::LiveCount() const {
  std::size_t count = 0;
  for (const auto& menu : m_menus) count += menu.has_value();
  return count;
}

}  // namespace orvane::memory
