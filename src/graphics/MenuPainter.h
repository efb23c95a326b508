#pragma once

#include <cstdint>
#include <string>

#include "graphics/DrawItem.h"
#include "platform/Gdi.h"

namespace orvane {

/// In a text in which "&" marks the next letter, the name stands as it is.
std::wstring DoubleAmpersands(const std::wstring& name);

/// Measures and paints owner-drawn menu entries. Its sizes are those of an unscaled screen (96 dots
/// per inch) and grow with the screen on which the menu opens; its colours are the system's at the
/// moment of painting.
class MenuPainter {
 public:
  explicit MenuPainter(Gdi& gdi) : m_gdi(gdi) {}

  /// A menu opens, perhaps on another screen: what was found out about screen and font is asked
  /// again. Asking for every entry would cost more than painting it.
  void MenuOpens();

  /// The entry's size in pixels. In a caption "&" marks the next letter, unless it is a file's
  /// name.
  Size Measure(std::wstring caption, bool isFileName);

  /// The picture may be None.
  void Draw(const DrawItem& item, const std::wstring& caption, bool isFileName,
            BitmapHandle picture);

  /// Side of a menu picture.
  std::int32_t PictureSize() { return Pixels(16); }

 private:
  std::int32_t Dpi();
  std::int32_t Pixels(std::int32_t unscaled);
  FontHandle Font();
  void DrawCaption(const DrawItem& item, const Rect& area, const std::wstring& caption,
                   bool hasPicture);
  void DrawPicture(const DrawItem& item, const Rect& area, BitmapHandle picture);

  Gdi& m_gdi;
  std::int32_t m_dpi = 0;  // 0 until it is asked for
  FontHandle m_font = FontHandle::None;
  UniqueFont m_menuFont;  // the font when the desktop has none of its own
};

}  // namespace orvane
