#include <gtest/gtest.h>

#include <commctrl.h>
#include <shlobj.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include "designerapp/CommandIds.h"
#include "designerapp/Designer.h"
#include "designerapp/OneInstance.h"

// The designer as a user at the keyboard meets it.

namespace orvane::test {
namespace {

using designer::MenuItem;
namespace fs = std::filesystem;

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
  MenuItem& action = *designer.Root().children[0];
  const auto script = [&] { return std::wstring(action.data.m_szAction_Actions); };
  EXPECT_EQ(designer.Once(L"ab~", script), L"ab~");
  EXPECT_EQ(action.data.Caption(), L"Type it");
  user.Type(L"{DEL}^a{DEL}");  // in the field, not of the item
  EXPECT_EQ(designer.Once(L"", script), L"");
  designer.ExpectShown(L"Type it");
  SetFocus(designer.Tree());
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

TEST(Preview, TellsWhatAnEntryDoes) {
  Designer designer;
  designer.Fill();
  designer.Open();
  const UINT_PTR timer = SetTimer(nullptr, 0, 100, CloseBox);
  User().Type(L"{F5}{DOWN}{RIGHT}{ENTER}");
  const std::wstring opens = L"Opens C:\\windows\\system32\\notepad.exe.";
  EXPECT_EQ(designer.Once(opens, [] { return s_box; }), opens);
  KillTimer(nullptr, timer);
}

TEST(Keyboard, ChangesASettingAndGivesItItsDefaultAgain) {
  Designer designer;
  designer.Fill();
  designer.Open();
  const auto longest = [&] {
    return std::to_wstring(designer.program.globals.options.m_lShellMaxMenuText);
  };
  User().Later(L"%l20{ENTER}").Type(L"%ts");
  EXPECT_EQ(designer.Once(L"20", longest), L"20");
  User().Later(L"%l%d{ENTER}").Type(L"%ts");
  EXPECT_EQ(designer.Once(L"64", longest), L"64");
}

TEST(Keyboard, ClearsAListAndInsertsAProgramOfTheStartMenu) {
  Designer designer;
  designer.Fill();
  clsMRU history(designer.program.platform.registry);
  history.Path(HistoryKey);
  history.MaxFileCount(5);
  history.Remember(L"an entry");
  wchar_t programs[MAX_PATH] = L"";
  SHGetFolderPathW(nullptr, CSIDL_PROGRAMS, nullptr, 0, programs);
  const fs::path shortcut = fs::path(programs) / L"Orvane test program.lnk";
  fs::create_directories(programs);
  std::ofstream(shortcut) << ' ';
  designer.Open();
  User().Later(L"%c{ESC}").Type(L"%tl");
  const auto count = [&] { return history.Load(5), std::to_wstring(history.FileCount()); };
  EXPECT_EQ(designer.Once(L"0", count), L"0");
  User().Later(L"test orvane{ENTER}").Type(L"%ir");
  designer.ExpectShown(L"Notes Orvane test program");
  fs::remove(shortcut);
}

/// What the shell hands over for paths, each with a zero behind it.
WPARAM Dropped(const std::wstring& paths) {
  const std::size_t size = paths.size() * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GHND, sizeof(DROPFILES) + size + sizeof(wchar_t));
  auto* drop = static_cast<DROPFILES*>(GlobalLock(memory));
  drop->pFiles = sizeof *drop;
  drop->fWide = TRUE;
  std::memcpy(drop + 1, paths.data(), size);
  GlobalUnlock(memory);
  return reinterpret_cast<WPARAM>(memory);
}

TEST(Mouse, DragsItemsAndDropsFilesIntoTheMenu) {
  Designer designer;
  designer.Fill();
  designer.Open();
  designer.Do(ID_INSERT_POPUP);
  designer.ExpectShown(L"Notes New popup");
  User::Drag(designer.Line(1), designer.Line(2));
  designer.ExpectShown(L"New popup(Notes)");
  User::Drag(designer.Line(2), designer.Line(2));  // into itself: nothing
  const POINT root = designer.Line(0);
  SetCursorPos(root.x, root.y);
  using namespace std::literals;
  SendMessageW(designer.window->Handle(), WM_DROPFILES,
               Dropped(L"C:\\windows\\win.ini\0C:\\windows\0"s), 0);
  designer.ExpectShown(L"New popup(Notes) win.ini windows");
  EXPECT_TRUE(designer.Root().children[2]->data.IsTypeFolder());
}

TEST(Dividers, AreMovedByMouseAndKeys) {
  Designer designer;
  designer.Fill();
  designer.Open();
  const auto edge = [&] {
    RECT rect{};
    GetWindowRect(designer.Tree(), &rect);
    return POINT{rect.right, rect.bottom};
  };
  const POINT before = edge();
  User::Drag({before.x + 2, before.y - 50}, {before.x + 82, before.y - 90});
  const POINT drawn = edge();
  EXPECT_EQ(drawn.y, before.y);
  EXPECT_NEAR(drawn.x, before.x + 82, 3);
  User().Type(L"^+{LEFT}").Type(L"^+{UP}");
  EXPECT_LT(edge().x, drawn.x);
  EXPECT_LT(edge().y, before.y);
}

TEST(SecondStart, HandsItsFileOverAndBothAreRecentFiles) {
  Designer other(L"other.cfg");
  other.Fill();
  Designer designer;
  designer.program.document.Save(designer.file);
  designer.Open();
  EXPECT_TRUE(designerapp::OneInstance::HandOver(other.file));
  designer.ExpectTitle(L"other.cfg - Orvane Designer");
  designer.ExpectShown(L"Notes");
  COPYDATASTRUCT foreign{1, 2, const_cast<char*>("x")};
  EXPECT_FALSE(
      SendMessageW(designer.window->Handle(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&foreign)));
  designer.Do(ID_FILE_RECENT + 1);
  designer.ExpectTitle(L"menu.cfg - Orvane Designer");
}

TEST(WindowPlace, IsRememberedUnlessTheSettingsSayNo) {
  Designer designer;
  designer.Fill();
  const auto openAndMove = [&](int x) {
    designer.Open();
    RECT rect{};
    GetWindowRect(designer.window->Handle(), &rect);
    SetWindowPos(designer.window->Handle(), nullptr, x, 60, 640, 420, SWP_NOZORDER);
    designer.Close();
    return rect.left;
  };
  openAndMove(50);
  EXPECT_EQ(openAndMove(70), 50);
  designer.program.globals.options.m_bGeneralSaveWindowPos = false;
  openAndMove(90);
  designer.program.globals.options.m_bGeneralSaveWindowPos = true;
  EXPECT_EQ(openAndMove(50), 70);
}

}  // namespace
}  // namespace orvane::test
