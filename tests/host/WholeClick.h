#pragma once

#include <windows.h>

#include "host/Com.h"
#include "host/Scene.h"

namespace orvane::host {

/// A right-click with everything in it, from the making of the handler to its release: every kind
/// of item, every submenu opened, every entry measured, painted and asked for its texts, one
/// chosen.
class WholeClick {
 public:
  WholeClick();
  ~WholeClick();
  WholeClick(const WholeClick&) = delete;
  WholeClick& operator=(const WholeClick&) = delete;

  struct Outcome {
    HRESULT count = E_FAIL;  // the answer of QueryContextMenu
    int unmeasured = 0;      // entries that have no width
    bool chosen = false;
    bool isRestored = false;  // what was painted on has the objects and colours that it had
  };
  Outcome Run();

 private:
  void Walk(IContextMenu3& handler, HMENU menu, Outcome& outcome);
  bool PaintAndAskAbout(IContextMenu3& handler, UINT id);

  Apartment m_apartment;
  Scene m_scene;
  ComPtr<IDataObject> m_selection;
  HDC m_context = CreateCompatibleDC(nullptr);
  HBITMAP m_bitmap = CreateBitmap(300, 30, 1, 32, nullptr);
  HGDIOBJ m_old = SelectObject(m_context, m_bitmap);
};

}  // namespace orvane::host
