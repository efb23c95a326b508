#include "designerapp/MainWindow.h"

#include <gtest/gtest.h>

#include <commctrl.h>
#include <ole2.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "designerapp/CommandIds.h"
#include "designerapp/User.h"
#include "host/LeakCount.h"

// The designer as a user at the keyboard meets it.

namespace orvane::test {
namespace {

using designer::MenuItem;
using designerapp::MainWindow;
using designerapp::Program;
namespace fs = std::filesystem;

/// How often the endurance test opens and closes the designer.
int Rounds() {
  const char* asked = std::getenv("ORVANE_ROUNDS");
  return asked ? std::atoi(asked) : 5;
}

MainWindow* s_window = nullptr;  // whose keys are to be translated

std::wstring TreeBelow(const MenuItem& parent) {
  std::wstring text;
  for (const MenuItem::Owner& child : parent.children) {
    text += text.empty() ? L"" : L" ";
    text += child->data.IsTypeSeparator() ? L"-" : std::wstring(child->data.Caption());
    if (!child->children.empty()) text += L"(" + TreeBelow(*child) + L")";
  }
  return text;
}

/// The designer with a file of its own.
class Designer {
 public:
  explicit Designer(const wchar_t* name = L"menu.cfg")
      : file((fs::temp_directory_path() / name).wstring()), program(GetModuleHandleW(nullptr)) {
    OleInitialize(nullptr);
    const INITCOMMONCONTROLSEX controls{
        sizeof controls,
        ICC_TREEVIEW_CLASSES | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
  }
  ~Designer() {
    Close();
    OleUninitialize();
  }

  void Open() {
    window.emplace(program);
    s_window = &*window;
    window->Open(file, SW_SHOWNORMAL);
    SetForegroundWindow(window->Handle());
    SetFocus(GetDlgItem(window->Handle(), IDC_TREE));
    User::Wait();
  }
  void Close() {
    s_window = nullptr;
    window.reset();
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
  }

  /// What a text of the designer is once it is `expected`, or still is after ten seconds: a slow
  /// machine takes a while over keys.
  template <class Text>
  std::wstring Once(const std::wstring& expected, Text text) {
    for (int i = 0; i < 200 && text() != expected; ++i) User::Wait(50);
    return text();
  }
  void ExpectShown(const std::wstring& expected) {
    EXPECT_EQ(Once(expected, [&] { return Shown(); }), expected);
  }
  void ExpectTitle(const std::wstring& expected) {
    EXPECT_EQ(Once(expected, [&] { return Title(); }), expected);
  }

  /// The menu in the file.
  std::wstring Saved() {
    Program other(program.instance);
    other.document.Open(file);
    return TreeBelow(*other.document.Top().children.front());
  }
  std::wstring Shown() { return TreeBelow(*program.document.Top().children.front()); }
  std::wstring Title() { return designerapp::TextOf(window->Handle()); }

  std::wstring file;
  Program program;
  std::optional<MainWindow> window;
};

TEST(Keyboard, BuildsAMenuFromNothingToTheSavedFile) {
  Designer designer;
  designer.program.document.Save(designer.file);
  designer.Open();
  User user;
  user.Type(L"%ip{F2}").Type(L"Tools{ENTER}");  // a popup, renamed
  designer.ExpectShown(L"Tools");
  user.Type(L"%it{F2}").Type(L"List{ENTER}");  // a task in it
  user.Type(L"%is");                           // a line behind it
  user.Type(L"%{UP}");
  designer.ExpectShown(L"Tools(- List)");
  user.Type(L"%{LEFT}");
  designer.ExpectShown(L"Tools(List) -");
  user.Type(L"^z^z^z");
  designer.ExpectShown(L"Tools(List)");
  user.Type(L"^y");
  designer.ExpectShown(L"Tools(List -)");
  designer.ExpectTitle(L"*menu.cfg - Orvane Designer");
  user.Type(L"^s");
  designer.ExpectTitle(L"menu.cfg - Orvane Designer");
  EXPECT_EQ(designer.Saved(), L"Tools(List -)");
}

TEST(Keyboard, EditsPropertiesAndKeepsTheTextFieldsOwnKeys) {
  Designer designer;
  designer.program.document.Save(designer.file);
  designer.Open();
  User user;
  user.Type(L"%ia{F6}");
  user.Type(L"Type it{TAB}ab~");
  designer.ExpectShown(L"Type it");
  MenuItem& action = *designer.program.document.Top().children[0]->children[0];
  const auto script = [&] { return std::wstring(action.data.m_szAction_Actions); };
  EXPECT_EQ(designer.Once(L"ab~", script), L"ab~");
  EXPECT_EQ(action.data.Caption(), L"Type it");
  user.Type(L"{DEL}^a{DEL}");  // in the field, not of the item
  EXPECT_EQ(designer.Once(L"", script), L"");
  designer.ExpectShown(L"Type it");
  SetFocus(GetDlgItem(designer.window->Handle(), IDC_TREE));
  user.Type(L"^c^v^x");
  designer.ExpectShown(L"Type it");
  user.Type(L"^d^d{DEL}");
  designer.ExpectShown(L"Type it Type it");
}

/// Text of the message box that is open, which it closes.
std::wstring s_box;
void CALLBACK CloseBox(HWND, UINT, UINT_PTR, DWORD) {
  const HWND box = FindWindowW(L"#32770", nullptr);
  if (!box || !GetDlgItem(box, 0xFFFF)) return;
  s_box = designerapp::TextOf(GetDlgItem(box, 0xFFFF));
  PostMessageW(box, WM_COMMAND, IDOK, 0);
}

/// A menu with one entry.
void Fill(Designer& designer) {
  clsOrvaneData file;
  file.m_lType = clsOrvaneData::TypeFile;
  file.Location(L"C:\\windows\\system32\\notepad.exe");
  file.Caption(L"Notes");
  MenuItem& root = *designer.program.document.Top().children.front();
  Insert(designer.program.document.Edits(), file, {&root, 0});
  designer.program.document.Save(designer.file);
}

TEST(Preview, TellsWhatAnEntryDoes) {
  Designer designer;
  Fill(designer);
  designer.Open();
  const UINT_PTR timer = SetTimer(nullptr, 0, 100, CloseBox);
  User().Type(L"{F5}{DOWN}{RIGHT}{ENTER}");
  const std::wstring opens = L"Opens C:\\windows\\system32\\notepad.exe.";
  EXPECT_EQ(designer.Once(opens, [] { return s_box; }), opens);
  KillTimer(nullptr, timer);
}

TEST(OpeningEditingPreviewingAndClosing, LeavesNothingBehind) {
  Designer designer;
  Fill(designer);
  const auto round = [&] {
    designer.Open();
    User().Type(L"{DOWN}^d^z{F5}{DOWN}{RIGHT}{ESC}{ESC}{ESC}");
    designer.Close();
  };
  for (int i = 0; i < 3; ++i) round();  // what Windows loads once
  const host::LeakCount before = host::LeakCount::Now();
  for (int i = 0; i < Rounds(); ++i) round();
  const host::LeakCount after = host::LeakCount::Now();
  EXPECT_EQ(designer.Saved(), L"Notes");
  EXPECT_LE(after.gdiObjects, before.gdiObjects + 2);
  EXPECT_LE(after.userHandles, before.userHandles + 8);
}

}  // namespace

void User::Wait(DWORD milliseconds) {
  DWORD last = GetTickCount();
  while (GetTickCount() - last < milliseconds) {
    MSG message;
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      Sleep(5);
      continue;
    }
    if (message.message != WM_TIMER) last = GetTickCount();
    if (s_window && s_window->Handle() && s_window->Translate(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace orvane::test
