#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

#include "host/Com.h"

namespace orvane::host {

/// A folder with real files, and the user's settings of the product: none but those that a test
/// sets. Both are gone with the object.
class Scene {
 public:
  Scene();
  ~Scene();
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  std::wstring Folder() const { return m_folder.wstring(); }
  std::wstring Path(const wchar_t* name) const { return (m_folder / name).wstring(); }

  void Set(const wchar_t* name, DWORD number);
  void Set(const wchar_t* name, const std::wstring& text);
  /// Entries as text: no icons, no owner drawing.
  void PlainText();

 private:
  std::filesystem::path m_folder;
};

std::wstring CaptionOf(HMENU menu, int position);

/// One right-click as the shell does it: a handler made by COM, told the folder and the selection,
/// asked for its entries. The menu is gone with the object, the handler with its last reference.
class RightClick {
 public:
  /// `selection` may be null: a click on the folder's background.
  RightClick(const std::wstring& folder, IDataObject* selection);
  ~RightClick() { DestroyMenu(menu); }
  RightClick(const RightClick&) = delete;
  RightClick& operator=(const RightClick&) = delete;

  HRESULT Query(UINT first = 1, UINT last = 32767);
  /// Puts an empty menu in place of the one that was built.
  void NewMenu();

  /// The menu as indented text: two spaces a level, "--------" for a separator, " >" after a
  /// popup's caption, "(disabled)" after a disabled entry.
  std::wstring Text() const;

  // Both are for menus whose identifiers begin with 1.
  bool Invoke(UINT id, HWND window) const;
  /// Chooses the entry with the caption, which may lie in a submenu; false when there is none.
  bool Choose(const std::wstring& caption, HWND window = nullptr) const;

  HRESULT initialized = E_FAIL;
  ComPtr<IContextMenu3> handler;
  HMENU menu = CreatePopupMenu();
};

}  // namespace orvane::host
