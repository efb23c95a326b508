#pragma once

#include <windows.h>

#include <shlobj.h>

#include <string>
#include <vector>

#include "host/Com.h"

namespace orvane::host {

/// A menu that a program lends to several handlers, as the shell does: each gets what the one
/// before it left of the identifiers, and messages and commands go by identifier to the handler in
/// whose count it lies.
class SharedMenu {
 public:
  /// Which of the interfaces' methods the program calls for a message.
  enum class Through { HandleMenuMsg, HandleMenuMsg2, Both };

  explicit SharedMenu(Through through = Through::HandleMenuMsg2) : m_through(through) {}
  ~SharedMenu() { DestroyMenu(menu); }
  SharedMenu(const SharedMenu&) = delete;
  SharedMenu& operator=(const SharedMenu&) = delete;

  /// Adds a handler's entries on top, with the identifiers up to `last`; answers their count.
  UINT Add(IContextMenu* handler, UINT last = 32767);

  /// The result of the message, which is about the identifier; -1 when nobody is there for it.
  LRESULT Send(UINT id, UINT message, WPARAM wParam, LPARAM lParam);

  /// A submenu opens; it belongs to the handler of its first entry.
  LRESULT Open(HMENU submenu);
  /// A letter is typed in it.
  LRESULT Type(HMENU submenu, wchar_t letter);

  /// The place in the order of adding of the handler that takes the command; -1 without one.
  int Choose(UINT id);
  /// The same for a verb, which all are asked in turn.
  int Verb(const char* verb, const wchar_t* wide = nullptr);

  /// The handlers' first identifiers, and past the last one the next that is free.
  std::vector<UINT> firsts = {1};
  HMENU menu = CreatePopupMenu();

 private:
  IContextMenu* HandlerOf(UINT id) const;

  std::vector<ComPtr<IContextMenu>> m_handlers;
  Through m_through;
};

/// The submenu behind the first entry with the caption, anywhere below; null without.
HMENU FindSubmenu(HMENU menu, const std::wstring& caption);

/// The identifiers of all entries, those of popups too; separators and the root entry have none.
std::vector<UINT> IdsOf(HMENU menu);

/// The MENUITEMINFO field of an entry.
UINT IdAt(HMENU menu, int position);

/// Another program's handler: adds one entry, takes its own command and the verb "edit", and notes
/// the messages that reach it.
class Neighbour final : public IContextMenu3 {
 public:
  ULONG references = 1;
  std::vector<UINT> messages;
  int invoked = 0;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override { return --references; }
  HRESULT STDMETHODCALLTYPE QueryContextMenu(HMENU menu, UINT index, UINT first, UINT,
                                             UINT) override {
    InsertMenuW(menu, index, MF_BYPOSITION, first, L"Neighbour");
    return 1;
  }
  HRESULT STDMETHODCALLTYPE InvokeCommand(CMINVOKECOMMANDINFO* record) override;
  HRESULT STDMETHODCALLTYPE GetCommandString(UINT_PTR, UINT, UINT*, CHAR*, UINT) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE HandleMenuMsg(UINT message, WPARAM, LPARAM) override {
    messages.push_back(message);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE HandleMenuMsg2(UINT message, WPARAM wParam, LPARAM lParam,
                                           LRESULT*) override {
    return HandleMenuMsg(message, wParam, lParam);
  }
};

}  // namespace orvane::host
