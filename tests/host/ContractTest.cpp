// The shell's side of the bargain in all its forms, a row each.

#include <gtest/gtest.h>

#include <fstream>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/DialogScript.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;

class Contract : public testing::Test {
 protected:
  Contract() {
    scene.PlainText();
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
    WriteDefinition(scene.Path(L"Menu.cfg"), {{0, Item::TypeRoot, 0, {L"Orvane"}},
                                              {1, Item::TypeFile, 0, {L"C:\\a.txt", L"&Editor"}},
                                              {1, Item::TypePopupMenu, 0, {L"&Tools"}},
                                              {3, Item::TypeCustomAction, 0, {L"", L"Nothing"}}});
  }

  Apartment apartment;
  Scene scene;
  DialogScript user{{}, L"orvane.dll"};  // answers message boxes
};

TEST_F(Contract, NoFlagChangesWhatIsBuilt) {
  RightClick click(scene.Folder(), nullptr);
  const HRESULT count = click.Query();
  const std::wstring menu = click.Text();
  std::vector<UINT> combinations = {0xFFFFFFFF};
  for (UINT one = 1; one <= 0x20000; one <<= 1)
    for (UINT other = one; other <= 0x20000; other <<= 1) combinations.push_back(one | other);
  for (const UINT flags : combinations) {
    click.NewMenu();
    EXPECT_EQ(click.handler->QueryContextMenu(click.menu, 0, 1, 32767, flags), count) << flags;
    EXPECT_EQ(click.Text(), menu) << flags;
  }
}

TEST_F(Contract, RangesOfEverySize) {
  RightClick click(scene.Folder(), Select(scene.Folder(), {L"a.txt"}).Get());
  const auto count = static_cast<UINT>(click.Query());
  const std::wstring menu = click.Text();
  const struct {
    UINT first, last;
    HRESULT count;
    bool whole;
    std::size_t boxes;
  } rows[] = {{100, 99, 0, false, 1},  // nothing lent
              {100, 100, 0, false, 1},
              {0, 0, 0, false, 1},
              {100, 98 + count, static_cast<HRESULT>(count), true, 0},  // exactly enough
              {100, 97 + count, static_cast<HRESULT>(count - 1), false, 0},
              {0, 0x7FFFFFFF, static_cast<HRESULT>(count), true, 0},
              {1, 0xFFFFFFFF, static_cast<HRESULT>(count), true, 0},
              {0xFFFFFFF0, 0xFFFFFFFF, 0, false, 1}};
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << row.first << " to " << row.last);
    click.NewMenu();
    user.boxes.clear();
    EXPECT_EQ(click.Query(row.first, row.last), row.count);
    EXPECT_EQ(click.Text() == menu, row.whole);
    EXPECT_EQ(user.boxes.size(), row.boxes);
  }
}

TEST_F(Contract, ASecondSelectionTakesTheFirstOnesPlace) {
  RightClick click(scene.Folder(), Select(scene.Folder(), {L"a.txt"}).Get());
  ComPtr<IShellExtInit> init;
  click.handler->QueryInterface(IID_PPV_ARGS(init.GetAddressOf()));
  EXPECT_EQ(init->Initialize(ParsePath(scene.Folder()).get(), nullptr, nullptr), S_OK);
  click.Query();
  RightClick background(scene.Folder(), nullptr);
  background.Query();
  EXPECT_EQ(click.Text(), background.Text());
}

TEST(LongContract, SelectionsOfEverySizeAndTheHabitOfAskingWithSixteenFirst) {
  const Apartment apartment;
  Scene scene;
  scene.PlainText();
  std::vector<std::wstring> names;
  for (int i = 0; i < 5000; ++i) {
    names.push_back(std::to_wstring(i) + L".txt");
    std::ofstream(std::filesystem::path(scene.Path(names.back().c_str()))) << "x";
  }
  const auto select = [&](std::ptrdiff_t count) {
    return Select(scene.Folder(), {names.begin(), names.begin() + count});
  };
  RightClick sixteen(scene.Folder(), select(16).Get());
  sixteen.Query();
  for (const std::ptrdiff_t count : {1, 2, 17, 5000}) {
    RightClick all(scene.Folder(), select(count).Get());
    EXPECT_EQ(all.initialized, S_OK);
    EXPECT_GT(all.Query(), 0);
    EXPECT_EQ(all.Text() == sixteen.Text(), count > 1) << count;
  }
}

}  // namespace
}  // namespace orvane::host
