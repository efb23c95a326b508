#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "graphics/MenuPainter.h"
#include "shellext/DynamicFolders.h"

namespace orvane {

/// The menu while it is open: measures and paints its entries by their identifiers, and has dynamic
/// folders filled. Nothing thrown comes out of it.
class OpenMenu {
 public:
  /// All are kept and outlive the object.
  OpenMenu(ModuleGlobals& globals, HandlerState& state, MenuPainter& painter,
           DynamicFolders& folders)
      : m_globals(globals), m_state(state), m_painter(painter), m_folders(folders) {}

  /// An entry's size; none when it could not be found out.
  std::optional<Size> Measure(std::int32_t id) noexcept;
  void Draw(const DrawItem& item) noexcept;
  /// The submenu is about to be shown.
  void Open(MenuHandle submenu) noexcept;
  /// A character was typed in it: the answer to WM_MENUCHAR, 0 for a menu that is not this one's.
  std::intptr_t Type(MenuHandle submenu, wchar_t character) noexcept;

  /// The entry's caption; empty for an unknown identifier.
  std::wstring OwnerDrawMenu_GetCaption(std::int32_t lId);
  /// The entry's picture, an icon fetched here the first time; None without one.
  BitmapHandle OwnerDrawMenu_HasBitmap(std::int32_t lId);

 private:
  Command Find(std::int32_t lId) const;
  bool IsFileName(std::int32_t id) const;
  bool IsOurs(MenuHandle submenu) const;

  ModuleGlobals& m_globals;
  HandlerState& m_state;
  MenuPainter& m_painter;
  DynamicFolders& m_folders;
};

}  // namespace orvane
