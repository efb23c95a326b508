#include <memory>

#include "graphics/MenuDesk.h"
#include "graphics/clsPaintEffects.h"

namespace orvane::test {
namespace {

void DrawEverything(MenuDesk& desk) {
  desk.desktop.files.AddFile(L"C:\\a.txt");
  desk.desktop.files.AddFile(L"C:\\b.exe");
  desk.Load();
  for (bool ownerDraw : {true, false}) {
    desk.options.m_bShellOwnerDraw = ownerDraw;
    desk.AddFile(1, L"C:\\a.txt");
    desk.AddFile(2, L"C:\\b.exe");
    desk.Add(desk.menu, 3, L"&Task", Picture::Task, {}, Data::TypeSelectionTask);
  }
  Gdi& gdi = desk.gdi;
  const UniqueScreen screen(gdi, gdi.OpenScreen());
  const UniqueContext context(gdi, gdi.CreateContext());
  const UniqueBitmap bitmap(gdi, gdi.CreateCompatible(screen.get(), {100, 30}));
  const Selected selected(gdi, context.get(), bitmap.get());
  for (const std::int32_t dpi : {96, 192}) {
    desk.OpenAt(dpi);
    for (std::int32_t id : {1, 2, 3}) {
      desk.Measure(id);
      desk.Draw(id, 0, context.get(), {0, 0, 100, 20});
      desk.Draw(id, DrawItem::Selected, context.get(), {0, 0, 100, 20});
    }
  }
  clsPaintEffects effects(gdi);
  effects.PaintTransparentDC(context.get(), 0, 0, 20, 20, context.get(), 5, 5, 0);
  const UniqueBitmap picture(gdi, gdi.CreateCompatible(screen.get(), {10, 10}));
  effects.PaintTransparentStdPic(context.get(), 0, 0, 10, 10, {StdPicture::Bitmap, picture.get()},
                                 0, 0, 0);
}

TEST(GraphicsFaultSweep, NothingIsLeftBehindWhicheverCallFails) {
  std::size_t calls = 200;
  for (std::size_t n = 0; n <= calls; ++n) {
    SCOPED_TRACE(n);
    MenuDesk desk;
    memory::Desktop& desktop = desk.desktop;
    desktop.faults.FailCall(n);
    DrawEverything(desk);
    if (n == 0) calls = desktop.faults.Calls();
    EXPECT_EQ(desktop.icons.Live(), 0u);
    EXPECT_FALSE(desktop.icons.wronglyFreed);
    EXPECT_EQ(desktop.gdi.Mistakes(), std::vector<std::string>());
    // What is left belongs to the store and the menu font.
    const auto pictures = static_cast<std::size_t>(desk.pictures.Count());
    EXPECT_LE(desktop.gdi.Live(), 2 * pictures + 1);
    desk.commands.Clear();
    std::destroy_at(&desk.pictures);
    std::construct_at(&desk.pictures, desk.gdi, desktop.icons, desktop.files);
    EXPECT_LE(desktop.gdi.Live(), 1u);
  }
  EXPECT_GT(calls, 200u);
}

}  // namespace
}  // namespace orvane::test
