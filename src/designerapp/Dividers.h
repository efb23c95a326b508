#pragma once

#include <windows.h>

namespace orvane::designerapp {

/// Where the parts of the main window meet. The mouse draws the two dividers, keys push them; each
/// part keeps some room.
class Dividers {
 public:
  enum class Divider { None, Upright, Level };

  struct Places {
    RECT tree, properties, findings;
  };

  /// The parts in an area with that gap between them, in pixels.
  Places PlacesIn(SIZE area, int gap);

  /// The divider at a point of the area that was last asked for.
  Divider At(POINT point) const;
  void MoveTo(Divider divider, POINT point);
  /// One step to the right, or down; `backwards`: the other way.
  void Push(Divider divider, bool backwards);

 private:
  void Share(Divider divider, double share);

  double m_across = 0.4;  // the tree's share of the width
  double m_down = 0.78;   // the findings' beginning
  SIZE m_area{};
  Places m_places{};
};

}  // namespace orvane::designerapp
