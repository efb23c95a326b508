#pragma once

#include <map>
#include <memory>
#include <string>

#include "graphics/MenuBitmaps.h"
#include "graphics/OwnerDrawMenu.h"
#include "platform/memory/Desktop.h"

namespace orvane::test {

/// An owner-drawn menu on the memory desktop, with the records that a handler would keep. Drawing
/// and icons may be the real ones.
class MenuDesk : private MenuItemLookup {
 public:
  explicit MenuDesk(Gdi* realGdi = nullptr, ShellIcons* realIcons = nullptr)
      : gdi(realGdi ? *realGdi : desktop.gdi),
        drawing(options, desktop.menus, gdi, realIcons ? *realIcons : desktop.icons, desktop.files,
                bitmaps, *this) {
    options.m_lShellShowIcons = clsOptions::OptionLevel_Medium;
  }
  ~MenuDesk() override {
    if (menu != MenuHandle::None) desktop.menus.Destroy(menu);
    if (shellMenu != MenuHandle::None) desktop.menus.Destroy(shellMenu);
    DeleteMenuBitmaps(gdi, bitmaps);
  }

  void Load() {
    menu = desktop.menus.CreatePopup();
    shellMenu = desktop.menus.CreatePopup();
    LoadMenuBitmaps(gdi, bitmaps);
    drawing.ShellMenu(shellMenu);
  }

  clsOrvaneData& Record(std::int32_t id, std::int32_t type, const std::wstring& caption) {
    clsOrvaneData& record = records[id];
    record.m_lType = type;
    record.Caption(caption);
    return record;
  }

  /// A file of the dynamic kind: just listed, named by its caption.
  bool AddFile(std::int32_t id, const std::wstring& path) {
    const std::wstring name = path.substr(path.rfind(L'\\') + 1);
    clsOrvaneData& record = Record(id, clsOrvaneData::TypeFile, name);
    return drawing.AddMenuWithBitmap({.menu = menu,
                                      .caption = name,
                                      .id = id,
                                      .bitmapKey = OwnerDrawMenu::OwnIcon,
                                      .iconFile = path,
                                      .fileName = true,
                                      .record = &record});
  }

  bool Add(MenuHandle to, std::int32_t id, const std::wstring& caption, std::int32_t key,
           const std::wstring& iconFile = {}) {
    return drawing.AddMenuWithBitmap({.menu = to,
                                      .caption = caption,
                                      .id = id,
                                      .bitmapKey = key,
                                      .iconFile = iconFile,
                                      .record = &records[id]});
  }

  /// The menu opens (again), on the screen as it is now.
  void Open() { drawing.HandleMessage(MenuMessage::InitMenuPopup, 0, 0); }

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
  std::map<std::int32_t, clsOrvaneData> records;
  MenuHandle menu = MenuHandle::None;
  MenuHandle shellMenu = MenuHandle::None;
  OwnerDrawMenu drawing;

 private:
  std::wstring OwnerDrawMenu_GetCaption(std::int32_t lId) override {
    return records.contains(lId) ? records[lId].Caption() : L"";
  }
  BitmapHandle OwnerDrawMenu_HasBitmap(std::int32_t lId) override {
    return records.contains(lId) ? drawing.Picture(records[lId]) : BitmapHandle::None;
  }
};

}  // namespace orvane::test
