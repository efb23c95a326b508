#include "memory/Gdi.h"

#include <algorithm>
#include <utility>

namespace orvane::memory {
namespace {

constexpr Colour White = Rgb(255, 255, 255);

// What every context starts with.
constexpr auto StockBitmap = BitmapHandle{1};
constexpr auto StockBrush = BrushHandle{2};
constexpr auto StockPen = PenHandle{3};
constexpr auto StockFont = FontHandle{4};
constexpr auto StockPalette = PaletteHandle{5};

bool IsStock(std::uint32_t handle) {
  return handle <= 5;
}

constexpr std::array<Colour, 31> Windows10Colours = {
    0xC8C8C8, 0xD1B499, 0xD1B499, 0xDBCDBF, 0xF0F0F0, 0xFFFFFF, 0x646464, 0x000000,
    0x000000, 0x000000, 0xB4B4B4, 0xFCF7F4, 0xABABAB, 0xD77800, 0xFFFFFF, 0xF0F0F0,
    0xA0A0A0, 0x6D6D6D, 0x000000, 0x000000, 0xFFFFFF, 0x696969, 0xE3E3E3, 0x000000,
    0xE1FFFF, 0x000000, 0xCC6600, 0xEAD1B9, 0xF2E4D7, 0xD77800, 0xF0F0F0};

GdiBitmap Filled(const BitmapShape& shape, Colour colour) {
  return {shape, std::vector<Colour>(
                     static_cast<std::size_t>(shape.width) * static_cast<std::size_t>(shape.height),
                     colour)};
}

BitmapShape ShapeOf(Size size, std::uint16_t bitsPerPixel) {
  return {size.width, size.height, (bitsPerPixel * size.width + 15) / 16 * 2, 1, bitsPerPixel};
}

GdiBitmap MenuBitmap(std::int32_t number) {
  GdiBitmap bitmap = Filled(ShapeOf({16, 16}, 4), Rgb(255, 0, 255));
  for (int y = 3; y < 13; ++y)
    for (int x = 3; x < 13; ++x) bitmap.At(x, y) = Rgb(0, 64, static_cast<std::uint32_t>(number));
  return bitmap;
}

}  // namespace

Gdi::Gdi(Faults& faults) : systemColours(Windows10Colours), m_faults(faults) {
  m_objects[static_cast<std::uint32_t>(StockBitmap)] = Filled(ShapeOf({1, 1}, 1), 0);
  m_objects[static_cast<std::uint32_t>(StockBrush)] = GdiBrush{White};
  m_objects[static_cast<std::uint32_t>(StockPen)] = GdiPen{0};
  m_objects[static_cast<std::uint32_t>(StockFont)] = GdiFont{displayFontCell};
  for (std::int32_t number = 101; number <= 109; ++number) resources[number] = MenuBitmap(number);
}

template <class Handle>
Handle Gdi::Add(GdiObject object) {
  m_objects[++m_next] = std::move(object);
  return static_cast<Handle>(m_next);
}

template <class Thing, class Handle>
void Gdi::Free(Handle handle, const char* what) {
  const auto number = static_cast<std::uint32_t>(handle);
  if (!Find<Thing>(handle) || IsStock(number))
    m_mistakes.push_back(std::string(what) + " freed that is none");
  else if (IsSelected(number))
    m_mistakes.push_back(std::string(what) + " freed while selected");
  else
    m_objects.erase(number);
}

bool Gdi::IsSelected(std::uint32_t handle) const {
  return std::ranges::any_of(m_objects, [handle](const auto& entry) {
    const auto* context = std::get_if<GdiContext>(&entry.second);
    return context && (handle == static_cast<std::uint32_t>(context->bitmap.now) ||
                       handle == static_cast<std::uint32_t>(context->brush.now) ||
                       handle == static_cast<std::uint32_t>(context->pen.now) ||
                       handle == static_cast<std::uint32_t>(context->font.now));
  });
}

DeviceContext Gdi::CreateContext() {
  if (m_faults.Hit()) return DeviceContext::None;
  GdiContext context;
  context.bitmap.now = StockBitmap;
  context.brush.now = StockBrush;
  context.pen.now = StockPen;
  context.font.now = StockFont;
  context.palette.now = StockPalette;
  return Add<DeviceContext>(context);
}

DeviceContext Gdi::OpenScreen() {
  const DeviceContext screen = CreateContext();
  if (auto* context = Find<GdiContext>(screen)) context->isScreen = true;
  return screen;
}

void Gdi::FreeContext(DeviceContext context) {
  FreeContext(context, false);
}
void Gdi::CloseScreen(DeviceContext screen) {
  FreeContext(screen, true);
}

void Gdi::FreeContext(DeviceContext handle, bool screen) {
  const auto* context = Find<GdiContext>(handle);
  if (!context || context->isScreen != screen) {
    m_mistakes.push_back("context freed that is none");
    return;
  }
  if (context->bitmap.now != StockBitmap || context->brush.now != StockBrush ||
      context->pen.now != StockPen || context->font.now != StockFont)
    m_mistakes.push_back("context freed with something selected");
  m_objects.erase(static_cast<std::uint32_t>(handle));
}

BitmapHandle Gdi::CreateCompatible(DeviceContext context, Size size) {
  const auto* held = Find<GdiContext>(context);
  if (!held) return BitmapHandle::None;
  const auto* surface = Find<GdiBitmap>(held->bitmap.now);
  const bool mono = !held->isScreen && surface && surface->IsMono();
  return CreateShaped(ShapeOf(size, mono ? 1 : 32));
}

BitmapHandle Gdi::CreateShaped(const BitmapShape& shape) {
  if (m_faults.Hit()) return BitmapHandle::None;
  if (shape.width < 1 || shape.height < 1 || shape.width > MaxSide || shape.height > MaxSide ||
      std::int64_t{shape.width} * shape.height > MaxPixels)
    return BitmapHandle::None;
  return Add<BitmapHandle>(Filled(shape, shape.bitsPerPixel == 1 ? 0 : Undefined));
}

BitmapHandle Gdi::LoadMapped(std::uintptr_t, std::int32_t resource, Colour from, Colour to) {
  if (m_faults.Hit()) return BitmapHandle::None;
  const auto found = resources.find(resource);
  if (found == resources.end()) return BitmapHandle::None;
  GdiBitmap bitmap = found->second;
  bitmap.shape = ShapeOf({bitmap.shape.width, bitmap.shape.height}, 32);
  std::ranges::replace(bitmap.pixels, from, to);
  return Add<BitmapHandle>(std::move(bitmap));
}

std::optional<BitmapShape> Gdi::Describe(BitmapHandle handle) {
  if (m_faults.Hit()) return std::nullopt;
  const auto* bitmap = Find<GdiBitmap>(handle);
  if (!bitmap) return std::nullopt;
  return bitmap->shape;
}

void Gdi::FreeBitmap(BitmapHandle bitmap) {
  Free<GdiBitmap>(bitmap, "bitmap");
}

BrushHandle Gdi::SolidBrush(Colour colour) {
  return m_faults.Hit() ? BrushHandle::None : Add<BrushHandle>(GdiBrush{colour});
}

void Gdi::FreeBrush(BrushHandle brush) {
  Free<GdiBrush>(brush, "brush");
}

PenHandle Gdi::SolidPen(std::int32_t, Colour colour) {
  return m_faults.Hit() ? PenHandle::None : Add<PenHandle>(GdiPen{colour});
}

void Gdi::FreePen(PenHandle pen) {
  Free<GdiPen>(pen, "pen");
}

FontHandle Gdi::MenuFont(std::int32_t forDpi) {
  return m_faults.Hit() ? FontHandle::None : AddFont({8 * forDpi / 96, 16 * forDpi / 96});
}

FontHandle Gdi::AddFont(Size cell) {
  return Add<FontHandle>(GdiFont{cell});
}

void Gdi::FreeFont(FontHandle font) {
  Free<GdiFont>(font, "font");
}

PaletteHandle Gdi::DefaultPalette() {
  return StockPalette;
}

template <class Handle>
Handle Gdi::Exchange(GdiSlot<Handle>& slot, Handle handle) {
  const bool putsBack = handle == slot.before || IsStock(static_cast<std::uint32_t>(handle));
  if (!putsBack && m_faults.Hit()) return Handle{};
  slot.before = slot.now;
  slot.now = handle;
  return slot.before;
}

BitmapHandle Gdi::Select(DeviceContext handle, BitmapHandle bitmap) {
  auto* context = Find<GdiContext>(handle);
  if (!context || context->isScreen || !Find<GdiBitmap>(bitmap)) return BitmapHandle::None;
  const auto number = static_cast<std::uint32_t>(bitmap);
  if (!IsStock(number) && bitmap != context->bitmap.now && IsSelected(number))
    return BitmapHandle::None;
  return Exchange(context->bitmap, bitmap);
}

BrushHandle Gdi::Select(DeviceContext handle, BrushHandle brush) {
  auto* context = Find<GdiContext>(handle);
  return context && Find<GdiBrush>(brush) ? Exchange(context->brush, brush) : BrushHandle::None;
}

PenHandle Gdi::Select(DeviceContext handle, PenHandle pen) {
  auto* context = Find<GdiContext>(handle);
  return context && Find<GdiPen>(pen) ? Exchange(context->pen, pen) : PenHandle::None;
}

FontHandle Gdi::Select(DeviceContext handle, FontHandle font) {
  auto* context = Find<GdiContext>(handle);
  return context && Find<GdiFont>(font) ? Exchange(context->font, font) : FontHandle::None;
}

PaletteHandle Gdi::Select(DeviceContext handle, PaletteHandle palette) {
  auto* context = Find<GdiContext>(handle);
  return context && palette == StockPalette ? Exchange(context->palette, palette)
                                            : PaletteHandle::None;
}

Colour Gdi::TextColour(DeviceContext handle) {
  const auto* context = Find<GdiContext>(handle);
  return context ? context->textColour : 0;
}

Colour Gdi::BackColour(DeviceContext handle) {
  const auto* context = Find<GdiContext>(handle);
  return context ? context->backColour : 0;
}

Colour Gdi::ExchangeTextColour(DeviceContext handle, Colour colour) {
  auto* context = Find<GdiContext>(handle);
  return context ? std::exchange(context->textColour, colour) : 0;
}

Colour Gdi::ExchangeBackColour(DeviceContext handle, Colour colour) {
  auto* context = Find<GdiContext>(handle);
  return context ? std::exchange(context->backColour, colour) : 0;
}

bool Gdi::ExchangeTransparency(DeviceContext handle, bool transparent) {
  auto* context = Find<GdiContext>(handle);
  return context && std::exchange(context->transparent, transparent);
}

Colour Gdi::SystemColour(std::int32_t index) {
  const auto place = static_cast<std::size_t>(index);
  return place < systemColours.size() ? systemColours[place] : 0;
}

std::optional<Colour> Gdi::TranslateColour(Colour colour, PaletteHandle) {
  if (m_faults.Hit()) return std::nullopt;
  switch (colour >> 24) {
    case 0x00:
    case 0x02:
      return colour & 0xFFFFFF;
    case 0x80:
      if ((colour & 0xFFFFFF) < systemColours.size()) return systemColours[colour & 0xFF];
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<Size> Gdi::DisplayFontCell() {
  if (m_faults.Hit()) return std::nullopt;
  return displayFontCell;
}

std::optional<Colour> Gdi::Pixel(BitmapHandle handle, Point at) const {
  const auto found = m_objects.find(static_cast<std::uint32_t>(handle));
  if (found == m_objects.end()) return std::nullopt;
  auto bitmap = std::get_if<GdiBitmap>(&found->second);
  if (!bitmap || !bitmap->Holds(at.x, at.y)) return std::nullopt;
  const auto row = static_cast<std::size_t>(at.y) * static_cast<std::size_t>(bitmap->shape.width);
  return bitmap->pixels[row + static_cast<std::size_t>(at.x)];
}

void Gdi::SetPixel(BitmapHandle handle, Point at, Colour colour) {
  auto* bitmap = Find<GdiBitmap>(handle);
  if (bitmap && bitmap->Holds(at.x, at.y)) bitmap->At(at.x, at.y) = colour;
}

}  // namespace orvane::memory
