#include "designerapp/PreviewMenu.h"

#include "designerapp/Handles.h"
#include "win32/NativeHandles.h"
#include "windowing/MenuMessages.h"

namespace orvane::designerapp {

std::wstring PreviewMenu::Show(HWND owner, POINT at) {
  const designer::Document& document = m_program.document;
  designer::Preview preview(m_program.platform,
                            m_program.document.File().BytesOf(document.AsDefinition()),
                            m_program.sample);
  const UniqueMenu menu(CreatePopupMenu());
  preview.Build(win32::FromNative<MenuHandle>(menu.get()));
  m_open = &preview;
  const int chosen = TrackPopupMenu(menu.get(), TPM_RETURNCMD, at.x, at.y, 0, owner, nullptr);
  m_open = nullptr;
  return chosen > 0 ? preview.Outcome(chosen) : std::wstring();
}

bool PreviewMenu::Message(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  if (!m_open) return false;
  switch (message) {
    case WM_INITMENUPOPUP:
    case WM_MEASUREITEM:
    case WM_DRAWITEM:
    case WM_MENUCHAR:
      result = windowing::HandleMenuMsg2(m_open->Handler().Menu(), message, wParam, lParam);
      return true;
    default:
      return false;
  }
}

std::wstring PreviewMenu::HelpText(UINT id) const {
  return m_open ? m_open->HelpText(static_cast<std::int32_t>(id)) : std::wstring();
}

}  // namespace orvane::designerapp
