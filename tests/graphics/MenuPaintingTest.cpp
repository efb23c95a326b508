#include "common/AnyGdi.h"
#include "graphics/ColConst.h"
#include "graphics/MenuDesk.h"

namespace orvane::test {
namespace {

constexpr Colour Paper = Rgb(1, 2, 3);
constexpr Rect Area{0, 10, 150, 30};
constexpr std::int32_t WithPicture = 1;
constexpr std::int32_t Plain = 2;
constexpr std::int32_t Nameless = 3;

void AddEntries(MenuDesk& desk) {
  desk.Load();
  desk.Add(desk.menu, WithPicture, L"&Run  ", Picture::Action, {}, Data::TypeCustomAction);
  desk.Add(desk.menu, Plain, L"C&&A", Picture::None, {}, Data::TypePopupMenu);
  desk.Add(desk.menu, Nameless, L"", Picture::None);
}

using EntryPainting = AnyGdi;
INSTANTIATE_TEST_SUITE_P(, EntryPainting, EveryGdi(), NameOfGdi);

TEST_P(EntryPainting, GroundsAndRaisedPicture) {
  if (TheGdi().Dpi() != 96) GTEST_SKIP() << "a scaled screen";
  const struct {
    std::int32_t id;
    std::uint32_t state;
    std::int32_t ground;
    Rect painted;
  } rows[] = {{Plain, 0, ColConst::Menu, Area},
              {Plain, DrawItem::Selected, ColConst::Highlight, Area},
              {WithPicture, 0, ColConst::Menu, Area},
              {WithPicture, DrawItem::Selected, ColConst::Highlight, {23, 10, 150, 30}}};
  MenuDesk desk(&TheGdi());
  AddEntries(desk);
  Canvas canvas(TheGdi(), {160, 40});
  for (const auto& row : rows) {
    canvas.Clear(Paper);
    desk.Draw(row.id, row.state, canvas.Context(), Area);
    EXPECT_EQ(canvas.BoundsOf(TheGdi().SystemColour(row.ground)), row.painted) << row.id;
    EXPECT_EQ(canvas.Pixel(22, 15) == Paper, row.id == WithPicture) << "between picture and text";
  }
  const Colour light = TheGdi().SystemColour(ColConst::BtnHighlight);
  const Colour dark = TheGdi().SystemColour(ColConst::BtnShadow);
  for (const Point& point : {Point{1, 10}, Point{1, 29}, Point{20, 10}})
    EXPECT_EQ(canvas.Pixel(point.x, point.y), light);
  EXPECT_EQ(canvas.Pixel(2, 29), dark);
  EXPECT_EQ(canvas.Pixel(21, 10), dark);
  EXPECT_EQ(canvas.Pixel(21, 29), dark);
  EXPECT_EQ(canvas.Pixel(0, 15), Paper);
}

class MenuPainting : public testing::Test {
 protected:
  MenuPainting() { AddEntries(m_desk); }

  void Paint(std::int32_t id, std::uint32_t state = 0, const Rect& area = Area) {
    m_canvas.Clear(Paper);
    m_desk.Draw(id, state, m_canvas.Context(), area);
  }
  /// A colour in which the text alone can be drawn.
  Colour TellTextBy(std::int32_t index) {
    return m_gdi.systemColours[static_cast<std::size_t>(index)] = Rgb(0, 255, 1);
  }

  MenuDesk m_desk;
  memory::Gdi& m_gdi = m_desk.desktop.gdi;
  Canvas m_canvas{m_gdi, {320, 80}};
};

TEST_F(MenuPainting, SizesGrowWithTheScreen) {
  EXPECT_EQ(m_desk.Measure(WithPicture).width, 3 * 8 + 25);
  EXPECT_EQ(m_desk.Measure(Plain).width, 2 * 8 + 25);
  const struct {
    std::int32_t dpi, height, margin;
  } rows[] = {{96, 20, 25}, {144, 30, 38}, {192, 40, 50}, {72, 20, 25}, {0, 20, 25}};
  for (const auto& row : rows) {
    m_desk.OpenAt(row.dpi);
    EXPECT_EQ(m_desk.Measure(Nameless).height, row.height);
    EXPECT_EQ(m_desk.Measure(Nameless).width, row.margin);
  }
  m_desk.OpenAt(192);
  EXPECT_EQ(m_desk.Measure(Plain).width, 2 * 16 + 50) << "the font grows too";
  Paint(WithPicture, 0, {0, 20, 300, 60});
  EXPECT_EQ(m_canvas.Pixel(44, 30), Paper) << "between picture and text";
  EXPECT_EQ(m_canvas.BoundsOf(Rgb(0, 64, 107)), (Rect{14, 30, 34, 50})) << "the picture";
  m_desk.OpenAt(96);
  Paint(WithPicture);
  EXPECT_EQ(m_canvas.BoundsOf(Rgb(0, 64, 107)), (Rect{7, 15, 17, 25}));
}

TEST_F(MenuPainting, TheDesktopsOwnFontComesFirst) {
  m_gdi.desktopFont = m_gdi.AddFont({5, 9});
  EXPECT_EQ(m_desk.Measure(Plain).width, 2 * 5 + 25);
  m_gdi.FreeFont(std::exchange(m_gdi.desktopFont, FontHandle::None));
  m_desk.OpenAt(96);
  EXPECT_EQ(m_desk.Measure(Plain).width, 2 * 8 + 25);
}

TEST_F(MenuPainting, TextColourFollowsTheState) {
  const struct {
    std::uint32_t state;
    std::int32_t colour;
  } rows[] = {{0, ColConst::MenuText},
              {DrawItem::Selected, ColConst::HighlightText},
              {DrawItem::Grayed, ColConst::Scrollbar},
              {DrawItem::Selected | DrawItem::Disabled, ColConst::Scrollbar}};
  for (const auto& row : rows) {
    const Colour text = TellTextBy(row.colour);
    Paint(Plain, row.state);
    const Rect bounds = m_canvas.BoundsOf(text);
    EXPECT_GE(bounds.left, 25) << row.state;
    EXPECT_LE(bounds.right, 25 + 3 * 8) << row.state;
    EXPECT_GE(bounds.top, 13) << row.state;
    m_gdi.systemColours = memory::Desktop().gdi.systemColours;
  }
}

TEST_F(MenuPainting, AmpersandUnderlinesTheLetterButNotInFileNames) {
  constexpr int Underline = 10 + 3 + 14;
  const Colour text = TellTextBy(ColConst::MenuText);
  Paint(WithPicture);
  EXPECT_EQ(m_canvas.Pixel(25, Underline), text);
  EXPECT_EQ(m_canvas.Pixel(32, Underline), text);
  EXPECT_NE(m_canvas.Pixel(33, Underline), text);
  m_desk.options.m_lShellShowIcons = 0;
  m_desk.AddFile(5, L"C:\\&&&&&&");
  Paint(5);
  EXPECT_GT(m_canvas.BoundsOf(text).right, 25 + 5 * 8);
  EXPECT_NE(m_canvas.Pixel(26, Underline), text);
}

TEST_F(MenuPainting, ScreenKeepsItsObjects) {
  m_gdi.ExchangeTextColour(m_canvas.Context(), Rgb(5, 6, 7));
  const std::size_t before = m_gdi.Live();
  m_desk.Measure(Plain);  // the menu font stays for the menu
  for (int i = 0; i < 5; ++i) {
    m_desk.Draw(WithPicture, DrawItem::Selected, m_canvas.Context(), Area);
    m_desk.Draw(Plain, 0, m_canvas.Context(), Area);
  }
  EXPECT_EQ(m_gdi.Live(), before + 1);
  EXPECT_EQ(m_gdi.TextColour(m_canvas.Context()), Rgb(5, 6, 7));
  EXPECT_EQ(m_gdi.Mistakes(), std::vector<std::string>());
}

TEST_F(MenuPainting, SpoiltRequests) {
  Paint(Nameless);
  EXPECT_EQ(m_canvas.BoundsOf(m_gdi.SystemColour(ColConst::Menu)), Area);
  m_desk.Draw(WithPicture, DrawItem::Selected, DeviceContext::None, Area);
  Paint(WithPicture, DrawItem::Selected, {INT32_MIN, -INT32_MAX, INT32_MAX, INT32_MAX});
  Paint(WithPicture, DrawItem::Selected, {INT32_MAX, INT32_MAX, -INT32_MAX, -INT32_MAX});
}

}  // namespace
}  // namespace orvane::test
