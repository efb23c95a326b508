#include <gtest/gtest.h>

#include <filesystem>

#include "customactions/ActionsFile.h"
#include "customactions/CheckAction.h"
#include "designerapp/Designer.h"

// The custom actions as a user at the keyboard edits them.

namespace orvane::test {
namespace {

/// A designer whose settings name an actions file of its own, not there yet.
struct ActionsDesigner : Designer {
  ActionsDesigner() {
    std::filesystem::remove(path);
    program.globals.options.m_szShellCustomActionsFile = path;
    Fill();
    Open();
  }

  /// The file's actions in the order in which they are tried.
  std::vector<CustomAction> Saved() {
    ActionFindings findings;
    return ReadActions(ActionsFile(program.platform.files, program.globals.codePage, path),
                       findings);
  }

  std::wstring path = (std::filesystem::temp_directory_path() / L"actions.ini").wstring();
};

TEST(Actions, AreMadeMovedAndTakeAWindowFromTheList) {
  ActionsDesigner designer;
  const HWND target = CreateWindowW(L"Static", L"Target", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                    200, 100, nullptr, nullptr, nullptr, nullptr);
  SetForegroundWindow(designer.window->Handle());
  User().Type(
      L"%ta%nfirst{TAB}what it is for%rab~"
      L"%nsecond%ry%u"           // before the first one
      L"%dthird%p{DOWN}{TAB}C:"  // the copy of the second begins with a drive
      L"%a{UP}%k{DOWN}{ENTER}"   // the second gets the target's class
      L"%v%o");
  const auto names = [&] {
    std::wstring line;
    for (const CustomAction& action : designer.Saved())
      line += action.m_szId + L"=" + action.m_szActions + L' ';
    return line;
  };
  const std::wstring expected = L"second=y third=y first=ab~ ";
  ASSERT_EQ(designer.Once(expected, names), expected);
  const std::vector<CustomAction> saved = designer.Saved();
  EXPECT_EQ(saved[0].m_szClass, L"Static");
  EXPECT_EQ(saved[0].m_szCaption, L"Target");
  EXPECT_EQ(saved[0].m_lClassMatch, CustomAction::OptionMatchExact);
  EXPECT_EQ(saved[1].m_lExeMatch, CustomAction::OptionMatchPartial);
  EXPECT_EQ(saved[1].m_szExe, L"C:");
  EXPECT_EQ(saved[2].m_szDescription, L"what it is for");
  EXPECT_TRUE(saved[2].IsOptionEnabled());
  DestroyWindow(target);
}

}  // namespace
}  // namespace orvane::test
