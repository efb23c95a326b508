#include "graphics/MenuBitmaps.h"

namespace orvane {

void LoadMenuBitmaps(Gdi&, clsCollection&) {}

void DeleteMenuBitmaps(Gdi& gdi, clsCollection& bitmaps) {
  for (const auto& node : bitmaps) {
    gdi.FreeBitmap(ToHandle<BitmapHandle>(node->m_lData));
    if (node->m_lData2 != 0) gdi.FreeBitmap(ToHandle<BitmapHandle>(node->m_lData2));
  }
  bitmaps.Clear();
}

}  // namespace orvane
