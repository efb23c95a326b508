#include "windowing/DialogLayout.h"

#include <algorithm>

namespace orvane::windowing {
namespace {

SIZE ClientSize(HWND window) {
  RECT rect{};
  GetClientRect(window, &rect);
  return {rect.right, rect.bottom};
}

RECT PlaceIn(HWND dialog, HWND control) {
  RECT rect{};
  GetWindowRect(control, &rect);
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

}  // namespace

void DialogLayout::Start(HWND dialog, std::span<const Anchor> anchors) {
  m_dialog = dialog;
  m_client = ClientSize(dialog);
  RECT window{};
  GetWindowRect(dialog, &window);
  m_window = {window.right - window.left, window.bottom - window.top};
  for (HWND control = GetWindow(dialog, GW_CHILD); control;
       control = GetWindow(control, GW_HWNDNEXT)) {
    const auto anchor = std::ranges::find(anchors, GetDlgCtrlID(control), &Anchor::control);
    const unsigned edges = anchor == anchors.end() ? 0 : anchor->edges;
    m_places.push_back({control, PlaceIn(dialog, control), edges});
  }
}

void DialogLayout::Scale(int numerator, int denominator) {
  m_numerator = numerator;
  m_denominator = denominator;
}

void DialogLayout::Arrange() const {
  if (!m_dialog) return;
  const SIZE now = ClientSize(m_dialog);
  const LONG wider = now.cx - Scaled(m_client.cx);
  const LONG taller = now.cy - Scaled(m_client.cy);
  for (const Place& place : m_places) {
    RECT rect{Scaled(place.rect.left), Scaled(place.rect.top), Scaled(place.rect.right),
              Scaled(place.rect.bottom)};
    if (place.edges & Left) rect.left += wider;
    if (place.edges & Right) rect.right += wider;
    if (place.edges & Top) rect.top += taller;
    if (place.edges & Bottom) rect.bottom += taller;
    SetWindowPos(place.control, nullptr, rect.left, rect.top, rect.right - rect.left,
                 rect.bottom - rect.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
  }
  RedrawWindow(m_dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void DialogLayout::Limit(MINMAXINFO& limits) const {
  if (m_dialog) limits.ptMinTrackSize = {Scaled(m_window.x), Scaled(m_window.y)};
}

}  // namespace orvane::windowing
