#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "graphics/MenuBitmaps.h"
#include "graphics/OwnerDrawMenu.h"
#include "memory/Desktop.h"

namespace orvane::test {

using Data = clsOrvaneData;

/// An owner-drawn menu on the memory desktop, with the records that a handler would keep.
struct MenuDesk : private MenuItemLookup {
  explicit MenuDesk(Gdi* otherGdi = nullptr) : gdi(otherGdi ? *otherGdi : desktop.gdi) {
    options.m_lShellShowIcons = clsOptions::OptionLevel_Medium;
  }
  ~MenuDesk() override {
    if (menu != MenuHandle::None) desktop.menus.Destroy(menu);
    if (shellMenu != MenuHandle::None) desktop.menus.Destroy(shellMenu);
    DeleteMenuBitmaps(gdi, bitmaps);
  }

  /// Makes the menus, which the constructor leaves to tests that have calls fail.
  MenuDesk& Load() {
    menu = desktop.menus.CreatePopup();
    shellMenu = desktop.menus.CreatePopup();
    LoadMenuBitmaps(gdi, bitmaps);
    drawing.ShellMenu(shellMenu);
    return *this;
  }

  bool Add(MenuHandle to, std::int32_t id, const std::wstring& caption, std::int32_t key,
           const std::wstring& iconFile = {}, std::int32_t type = Data::TypeFile,
           bool fileName = false) {
    Data& record = records[id];
    record.m_lType = type;
    record.Caption(caption);
    return drawing.AddMenuWithBitmap({.menu = to,
                                      .caption = caption,
                                      .id = id,
                                      .bitmapKey = key,
                                      .iconFile = iconFile,
                                      .fileName = fileName,
                                      .record = &record});
  }

  /// A file of the dynamic kind: just listed, named by its caption.
  bool AddFile(std::int32_t id, const std::wstring& path) {
    return Add(menu, id, path.substr(path.rfind(L'\\') + 1), OwnerDrawMenu::OwnIcon, path,
               Data::TypeFile, true);
  }

  /// The menu opens (again), on a screen of that resolution.
  void OpenAt(std::int32_t dpi) {
    desktop.gdi.dpi = dpi;
    drawing.HandleMessage(MenuMessage::InitMenuPopup, 0, 0);
  }

  MeasureItem Measure(std::int32_t id) {
    MeasureItem item{.id = id};
    drawing.HandleMessage(MenuMessage::MeasureItem, 0, reinterpret_cast<std::intptr_t>(&item));
    return item;
  }

  bool Draw(std::int32_t id, std::uint32_t state, DeviceContext context, const Rect& rect) {
    const DrawItem item{.id = id, .state = state, .context = context, .rect = rect};
    return drawing.HandleMessage(MenuMessage::DrawItem, 0, reinterpret_cast<std::intptr_t>(&item));
  }

  const MenuEntry& Entry(std::size_t position) { return desktop.menus.Entries(menu).at(position); }
  BitmapHandle PictureOf(std::int32_t id) { return OwnerDrawMenu_HasBitmap(id); }

  memory::Desktop desktop;
  Gdi& gdi;
  clsOptions options;
  clsCollection bitmaps;
  std::map<std::int32_t, Data> records;
  MenuHandle menu = MenuHandle::None;
  MenuHandle shellMenu = MenuHandle::None;
  OwnerDrawMenu drawing{options, desktop.menus, gdi, desktop.icons, desktop.files, bitmaps, *this};

 private:
  std::wstring OwnerDrawMenu_GetCaption(std::int32_t lId) override {
    return records.contains(lId) ? records[lId].Caption() : L"";
  }
  BitmapHandle OwnerDrawMenu_HasBitmap(std::int32_t lId) override {
    return records.contains(lId) ? drawing.Picture(records[lId]) : BitmapHandle::None;
  }
};

}  // namespace orvane::test
