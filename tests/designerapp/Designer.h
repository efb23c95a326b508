#pragma once

#include <optional>
#include <string>

#include "designerapp/CommandIds.h"
#include "designerapp/MainWindow.h"
#include "designerapp/User.h"

namespace orvane::test {

/// The captions below the item, what a popup holds in brackets behind its own.
std::wstring TreeBelow(const designer::MenuItem& parent);

/// The designer with a file of its own, and its thread's message loop.
class Designer {
 public:
  explicit Designer(const wchar_t* name = L"menu.cfg");
  ~Designer();

  /// Waits until nothing has happened for so many milliseconds.
  void Open(DWORD quiet = 250);
  void Close();

  /// A menu with one entry, saved.
  void Fill();
  /// Calls the command as the menu bar does, and answers when it is done.
  void Do(int command);

  /// What a text of the designer is once it is `expected`, or still is after ten seconds: a slow
  /// machine takes a while over keys.
  template <class Text>
  std::wstring Once(const std::wstring& expected, Text text) {
    for (int i = 0; i < 200 && text() != expected; ++i) User::Wait(50);
    return text();
  }
  void ExpectShown(const std::wstring& expected);
  void ExpectTitle(const std::wstring& expected);

  /// The menu in the file.
  std::wstring Saved();
  std::wstring Shown() { return TreeBelow(Root()); }
  std::wstring Title() { return designerapp::TextOf(window->Handle()); }
  HWND Tree() { return GetDlgItem(window->Handle(), IDC_TREE); }
  /// The middle of a visible line of the tree, on the screen.
  POINT Line(int line);
  designer::MenuItem& Root() { return *program.document.Top().children.front(); }

  std::wstring file;
  designerapp::Program program;
  std::optional<designerapp::MainWindow> window;
};

}  // namespace orvane::test
