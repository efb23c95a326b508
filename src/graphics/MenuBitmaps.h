#pragma once

#include "menudata/clsCollection.h"
#include "platform/Gdi.h"

namespace orvane {

/// Loads the nine menu bitmaps, their mask colour replaced by the menu's: m_lKey 1 to 9, m_lData
/// the bitmap scaled to a check mark, m_lData2 the bitmap as it is. A bitmap that cannot be loaded
/// has no node.
void LoadMenuBitmaps(Gdi& gdi, clsCollection& bitmaps);

/// Frees the bitmaps of every node, converted icons too, and empties the list.
void DeleteMenuBitmaps(Gdi& gdi, clsCollection& bitmaps);

}  // namespace orvane
