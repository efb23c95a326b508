#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/Effects.h"
#include "host/MenuText.h"
#include "menudata/clsOrvaneData.h"
#include "support/Scrambler.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;

constexpr wchar_t Extension[] = L".orvanetest";

/// A kind of document that this program opens.
class DocumentKind {
 public:
  explicit DocumentKind(const std::wstring& record) {
    const std::wstring command = L'"' + HostPath() + L"\" --write \"" + record + L"\" \"%1\"";
    RegSetKeyValueW(HKEY_CLASSES_ROOT, Extension, nullptr, REG_SZ, L"OrvaneTest", 22);
    RegSetKeyValueW(HKEY_CLASSES_ROOT, L"OrvaneTest\\shell\\open\\command", nullptr, REG_SZ,
                    command.c_str(), static_cast<DWORD>((command.size() + 1) * sizeof(wchar_t)));
  }
  ~DocumentKind() {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, Extension);
    RegDeleteTreeW(HKEY_CLASSES_ROOT, L"OrvaneTest");
  }
  DocumentKind(const DocumentKind&) = delete;
  DocumentKind& operator=(const DocumentKind&) = delete;
};

class History : public testing::Test {
 protected:
  History() {
    scene.PlainText();
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
  }

  std::wstring PathOf(const std::wstring& name) const {
    return scene.Path((name + Extension).c_str());
  }

  /// Whether the list entry of the document holds a zero.
  bool HoldsZero(const std::wstring& name) const {
    const std::wstring entry = L"6,0,\"" + PathOf(name) + L"\",\"" + name + L'"';
    std::vector<std::byte> bytes;
    for (const wchar_t character : entry) bytes.push_back(static_cast<std::byte>(character));
    Scrambler(L"QWXKRTZPV").Scramble(bytes);
    return std::ranges::find(bytes, std::byte{0}) != bytes.end();
  }

  /// A document's name whose list entry holds a zero.
  std::wstring NameWithZero() const {
    for (std::size_t length = 1; length < 40; ++length) {
      for (wchar_t letter = L'a'; letter <= L'z'; ++letter) {
        const std::wstring name(length, letter);
        if (HoldsZero(name)) return name;
      }
    }
    return {};
  }

  /// Opens the documents' entry of that caption from a menu of its own.
  void Open(const std::wstring& caption, const std::wstring& name) {
    std::filesystem::remove(record);
    RightClick click(scene.Folder(), nullptr);
    click.Query();
    EXPECT_TRUE(Choose(click, caption)) << MenuText(click.menu);
    EXPECT_TRUE(WaitForRecord(record).ends_with(L'\n' + PathOf(name) + L'\n'));
  }

  Apartment apartment;
  Scene scene;
  const std::wstring record = scene.Path(L"opened.out");
  const DocumentKind kind{record};
};

TEST_F(History, OpenedDocumentsAreThereOnTheNextRightClick) {
  const std::wstring plain = L"Plan", zero = NameWithZero();
  ASSERT_NE(zero, L"");
  std::vector<DefinitionItem> items = {{0, Item::TypeRoot, 0, {L"Orvane"}}};
  for (const std::wstring& name : {plain, zero}) {
    std::ofstream(std::filesystem::path(PathOf(name))) << "x";
    items.push_back({1, Item::TypeFile, 0, {PathOf(name), name}});
  }
  WriteDefinition(scene.Path(L"Menu.cfg"), items);

  Open(plain, plain);
  Open(zero, zero);
  RightClick click(scene.Folder(), nullptr);
  click.Query();
  const std::wstring menu = MenuText(click.menu);
  EXPECT_NE(menu.find(L"&1 " + zero), std::wstring::npos) << menu;
  EXPECT_NE(menu.find(L"&2 " + plain), std::wstring::npos) << menu;
  Open(L"&1 " + zero, zero);
}

}  // namespace
}  // namespace orvane::host
