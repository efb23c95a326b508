#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "memory/Faults.h"
#include "platform/Menus.h"

namespace orvane::memory {

/// Menus in memory. Handles are never used twice. Left out: everything that shows a menu.
class Menus : public orvane::Menus {
 public:
  explicit Menus(Faults& faults) : m_faults(faults) {}

  MenuHandle CreatePopup() override;
  void Destroy(MenuHandle menu) override;
  bool Exists(MenuHandle menu) override { return Find(menu) != nullptr; }
  std::int32_t Count(MenuHandle menu) override;
  bool Insert(MenuHandle menu, std::int32_t position, const MenuEntry& entry) override;
  bool Remove(MenuHandle menu, std::int32_t position) override;
  bool Look(MenuHandle menu, std::int32_t position, std::wstring& caption,
            MenuHandle& submenu) override;
  std::int32_t Highlighted(MenuHandle) override { return m_faults.Hit() ? -1 : highlighted; }

  // For tests and the preview.

  std::int32_t highlighted = -1;  // in whichever menu is open

  /// The entries as they were handed over; none for what is no menu.
  const std::vector<MenuEntry>& Entries(MenuHandle menu) const;

  /// Menus that have not been destroyed.
  std::size_t LiveCount() const;

 private:
  static constexpr std::uint32_t FirstHandle = 0x10001;

  using Entries_ = std::vector<MenuEntry>;
  const Entries_* Find(MenuHandle menu) const;
  Entries_* Find(MenuHandle menu);

  Faults& m_faults;
  std::vector<std::optional<Entries_>> m_menus;  // by handle - FirstHandle; destroyed ones are none
};

}  // namespace orvane::memory
