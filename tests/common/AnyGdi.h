#pragma once

#include <gtest/gtest.h>

#include <string>

#include "memory/Faults.h"
#include "memory/Gdi.h"
#ifdef _WIN32
#include <windows.h>

#include "win32/Gdi.h"
#include "win32/NativeHandles.h"
#endif

namespace orvane::test {

/// A test that runs on each back end's drawing; on the memory desktop it ends with a look at what
/// was left behind.
class AnyGdi : public testing::TestWithParam<const char*> {
 protected:
  Gdi& TheGdi() {
#ifdef _WIN32
    if (IsReal()) return m_real;
#endif
    return m_memory;
  }
  bool IsReal() const {
    return std::string(GetParam()) == "win32";
  }
  memory::Gdi& Memory() {
    return m_memory;
  }

  void TearDown() override {
    EXPECT_EQ(m_memory.Live(), 0u);
    EXPECT_EQ(m_memory.Mistakes(), std::vector<std::string>());
  }

 private:
  memory::Faults m_faults;
  memory::Gdi m_memory{m_faults};
#ifdef _WIN32
  win32::Gdi m_real;
#endif
};

inline auto EveryGdi() {
#ifdef _WIN32
  return testing::Values("memory", "win32");
#else
  return testing::Values("memory");
#endif
}

inline std::string NameOfGdi(const testing::TestParamInfo<const char*>& info) {
  return info.param;
}

/// A bitmap to draw on and to look at.
class Canvas {
 public:
  enum Kind { Screen, Mono };

  Canvas(Gdi& gdi, Size size, Kind kind = Screen)
      : m_gdi(gdi),
        m_screen(gdi, gdi.OpenScreen()),
        m_context(gdi, gdi.CreateContext()),
        m_bitmap(gdi, gdi.CreateCompatible(kind == Mono ? m_context.get() : m_screen.get(), size)),
        m_selected(gdi, m_context.get(), m_bitmap.get()),
        m_size(size) {}

  DeviceContext Context() const { return m_context.get(); }
  Size Extent() const { return m_size; }

  void Fill(const Rect& rect, Colour colour) {
    const UniqueBrush brush(m_gdi, m_gdi.SolidBrush(colour));
    m_gdi.Fill(Context(), rect, brush.get());
  }
  void Clear(Colour colour) { Fill({0, 0, m_size.width, m_size.height}, colour); }
  void Set(int x, int y, Colour colour) { Fill({x, y, x + 1, y + 1}, colour); }

  Colour Pixel(int x, int y) const {
#ifdef _WIN32
    if (!dynamic_cast<memory::Gdi*>(&m_gdi)) return GetPixel(win32::ToNative<HDC>(Context()), x, y);
#endif
    return static_cast<memory::Gdi&>(m_gdi).Pixel(m_bitmap.get(), {x, y}).value_or(0xFFFFFFFF);
  }

  /// The bounds of the pixels that have (or lack) the colour; all 0 without any.
  Rect BoundsOf(Colour colour, bool has = true) const {
    Rect bounds{m_size.width, m_size.height, 0, 0};
    for (int y = 0; y < m_size.height; ++y) {
      for (int x = 0; x < m_size.width; ++x) {
        if ((Pixel(x, y) == colour) != has) continue;
        bounds = {std::min(bounds.left, x), std::min(bounds.top, y), std::max(bounds.right, x + 1),
                  std::max(bounds.bottom, y + 1)};
      }
    }
    return bounds.right == 0 ? Rect() : bounds;
  }

 private:
  Gdi& m_gdi;
  UniqueScreen m_screen;
  UniqueContext m_context;
  UniqueBitmap m_bitmap;
  Selected<BitmapHandle> m_selected;
  Size m_size;
};

}  // namespace orvane::test

namespace orvane {
inline bool operator==(const Rect& one, const Rect& other) {
  return one.left == other.left && one.top == other.top && one.right == other.right &&
         one.bottom == other.bottom;
}
inline void PrintTo(const Rect& rect, std::ostream* out) {
  *out << rect.left << "," << rect.top << " to " << rect.right << "," << rect.bottom;
}
}  // namespace orvane
