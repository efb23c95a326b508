#pragma once

#include <windows.h>

#include <span>
#include <vector>

namespace orvane::windowing {

/// Keeps a dialog's controls in place while it is resized, and when its scale changes.
class DialogLayout {
 public:
  /// Edges of a control that follow the dialog's right or lower edge; the others stay.
  static constexpr unsigned Left = 1, Top = 2, Right = 4, Bottom = 8;

  struct Anchor {
    int control;
    unsigned edges;
  };

  /// Takes the present size for the smallest one.
  void Start(HWND dialog, std::span<const Anchor> anchors);

  /// From now on all measures are so many times those at the start: the dialog is on a screen of
  /// another scaling.
  void Scale(int numerator, int denominator);

  /// WM_SIZE.
  void Arrange() const;

  /// WM_GETMINMAXINFO.
  void Limit(MINMAXINFO& limits) const;

 private:
  struct Place {
    HWND control;
    RECT rect;
    unsigned edges;
  };

  LONG Scaled(LONG length) const { return MulDiv(length, m_numerator, m_denominator); }

  HWND m_dialog = nullptr;
  SIZE m_client{};  // at the start
  POINT m_window{};
  std::vector<Place> m_places;
  int m_numerator = 1;
  int m_denominator = 1;
};

}  // namespace orvane::windowing
