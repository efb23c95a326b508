#include "designerapp/Designer.h"

#include <gtest/gtest.h>

#include <commctrl.h>
#include <ole2.h>

#include <filesystem>

namespace orvane::test {
namespace {

designerapp::MainWindow* s_window = nullptr;  // whose keys are to be translated

}  // namespace

std::wstring TreeBelow(const designer::MenuItem& parent) {
  std::wstring text;
  for (const designer::MenuItem::Owner& child : parent.children) {
    text += text.empty() ? L"" : L" ";
    text += child->data.IsTypeSeparator() ? L"-" : std::wstring(child->data.Caption());
    if (!child->children.empty()) text += L"(" + TreeBelow(*child) + L")";
  }
  return text;
}

Designer::Designer(const wchar_t* name)
    : file((std::filesystem::temp_directory_path() / name).wstring()),
      program(GetModuleHandleW(nullptr)) {
  OleInitialize(nullptr);
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_TREEVIEW_CLASSES | ICC_LISTVIEW_CLASSES |
                                                           ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&controls);
}

Designer::~Designer() {
  Close();
  OleUninitialize();
}

void Designer::Open(DWORD quiet) {
  window.emplace(program);
  s_window = &*window;
  window->Open(file, SW_SHOWNORMAL);
  SetForegroundWindow(window->Handle());
  SetFocus(Tree());
  User::Wait(quiet);
}

void Designer::Close() {
  s_window = nullptr;
  window.reset();
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
  }
}

void Designer::Fill() {
  clsOrvaneData data;
  data.m_lType = clsOrvaneData::TypeFile;
  data.Location(L"C:\\windows\\system32\\notepad.exe");
  data.Caption(L"Notes");
  Insert(program.document.Edits(), data, {&Root(), 0});
  program.document.Save(file);
}

void Designer::Do(int command) {
  SendMessageW(window->Handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
}

POINT Designer::Line(int line) {
  HTREEITEM item = TreeView_GetRoot(Tree());
  while (line-- > 0) item = TreeView_GetNextVisible(Tree(), item);
  RECT rect{};
  TreeView_GetItemRect(Tree(), item, &rect, TRUE);
  POINT middle{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  ClientToScreen(Tree(), &middle);
  return middle;
}

void Designer::ExpectShown(const std::wstring& expected) {
  EXPECT_EQ(Once(expected, [&] { return Shown(); }), expected);
}

void Designer::ExpectTitle(const std::wstring& expected) {
  EXPECT_EQ(Once(expected, [&] { return Title(); }), expected);
}

std::wstring Designer::Saved() {
  designerapp::Program other(program.instance);
  other.document.Open(file);
  return TreeBelow(*other.document.Top().children.front());
}

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
