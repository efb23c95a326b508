#pragma once

#include "platform/Menus.h"

namespace orvane::win32 {

/// Windows' menus.
class Menus : public orvane::Menus {
 public:
  MenuHandle CreatePopup() override;
  void Destroy(MenuHandle menu) override;
  bool Exists(MenuHandle menu) override;
  std::int32_t Count(MenuHandle menu) override;
  bool Insert(MenuHandle menu, std::int32_t position, const MenuEntry& entry) override;
  bool Remove(MenuHandle menu, std::int32_t position) override;
  bool Look(MenuHandle menu, std::int32_t position, std::wstring& caption,
            MenuHandle& submenu) override;
  std::int32_t Highlighted(MenuHandle menu) override;
};

}  // namespace orvane::win32
