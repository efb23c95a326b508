#include "server/ComContextMenuHandler.h"

#include <servprov.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

#include "server/InvokeRecord.h"
#include "win32/DataObject.h"
#include "win32/NativeHandles.h"
#include "win32/NativeItemIdList.h"
#include "windowing/MenuMessages.h"

namespace orvane::server {
namespace {

using Microsoft::WRL::ComPtr;

// The low 32 bits of an address or a key, for the log.
std::int32_t Number(const void* address) {
  return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(address));
}

/// At most `last`, which counts as 0 when it is negative.
std::int32_t Bounded(UINT number, int last = INT32_MAX) {
  return static_cast<std::int32_t>(std::min(number, static_cast<UINT>(std::max(last, 0))));
}

/// The browser of the window that the site lies in; null without.
ComPtr<IShellBrowser> BrowserOf(IUnknown* site) {
  ComPtr<IServiceProvider> services;
  ComPtr<IShellBrowser> browser;
  if (site && SUCCEEDED(site->QueryInterface(IID_PPV_ARGS(services.GetAddressOf()))))
    services->QueryService(SID_STopLevelBrowser, IID_PPV_ARGS(browser.GetAddressOf()));
  return browser;
}

/// Closes the answer in the buffer of whoever asked. What is ours leaves no wide buffer as it was,
/// since it would be read as a text.
void CopyAnswer(const CommandText& answer, bool isLent, UINT what, const CodePage& codePage,
                CHAR* text, UINT size) {
  const bool wide = (what & GCS_UNICODE) != 0;
  if (wide && (isLent || answer.isOurs)) {
    const bool hasText = answer.kind == CommandText::Kind::Wide;
    CopyBounded(hasText ? answer.text : std::wstring(),
                std::span(reinterpret_cast<char16_t*>(text), size));
  } else if (answer.kind == CommandText::Kind::Ansi) {
    CopyBounded(answer.text, codePage, std::span(text, size));
  }
}

}  // namespace

IUnknown* ComContextMenuHandler::Create(ClassFactory::For whom) {
  Module::Pin();
  return static_cast<IShellExtInit*>(new ComContextMenuHandler(whom));
}

HRESULT ComContextMenuHandler::QueryInterface(REFIID iid, void** object) noexcept {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (iid == IID_IUnknown || iid == IID_IShellExtInit) {
    *object = static_cast<IShellExtInit*>(this);
  } else if (iid == IID_IContextMenu || iid == IID_IContextMenu2 || iid == IID_IContextMenu3) {
    *object = static_cast<IContextMenu3*>(this);
  } else if (iid == IID_IDispatch || iid == IidContextMenuHandler) {
    *object = static_cast<IContextMenuHandler*>(this);
  } else if (iid == IID_IObjectWithSite && m_for == ClassFactory::For::Program) {
    *object = static_cast<IObjectWithSite*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG ComContextMenuHandler::AddRef() noexcept {
  return ++m_references;
}

ULONG ComContextMenuHandler::Release() noexcept {
  const ULONG left = --m_references;
  if (left == 0) {
    m_lock.reset();
    End();
  }
  return left;
}

HRESULT ComContextMenuHandler::Initialize(PCIDLIST_ABSOLUTE folder, IDataObject* selection,
                                          HKEY progId) noexcept {
  return Serve(S_OK, [&] {
    std::shared_ptr<DataObject> object;
    if (selection) object = std::make_shared<win32::DataObject>(selection);
    return m_handler.IShellExtInit_Initialize(win32::CopyOf(folder), std::move(object),
                                              Number(progId));
  });
}

HRESULT ComContextMenuHandler::QueryContextMenu(HMENU menu, UINT index, UINT first, UINT last,
                                                UINT flags) noexcept {
  if (!menu) return E_INVALIDARG;
  return Serve(S_OK, [&] {
    return m_handler.IContextMenu_QueryContextMenuEx(win32::FromNative<MenuHandle>(menu),
                                                     Bounded(index, GetMenuItemCount(menu)),
                                                     Bounded(first), Bounded(last), flags);
  });
}

HRESULT ComContextMenuHandler::InvokeCommand(CMINVOKECOMMANDINFO* record) noexcept {
  if (!record) return E_POINTER;
  return Serve(S_OK, [&]() -> HRESULT {
    auto request = ReadInvokeRecord(*record, Globals().codePage);
    if (!request) return E_INVALIDARG;
    if (!m_handler.IsQueried()) return E_FAIL;
    const ComPtr<IShellBrowser> browser = BrowserOf(m_site.Get());
    request->siteBrowser = reinterpret_cast<std::intptr_t>(browser.Get());
    const InvokeOutcome outcome = m_handler.IContextMenu_InvokeCommand(*request);
    // A success would keep the command from the handler that it was meant for.
    return outcome.isOurs ? outcome.result : E_FAIL;
  });
}

HRESULT ComContextMenuHandler::GetCommandString(UINT_PTR offset, UINT what, UINT*, CHAR* text,
                                                UINT size) noexcept {
  return Serve(S_OK, [&] {
    // A verb's address, which some ask about, is no offset.
    const std::int32_t idCmd = offset <= INT32_MAX ? static_cast<std::int32_t>(offset) : -1;
    const CommandText answer = m_handler.IContextMenu_GetCommandString(
        {.idCmd = idCmd, .uFlags = what, .pszName = Number(text), .cchMax = size});
    if (text) {
      CopyAnswer(answer, m_handler.IsLent(idCmd), what, Globals().codePage, text, size);
    }
    const bool validates = what == GCS_VALIDATEA || what == GCS_VALIDATEW;
    return validates && !answer.isOurs ? S_FALSE : S_OK;
  });
}

HRESULT ComContextMenuHandler::HandleMenuMsg(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  return Serve(S_OK, [&] {
    windowing::HandleMenuMsg(m_handler.Menu(), message, wParam, lParam);
    return S_OK;
  });
}

HRESULT ComContextMenuHandler::HandleMenuMsg2(UINT message, WPARAM wParam, LPARAM lParam,
                                              LRESULT* result) noexcept {
  if (result) *result = 0;
  return Serve(S_OK, [&] {
    const LRESULT answer = windowing::HandleMenuMsg2(m_handler.Menu(), message, wParam, lParam);
    if (result) *result = answer;
    return S_OK;
  });
}

HRESULT ComContextMenuHandler::SetSite(IUnknown* site) noexcept {
  m_site = site;
  return S_OK;
}

HRESULT ComContextMenuHandler::GetSite(REFIID iid, void** site) noexcept {
  if (!site) return E_POINTER;
  *site = nullptr;
  return m_site ? m_site->QueryInterface(iid, site) : E_FAIL;
}

}  // namespace orvane::server
