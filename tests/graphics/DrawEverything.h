#pragma once

#include "graphics/MenuDesk.h"
#include "graphics/clsPaintEffects.h"

namespace orvane::test {

/// Everything that draws, once.
inline void DrawEverything(MenuDesk& desk) {
  desk.desktop.files.AddFile(L"C:\\a.txt");
  desk.desktop.files.AddFile(L"C:\\b.exe");
  desk.Load();
  for (bool ownerDraw : {true, false}) {
    desk.options.m_bShellOwnerDraw = ownerDraw;
    desk.AddFile(1, L"C:\\a.txt");
    desk.AddFile(2, L"C:\\b.exe");
    desk.Record(3, clsOrvaneData::TypeSelectionTask, L"&Task");
    desk.Add(desk.menu, 3, L"&Task", 8);
  }
  Gdi& gdi = desk.gdi;
  const UniqueScreen screen(gdi, gdi.OpenScreen());
  const UniqueContext context(gdi, gdi.CreateContext());
  const UniqueBitmap bitmap(gdi, gdi.CreateCompatible(screen.get(), {100, 30}));
  const Selected selected(gdi, context.get(), bitmap.get());
  for (std::int32_t id : {1, 2, 3, 4}) {
    desk.Measure(id);
    desk.Draw(id, 0, context.get(), {0, 0, 100, 20});
    desk.Draw(id, DrawItem::Selected, context.get(), {0, 0, 100, 20});
  }
  desk.desktop.gdi.dpi = 192;
  desk.Open();
  desk.Measure(3);
  desk.Draw(3, 0, context.get(), {0, 0, 100, 20});

  clsPaintEffects effects(gdi);
  effects.PaintTransparentDC(context.get(), 0, 0, 20, 20, context.get(), 5, 5, 0);
  const UniqueBitmap picture(gdi, gdi.CreateCompatible(screen.get(), {10, 10}));
  effects.PaintTransparentStdPic(context.get(), 0, 0, 10, 10, {StdPicture::Bitmap, picture.get()},
                                 0, 0, 0);
}

}  // namespace orvane::test
