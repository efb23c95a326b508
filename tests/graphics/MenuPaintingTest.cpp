#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "common/AnyGdi.h"
#include "graphics/ColConst.h"
#include "graphics/MenuDesk.h"

namespace orvane::test {
namespace {

constexpr Colour Paper = Rgb(1, 2, 3);
constexpr Rect Area{0, 10, 150, 30};
constexpr std::int32_t Action = 7;  // a bitmap key
constexpr std::int32_t WithPicture = 1;
constexpr std::int32_t Plain = 2;
constexpr std::int32_t Unknown = 99;

class MenuPaintingTest : public testing::Test {
 protected:
  MenuPaintingTest() {
    m_desk.Load();
    m_desk.Record(WithPicture, clsOrvaneData::TypeCustomAction, L"&Run  ");
    m_desk.Add(m_desk.menu, WithPicture, L"&Run  ", Action);
    m_desk.Record(Plain, clsOrvaneData::TypePopupMenu, L"C&&A");
    m_desk.Add(m_desk.menu, Plain, L"C&&A", 0);
  }

  Colour System(std::int32_t index) { return m_desk.desktop.gdi.SystemColour(index); }
  void Paint(Canvas& canvas, std::int32_t id, std::uint32_t state, const Rect& area = Area) {
    canvas.Clear(Paper);
    EXPECT_TRUE(m_desk.Draw(id, state, canvas.Context(), area));
  }
  /// A colour in which the text alone can be drawn.
  Colour TellTextBy(std::int32_t index) {
    return m_desk.desktop.gdi.systemColours[static_cast<std::size_t>(index)] = Rgb(0, 255, 1);
  }

  MenuDesk m_desk;
};

TEST_F(MenuPaintingTest, WidthOfTheTextAndAFixedHeight) {
  const struct {
    std::int32_t id;
    std::int32_t width;
  } rows[] = {{WithPicture, 3 * 8 + 25}, {Plain, 2 * 8 + 25}, {Unknown, 25}};
  for (const auto& row : rows) {
    const MeasureItem item = m_desk.Measure(row.id);
    EXPECT_EQ(item.width, row.width);
    EXPECT_EQ(item.height, 20);
  }
}

TEST_F(MenuPaintingTest, SizesGrowWithTheScreen) {
  const struct {
    std::int32_t dpi, height, margin;
  } rows[] = {{96, 20, 25}, {120, 25, 31}, {144, 30, 38}, {192, 40, 50}, {72, 20, 25}, {0, 20, 25}};
  for (const auto& row : rows) {
    m_desk.desktop.gdi.dpi = row.dpi;
    m_desk.Open();
    const MeasureItem item = m_desk.Measure(Unknown);
    EXPECT_EQ(item.height, row.height);
    EXPECT_EQ(item.width, row.margin);
  }
  m_desk.desktop.gdi.dpi = 192;
  m_desk.Open();
  EXPECT_EQ(m_desk.Measure(Plain).width, 2 * 16 + 50) << "the font grows too";
}

TEST_F(MenuPaintingTest, TheDesktopsOwnFontComesFirst) {
  m_desk.desktop.gdi.desktopFont = m_desk.desktop.gdi.AddFont({5, 9});
  EXPECT_EQ(m_desk.Measure(Plain).width, 2 * 5 + 25);
  m_desk.desktop.gdi.FreeFont(std::exchange(m_desk.desktop.gdi.desktopFont, FontHandle::None));
  m_desk.Open();
  EXPECT_EQ(m_desk.Measure(Plain).width, 2 * 8 + 25);
}

TEST_F(MenuPaintingTest, GroundsOfAnEntry) {
  const struct {
    const char* what;
    std::int32_t id;
    std::uint32_t state;
    std::int32_t ground;
    Rect painted;
  } rows[] = {
      {"plain", Plain, 0, ColConst::Menu, {0, 10, 150, 30}},
      {"plain selected", Plain, DrawItem::Selected, ColConst::Highlight, {0, 10, 150, 30}},
      {"picture", WithPicture, 0, ColConst::Menu, {0, 10, 150, 30}},
      {"picture selected", WithPicture, DrawItem::Selected, ColConst::Highlight, {23, 10, 150, 30}},
  };
  for (const auto& row : rows) {
    Canvas canvas(m_desk.desktop.gdi, {160, 40});
    Paint(canvas, row.id, row.state);
    EXPECT_EQ(canvas.BoundsOf(System(row.ground)), row.painted) << row.what;
  }
}

TEST_F(MenuPaintingTest, PictureColumnOfAnEntryWithPicture) {
  Canvas canvas(m_desk.desktop.gdi, {160, 40});
  Paint(canvas, WithPicture, 0);
  EXPECT_EQ(canvas.Pixel(21, 15), System(ColConst::Menu));
  EXPECT_EQ(canvas.Pixel(22, 15), Paper) << "between picture and text";
  EXPECT_EQ(canvas.Pixel(23, 15), System(ColConst::Menu));
  // The picture is a square of 10 pixels in a frame of 3 in the menu's colour.
  EXPECT_EQ(canvas.BoundsOf(Rgb(0, 64, 107)), (Rect{7, 15, 17, 25}));
}

TEST_F(MenuPaintingTest, SelectedPictureIsRaised) {
  Canvas canvas(m_desk.desktop.gdi, {160, 40});
  Paint(canvas, WithPicture, DrawItem::Selected);
  const Colour light = System(ColConst::BtnHighlight);
  const Colour dark = System(ColConst::BtnShadow);
  EXPECT_EQ(canvas.Pixel(1, 10), light);
  EXPECT_EQ(canvas.Pixel(1, 29), light);
  EXPECT_EQ(canvas.Pixel(20, 10), light);
  EXPECT_EQ(canvas.BoundsOf(dark), (Rect{2, 10, 22, 30}));
  EXPECT_EQ(canvas.Pixel(21, 29), dark);
  EXPECT_EQ(canvas.Pixel(0, 15), Paper);
}

TEST_F(MenuPaintingTest, TextColourFollowsTheState) {
  const struct {
    std::uint32_t state;
    std::int32_t colour;
  } rows[] = {{0, ColConst::MenuText},
              {DrawItem::Selected, ColConst::HighlightText},
              {DrawItem::Grayed, ColConst::Scrollbar},
              {DrawItem::Disabled, ColConst::Scrollbar},
              {DrawItem::Selected | DrawItem::Disabled, ColConst::Scrollbar}};
  for (const auto& row : rows) {
    const Colour text = TellTextBy(row.colour);
    Canvas canvas(m_desk.desktop.gdi, {160, 40});
    Paint(canvas, Plain, row.state);
    const Rect bounds = canvas.BoundsOf(text);
    EXPECT_GE(bounds.left, 25) << row.state;
    EXPECT_LE(bounds.right, 25 + 3 * 8) << row.state;
    EXPECT_GE(bounds.top, 13) << row.state;
    m_desk.desktop.gdi.systemColours = memory::Desktop().gdi.systemColours;
  }
}

TEST_F(MenuPaintingTest, AmpersandUnderlinesTheLetter) {
  const Colour text = TellTextBy(ColConst::MenuText);
  Canvas canvas(m_desk.desktop.gdi, {160, 40});
  Paint(canvas, WithPicture, 0);
  for (int x = 25; x < 33; ++x) EXPECT_EQ(canvas.Pixel(x, 10 + 3 + 14), text);
  EXPECT_NE(canvas.Pixel(33, 10 + 3 + 14), text);
}

TEST_F(MenuPaintingTest, FileNamesArePaintedLetterForLetter) {
  const Colour text = TellTextBy(ColConst::MenuText);
  m_desk.options.m_lShellShowIcons = 0;
  m_desk.AddFile(5, L"C:\\&&&&&&");
  Canvas canvas(m_desk.desktop.gdi, {160, 40});
  Paint(canvas, 5, 0);
  EXPECT_GT(canvas.BoundsOf(text).right, 25 + 5 * 8);
  EXPECT_NE(canvas.Pixel(26, 10 + 3 + 14), text) << "no underline";
}

TEST_F(MenuPaintingTest, EverythingTwiceAsLargeAt192Dpi) {
  m_desk.desktop.gdi.dpi = 192;
  m_desk.Open();
  Canvas canvas(m_desk.desktop.gdi, {320, 80});
  Paint(canvas, WithPicture, 0, {0, 20, 300, 60});
  EXPECT_EQ(canvas.Pixel(43, 30), System(ColConst::Menu));
  EXPECT_EQ(canvas.Pixel(44, 30), Paper);
  EXPECT_EQ(canvas.Pixel(46, 30), System(ColConst::Menu));
  EXPECT_EQ(canvas.BoundsOf(Rgb(0, 64, 107)), (Rect{14, 30, 34, 50}));
}

TEST_F(MenuPaintingTest, ScreenKeepsItsObjects) {
  Canvas canvas(m_desk.desktop.gdi, {160, 40});
  auto& gdi = m_desk.desktop.gdi;
  gdi.ExchangeTextColour(canvas.Context(), Rgb(5, 6, 7));
  const std::size_t before = gdi.Live();
  m_desk.Measure(Plain);  // the menu font stays for the menu
  for (int i = 0; i < 5; ++i) {
    m_desk.Draw(WithPicture, DrawItem::Selected, canvas.Context(), Area);
    m_desk.Draw(Plain, 0, canvas.Context(), Area);
  }
  EXPECT_EQ(gdi.Live(), before + 1);
  EXPECT_EQ(gdi.TextColour(canvas.Context()), Rgb(5, 6, 7));
  EXPECT_EQ(gdi.Mistakes(), std::vector<std::string>());
}

TEST_F(MenuPaintingTest, WhatIsNotOurs) {
  MeasureItem item{.id = Plain};
  const auto address = reinterpret_cast<std::intptr_t>(&item);
  EXPECT_FALSE(m_desk.drawing.HandleMessage(MenuMessage::MeasureItem, 0, 0));
  EXPECT_FALSE(m_desk.drawing.HandleMessage(MenuMessage::DrawItem, 0, 0));
  EXPECT_FALSE(m_desk.drawing.HandleMessage(MenuMessage::DrawItem, 5, address));
  EXPECT_FALSE(m_desk.drawing.HandleMessage(MenuMessage::InitMenuPopup, 0, address));
  EXPECT_EQ(item.height, 0);

  Canvas canvas(m_desk.desktop.gdi, {160, 40});
  EXPECT_TRUE(m_desk.Draw(Unknown, 0, canvas.Context(), Area));
  EXPECT_EQ(canvas.BoundsOf(System(ColConst::Menu)), Area);
  EXPECT_TRUE(m_desk.Draw(WithPicture, DrawItem::Selected, DeviceContext::None, Area));
  const std::int32_t most = std::numeric_limits<std::int32_t>::max();
  EXPECT_TRUE(m_desk.Draw(WithPicture, 1, canvas.Context(), {-most - 1, -most, most, most}));
  EXPECT_TRUE(m_desk.Draw(WithPicture, 1, canvas.Context(), {most, most, -most, -most}));
}

}  // namespace
}  // namespace orvane::test
