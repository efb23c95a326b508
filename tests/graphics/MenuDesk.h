#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "graphics/OwnerDrawMenu.h"
#include "memory/Desktop.h"

namespace orvane::test {

using Data = clsOrvaneData;

/// An owner-drawn menu on the memory desktop, with the items that a handler would keep.
struct MenuDesk {
  explicit MenuDesk(Gdi* otherGdi = nullptr) : gdi(otherGdi ? *otherGdi : desktop.gdi) {
    options.m_lShellShowIcons = clsOptions::OptionLevel_Medium;
  }
  ~MenuDesk() {
    if (menu != MenuHandle::None) desktop.menus.Destroy(menu);
    if (shellMenu != MenuHandle::None) desktop.menus.Destroy(shellMenu);
  }

  /// Makes the menus, which the constructor leaves to tests that have calls fail.
  MenuDesk& Load() {
    menu = desktop.menus.CreatePopup();
    shellMenu = desktop.menus.CreatePopup();
    drawing.ShellMenu(shellMenu);
    return *this;
  }

  MenuItem Item(std::int32_t id, const std::wstring& caption, std::int32_t type = Data::TypeFile) {
    auto record = std::make_shared<Data>();
    record->m_lType = type;
    record->Caption(caption);
    MenuItem item{.command = commands.Add(std::move(record)), .caption = caption};
    item.command.Id(id);
    return item;
  }

  bool Add(MenuHandle to, std::int32_t id, const std::wstring& caption, Picture picture,
           const std::wstring& iconFile = {}, std::int32_t type = Data::TypeFile) {
    MenuItem item = Item(id, caption, type);
    item.picture = picture;
    item.iconFile = iconFile;
    return drawing.AddMenuWithBitmap(to, Menus::Append, std::move(item));
  }

  /// A file of the dynamic kind: just listed, named by its caption.
  bool AddFile(std::int32_t id, const std::wstring& path) {
    MenuItem item = Item(id, path.substr(path.rfind(L'\\') + 1));
    item.picture = Picture::OwnIcon;
    item.iconFile = path;
    item.command.IsFileName(true);
    return drawing.AddMenuWithBitmap(menu, Menus::Append, std::move(item));
  }

  /// The menu opens (again), on a screen of that resolution.
  void OpenAt(std::int32_t dpi) {
    desktop.gdi.dpi = dpi;
    painter.MenuOpens();
  }

  std::wstring Caption(std::int32_t id) { return commands.Find(id).Record()->Caption(); }
  Size Measure(std::int32_t id) {
    return painter.Measure(Caption(id), commands.Find(id).IsFileName());
  }
  void Draw(std::int32_t id, std::uint32_t state, DeviceContext context, const Rect& rect) {
    painter.Draw({.id = id, .state = state, .context = context, .rect = rect}, Caption(id),
                 commands.Find(id).IsFileName(), PictureOf(id));
  }

  const MenuEntry& Entry(std::size_t position) { return desktop.menus.Entries(menu).at(position); }
  BitmapHandle PictureOf(std::int32_t id) {
    const Command command = commands.Find(id);
    PictureStore::Node& picture = command.Record()->m_oBitmap;
    pictures.Fetch(picture, IconFileOf(command), painter.PictureSize());
    return PictureStore::Full(picture);
  }
  /// A bitmap of the module, at its full size.
  BitmapHandle Loaded(Picture picture) { return PictureStore::Full(pictures.Find(picture)); }

  memory::Desktop desktop;
  Gdi& gdi;
  clsOptions options;
  CommandTable commands;
  PictureStore pictures{gdi, desktop.icons, desktop.files};
  MenuPainter painter{gdi};
  MenuHandle menu = MenuHandle::None;
  MenuHandle shellMenu = MenuHandle::None;
  OwnerDrawMenu drawing{options, desktop.menus, pictures, painter};
};

}  // namespace orvane::test
