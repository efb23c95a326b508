#include <gtest/gtest.h>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include <objbase.h>

#include "platform/win32/Shell.h"
#endif

namespace orvane {
namespace {

struct OnMemory {
  memory::Desktop desktop;
  Shell& shell = desktop.shell;
  std::wstring folder = L"C:\\Orvane test";

  OnMemory() {
    desktop.files.AddFolder(folder + L"\\Inner");
    desktop.files.AddFile(folder + L"\\R&D \u00e4\u05d0.txt", "");
  }
};

#ifdef _WIN32
struct OnWindows {
  win32::Shell win32Shell;
  Shell& shell = win32Shell;
  std::wstring folder;

  OnWindows() {
    EXPECT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
    wchar_t path[MAX_PATH];
    GetTempPathW(MAX_PATH, path);
    GetLongPathNameW(path, path, MAX_PATH);
    folder = std::wstring(path) + L"Orvane test";
    CreateDirectoryW(folder.c_str(), nullptr);
    CreateDirectoryW((folder + L"\\Inner").c_str(), nullptr);
    CloseHandle(CreateFileW((folder + L"\\R&D \u00e4\u05d0.txt").c_str(), GENERIC_WRITE, 0, nullptr,
                            CREATE_ALWAYS, 0, nullptr));
  }
  ~OnWindows() {
    DeleteFileW((folder + L"\\R&D \u00e4\u05d0.txt").c_str());
    RemoveDirectoryW((folder + L"\\Inner").c_str());
    RemoveDirectoryW(folder.c_str());
    CoUninitialize();
  }
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class ShellContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
  Shell& shell = m_backEnd.shell;
  const std::wstring& folder = m_backEnd.folder;
};
TYPED_TEST_SUITE(ShellContract, BackEnds, );

TYPED_TEST(ShellContract, PathsAndListsNameTheSameThings) {
  for (const std::wstring& path :
       {this->folder, this->folder + L"\\Inner", this->folder + L"\\R&D \u00e4\u05d0.txt",
        std::wstring(L"C:\\")}) {
    const ItemIdList item = this->shell.Parse(WindowHandle::None, path);
    EXPECT_TRUE(item);
    EXPECT_EQ(this->shell.Path(item), path);
  }
}

TYPED_TEST(ShellContract, NoListForWhatIsNotThere) {
  for (const std::wstring& path :
       {this->folder + L"\\missing", this->folder + L"\\missing\\x.txt", std::wstring(),
        this->folder + std::wstring(1, L'\0') + L"x", std::wstring(L"C:\\<|>")}) {
    EXPECT_FALSE(this->shell.Parse(WindowHandle::None, path)) << testing::PrintToString(path);
  }
}

TYPED_TEST(ShellContract, NamesThingsAsTheUserSeesThem) {
  const std::wstring file = this->folder + L"\\R&D \u00e4\u05d0.txt";
  EXPECT_EQ(this->shell.DisplayName(file).substr(0, 6), L"R&D \u00e4\u05d0");
  EXPECT_EQ(this->shell.DisplayName(this->folder + L"\\Inner"), L"Inner");
  EXPECT_EQ(this->shell.DisplayName(this->shell.Parse(WindowHandle::None, this->folder)),
            L"Orvane test");
  EXPECT_EQ(this->shell.DisplayName(this->folder + L"\\missing"), L"");
  EXPECT_NE(this->shell.DisplayName(std::wstring(L"C:\\")).find(L"C:"), std::wstring::npos);
}

TYPED_TEST(ShellContract, KnowsTheSpecialFolders) {
  const ItemIdList desktop = this->shell.SpecialFolder(WindowHandle::None, 0);
  EXPECT_EQ(desktop, (ItemIdList{{std::byte{0}, std::byte{0}}}));
  EXPECT_NE(this->shell.Path(desktop), L"");
  EXPECT_NE(this->shell.DisplayName(desktop), L"");

  const ItemIdList documents = this->shell.SpecialFolder(WindowHandle::None, 5);
  EXPECT_NE(this->shell.Path(documents), L"");
  EXPECT_NE(this->shell.DisplayName(documents), L"");

  const ItemIdList computer = this->shell.SpecialFolder(WindowHandle::None, 17);
  EXPECT_TRUE(computer);
  EXPECT_EQ(this->shell.Path(computer), L"") << "virtual";
  EXPECT_NE(this->shell.DisplayName(computer), L"");

  for (const std::int32_t csidl : {199, -1, 2147483647}) {
    EXPECT_FALSE(this->shell.SpecialFolder(WindowHandle::None, csidl)) << csidl;
  }
}

TYPED_TEST(ShellContract, NoAnswerForWhatIsNoList) {
  const ItemIdList none;
  const ItemIdList cut{{std::byte{9}, std::byte{0}, std::byte{1}}};
  const ItemIdList small{{std::byte{1}, std::byte{0}, std::byte{0}, std::byte{0}}};
  for (const ItemIdList& item : {none, cut, small}) {
    EXPECT_EQ(this->shell.Path(item), L"");
    EXPECT_EQ(this->shell.DisplayName(item), L"");
  }
}

TEST(MemoryShell, EncodesEveryPath) {
  memory::Desktop desktop;
  for (const std::wstring path :
       {L"C:\\", L"\\\\server\\share", L"\\\\server\\share\\folder\\file.txt", L"\\\\server",
        L"C:\\a\\b c\\d.txt", L"Z:\\x"}) {
    EXPECT_EQ(desktop.shell.Path(memory::Shell::ItemOf(path)), path);
  }
  const std::wstring longPath = L"C:" + std::wstring(30'000, L'x').replace(0, 1, L"\\");
  EXPECT_FALSE(memory::Shell::ItemOf(longPath)) << "one name of 29,999 characters";
}

}  // namespace
}  // namespace orvane
