#include <gtest/gtest.h>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/Effects.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;

/// A menu whose scripts type, and an edit control of another process to type into.
class Typing : public testing::Test {
 protected:
  Typing() {
    scene.PlainText();
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
    scene.Set(L"ShellCustomActionsFile", scene.Path(L"Actions.ini"));
    WriteDefinition(scene.Path(L"Menu.cfg"),
                    {{0, Item::TypeRoot, 0, {L"Orvane"}},
                     {1, Item::TypeCustomAction, 0, {L"ab+c{{}d{}}{LEFT 2}{x 3}", L"Type"}},
                     {1, Item::TypeFolder, 0, {scene.Path(L"Reports"), L"Reports"}}});
    const std::pair<const wchar_t*, std::wstring> action[] = {{L"Type", L"1"},
                                                              {L"Order", L"1"},
                                                              {L"Description", L"Go there"},
                                                              {L"Exe", HostPath()},
                                                              {L"ExeMatch", L"2"},
                                                              {L"Caption", L"orvane"},
                                                              {L"CaptionMatch", L"1"},
                                                              {L"Class", L"Edit"},
                                                              {L"ClassMatch", L"2"},
                                                              {L"Actions", L"go [orv_item]+1"},
                                                              {L"Options", L"1"}};
    for (const auto& [key, value] : action) {
      WritePrivateProfileStringW(L"go", key, value.c_str(), scene.Path(L"Actions.ini").c_str());
    }
  }

  /// The edit control, once it has the keyboard.
  static HWND Edit() {
    const HWND frame = WaitForWindow(L"#32770", L"Orvane Edit");
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    EXPECT_TRUE(WaitFor([&] {
      return GetForegroundWindow() == frame &&
             GetGUIThreadInfo(GetWindowThreadProcessId(frame, nullptr), &thread) &&
             thread.hwndFocus && thread.hwndFocus != frame;
    }));
    return FindWindowExW(frame, nullptr, L"Edit", nullptr);
  }

  static std::wstring TextOf(HWND edit) {
    wchar_t text[1000] = L"";
    SendMessageW(edit, WM_GETTEXT, 1000, reinterpret_cast<LPARAM>(text));
    return text;
  }

  void Click(const wchar_t* caption, HWND window) {
    RightClick click(scene.Folder(), Select(scene.Folder(), {L"a.txt"}).Get());
    click.Query();
    EXPECT_TRUE(Choose(click, caption, window));
  }

  Apartment apartment;
  Scene scene;
};

TEST_F(Typing, CustomActionTypesIntoTheForegroundWindow) {
  const HostProcess other(L"--edit");
  const HWND edit = Edit();
  Click(L"Type", nullptr);
  EXPECT_EQ(TextOf(edit), L"abC{xxxd}");
}

TEST_F(Typing, WindowActionTypesTheFolderIntoTheWindowThatAsked) {
  const HostProcess other(L"--edit");
  const HWND edit = Edit();
  Click(L"Reports", edit);
  EXPECT_EQ(TextOf(edit), L"go C:\\Orvane Test\\Reports!");
}

}  // namespace
}  // namespace orvane::host
