#include "graphics/MenuBitmaps.h"

#include "graphics/Bitmaps.h"
#include "graphics/ColConst.h"
#include "support/Trace.h"

namespace orvane {
namespace {

constexpr std::int32_t FirstResource = 101;  // of the bitmap with key 1
constexpr std::int32_t LoadingOrder[] = {2, 1, 3, 4, 5, 6, 7, 8, 9};
constexpr Colour MaskColour = Rgb(255, 0, 255);

void Free(Gdi& gdi, std::int32_t bitmap) {
  if (bitmap != 0) gdi.FreeBitmap(ToHandle<BitmapHandle>(bitmap));
}

}  // namespace

void LoadMenuBitmaps(Gdi& gdi, clsCollection& bitmaps) {
  const Colour menuColour = gdi.SystemColour(ColConst::Menu);
  for (const std::int32_t key : LoadingOrder) {
    UniqueBitmap normal(gdi,
                        ReplaceBitmapColour(gdi, FirstResource + key - 1, MaskColour, menuColour));
    if (!normal) continue;
    UniqueBitmap scaled(gdi, ScaleBMP(gdi, normal.get(), false));
    const clsCollection::Node node = bitmaps.Add({}, key);
    node->m_lData = ToNumber(scaled.release());
    node->m_lData2 = ToNumber(normal.release());
  }
  for (const clsCollection::Node& node : bitmaps)
    Log(L"Index=", node->Index, L"  Bitmap=", Hex(node->m_lData), L"  lBitmapKey=",
        std::int32_t{node->m_lKey});
}

void DeleteMenuBitmaps(Gdi& gdi, clsCollection& bitmaps) {
  for (const clsCollection::Node& node : bitmaps) {
    Free(gdi, node->m_lData);
    Free(gdi, node->m_lData2);
  }
  bitmaps.Clear();
}

}  // namespace orvane
