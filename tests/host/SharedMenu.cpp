#include "host/SharedMenu.h"

#include <shellapi.h>

#include "host/Scene.h"

namespace orvane::host {
namespace {

template <class Interface>
ComPtr<Interface> As(IUnknown* object) {
  ComPtr<Interface> other;
  if (object) object->QueryInterface(IID_PPV_ARGS(other.GetAddressOf()));
  return other;
}

}  // namespace

UINT SharedMenu::Add(IContextMenu* handler, UINT last) {
  const HRESULT count = handler->QueryContextMenu(menu, 0, firsts.back(), last, CMF_NORMAL);
  m_handlers.emplace_back(handler);
  firsts.push_back(firsts.back() + (SUCCEEDED(count) ? HRESULT_CODE(count) : 0));
  return firsts.back() - firsts[firsts.size() - 2];
}

IContextMenu* SharedMenu::HandlerOf(UINT id) const {
  for (std::size_t i = 0; i < m_handlers.size(); ++i)
    if (id >= firsts[i] && id < firsts[i + 1]) return m_handlers[i].Get();
  return nullptr;
}

LRESULT SharedMenu::Send(UINT id, UINT message, WPARAM wParam, LPARAM lParam) {
  const ComPtr<IContextMenu3> handler = As<IContextMenu3>(HandlerOf(id));
  const ComPtr<IContextMenu2> older = As<IContextMenu2>(handler.Get());
  LRESULT result = 0;
  if (!handler) return -1;
  if (m_through != Through::HandleMenuMsg2) older->HandleMenuMsg(message, wParam, lParam);
  if (m_through != Through::HandleMenuMsg)
    handler->HandleMenuMsg2(message, wParam, lParam, &result);
  return result;
}

LRESULT SharedMenu::Open(HMENU submenu) {
  return Send(IdAt(submenu, 0), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(submenu), 0);
}

LRESULT SharedMenu::Type(HMENU submenu, wchar_t letter) {
  return Send(IdAt(submenu, 0), WM_MENUCHAR, MAKEWPARAM(letter, MF_POPUP),
              reinterpret_cast<LPARAM>(submenu));
}

int SharedMenu::Choose(UINT id) {
  for (std::size_t i = 0; i < m_handlers.size(); ++i) {
    if (HandlerOf(id) != m_handlers[i].Get()) continue;
    CMINVOKECOMMANDINFO record{};
    record.cbSize = sizeof record;
    record.lpVerb = MAKEINTRESOURCEA(id - firsts[i]);
    return SUCCEEDED(m_handlers[i]->InvokeCommand(&record)) ? static_cast<int>(i) : -1;
  }
  return -1;
}

int SharedMenu::Verb(const char* verb, const wchar_t* wide) {
  CMINVOKECOMMANDINFOEX record{};
  record.cbSize = sizeof record;
  record.fMask = wide ? CMIC_MASK_UNICODE : 0;
  record.lpVerb = verb;
  record.lpVerbW = wide;
  for (std::size_t i = 0; i < m_handlers.size(); ++i) {
    if (SUCCEEDED(m_handlers[i]->InvokeCommand(reinterpret_cast<CMINVOKECOMMANDINFO*>(&record))))
      return static_cast<int>(i);
  }
  return -1;
}

UINT IdAt(HMENU menu, int position) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_ID;
  GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
  return info.wID;
}

HMENU FindSubmenu(HMENU menu, const std::wstring& caption) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    const HMENU submenu = GetSubMenu(menu, i);
    if (!submenu) continue;
    if (CaptionOf(menu, i) == caption) return submenu;
    if (const HMENU found = FindSubmenu(submenu, caption)) return found;
  }
  return nullptr;
}

std::vector<UINT> IdsOf(HMENU menu) {
  std::vector<UINT> ids;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    const UINT id = IdAt(menu, i);
    if (id != 0) ids.push_back(id);
    const HMENU submenu = GetSubMenu(menu, i);
    if (!submenu) continue;
    const std::vector<UINT> below = IdsOf(submenu);
    ids.insert(ids.end(), below.begin(), below.end());
  }
  return ids;
}

HRESULT Neighbour::QueryInterface(REFIID iid, void** object) {
  const bool known = iid == IID_IUnknown || iid == IID_IContextMenu || iid == IID_IContextMenu2 ||
                     iid == IID_IContextMenu3;
  *object = known ? this : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

HRESULT Neighbour::InvokeCommand(CMINVOKECOMMANDINFO* record) {
  const bool ours = IS_INTRESOURCE(record->lpVerb) ? LOWORD(record->lpVerb) == 0
                                                   : lstrcmpA(record->lpVerb, "edit") == 0;
  if (ours) ++invoked;
  return ours ? S_OK : E_FAIL;
}

}  // namespace orvane::host
