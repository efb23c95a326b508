#pragma once

#include <cstdint>
#include <string>

#include "platform/Handles.h"
#include "platform/UniqueResource.h"

namespace orvane {

/// One menu entry as it is handed to the desktop.
struct MenuEntry {
  enum class State { Enabled, Disabled, Grayed };  // Disabled keeps its looks, Grayed shows it

  bool separator = false;
  std::wstring caption = {};
  std::uint32_t id = 0;
  MenuHandle submenu = MenuHandle::None;
  BitmapHandle bitmap = BitmapHandle::None;  // shown as check mark, checked or not
  State state = State::Enabled;
  bool ownerDraw = false;
};

/// The desktop's menus.
class Menus {
 public:
  static constexpr std::int32_t Append = -1;

  virtual ~Menus() = default;

  /// An empty popup menu, or None when the desktop has no more of them.
  virtual MenuHandle CreatePopup() = 0;

  /// Destroys the menu with every submenu still in it.
  virtual void Destroy(MenuHandle menu) = 0;

  /// False for a handle that is no menu (any more).
  virtual bool Exists(MenuHandle menu) = 0;

  /// Number of entries; -1 for what is no menu.
  virtual std::int32_t Count(MenuHandle menu) = 0;

  /// Inserts before the entry at `position` (0-based); past the end or Append puts it last.
  virtual bool Insert(MenuHandle menu, std::int32_t position, const MenuEntry& entry) = 0;

  /// Removes the entry at `position` and destroys its submenu.
  virtual bool Remove(MenuHandle menu, std::int32_t position) = 0;

  /// Caption of the entry, cut to 255 characters, and its submenu (None without); false without
  /// such an entry, the outputs then untouched.
  virtual bool Look(MenuHandle menu, std::int32_t position, std::wstring& caption,
                    MenuHandle& submenu) = 0;

  /// Position of the entry that the user has reached in the open menu; -1 without one.
  virtual std::int32_t Highlighted(MenuHandle menu) = 0;
};

using UniqueMenu = UniqueResource<Menus, MenuHandle, &Menus::Destroy>;

}  // namespace orvane
