#include "platform/AnyDesktop.h"
#ifdef _WIN32
#include "win32/NativeHandles.h"
#endif

namespace orvane {
namespace {

/// The shell's names and icons of a folder with a few things in it.
class ShellContract : public AnyDisk {
 protected:
  ShellContract() {
    MakeFolder(L"Inner");
    for (const wchar_t* name : {L"R&D \u00e4\u05d0.txt", L"b.txt"}) Put(name);
  }
  ~ShellContract() override { EXPECT_EQ(m_memory.icons.Live(), 0u); }

  ItemIdList Parse(const std::wstring& path) { return shell.Parse(WindowHandle::None, path); }
  ItemIdList Special(std::int32_t csidl) { return shell.SpecialFolder(WindowHandle::None, csidl); }

  const std::wstring m_file = At(L"R&D \u00e4\u05d0.txt");
  Shell& shell = m_platform.shell;
  ShellIcons& icons = m_platform.icons;
};

INSTANTIATE_TEST_SUITE_P(, ShellContract, EveryDesktop(), NameOfDesktop);

TEST_P(ShellContract, PathsAndListsNameTheSameThings) {
  for (const std::wstring& path : {m_root, At(L"Inner"), m_file, std::wstring(L"C:\\")}) {
    EXPECT_EQ(shell.Path(Parse(path)), path);
  }
  for (const std::wstring& path :
       {At(L"missing"), At(L"missing\\x.txt"), std::wstring(),
        m_root + std::wstring(1, L'\0') + L"x", std::wstring(L"C:\\<|>")}) {
    EXPECT_FALSE(Parse(path)) << testing::PrintToString(path);
  }
}

TEST_P(ShellContract, NamesThingsAsTheUserSeesThem) {
  EXPECT_EQ(shell.DisplayName(m_file).substr(0, 6), L"R&D \u00e4\u05d0");
  EXPECT_EQ(shell.DisplayName(Parse(At(L"Inner"))), L"Inner");
  EXPECT_EQ(shell.DisplayName(At(L"missing")), L"");
  EXPECT_NE(shell.DisplayName(std::wstring(L"C:\\")).find(L"C:"), std::wstring::npos);
}

TEST_P(ShellContract, KnowsTheSpecialFolders) {
  constexpr std::int32_t Desktop = 0, Documents = 5, Computer = 17;
  EXPECT_EQ(Special(Desktop), (ItemIdList{{std::byte{0}, std::byte{0}}}));
  for (const std::int32_t csidl : {Desktop, Documents}) {
    EXPECT_NE(shell.Path(Special(csidl)), L"");
    EXPECT_NE(shell.DisplayName(Special(csidl)), L"");
  }
  EXPECT_TRUE(Special(Computer));
  EXPECT_EQ(shell.Path(Special(Computer)), L"") << "virtual";
  EXPECT_NE(shell.DisplayName(Special(Computer)), L"");
  for (const std::int32_t csidl : {199, -1, 2147483647}) EXPECT_FALSE(Special(csidl)) << csidl;
}

TEST_P(ShellContract, NoAnswerForWhatIsNoList) {
  const ItemIdList none;
  const ItemIdList cut{{std::byte{9}, std::byte{0}, std::byte{1}}};
  const ItemIdList small{{std::byte{1}, std::byte{0}, std::byte{0}, std::byte{0}}};
  for (const ItemIdList& item : {none, cut, small}) {
    EXPECT_EQ(shell.Path(item), L"");
    EXPECT_EQ(shell.DisplayName(item), L"");
  }
}

bool Same(const std::optional<SystemIcon>& one, const std::optional<SystemIcon>& other) {
  return one && other && one->imageList == other->imageList && one->index == other->index;
}

TEST_P(ShellContract, FilesOfOneKindShareTheirIcon) {
  EXPECT_TRUE(Same(icons.Find(m_file), icons.Find(At(L"b.txt"))));
  EXPECT_TRUE(Same(icons.Find(m_file), icons.FindFileKind(L".txt")));
  EXPECT_TRUE(Same(icons.Find(At(L"Inner")), icons.FindFolderKind()));
  EXPECT_FALSE(Same(icons.FindFolderKind(), icons.FindFileKind(L".txt")));
  EXPECT_TRUE(icons.FindFileKind(L""));
  EXPECT_FALSE(icons.Find(At(L"nothing.txt")));
  EXPECT_FALSE(icons.Find(L""));
}

TEST_P(ShellContract, ProgramsAndShortcutsHaveIconsOfTheirOwn) {
  for (const wchar_t* kind : {L".exe", L".lnk"}) EXPECT_TRUE(icons.HasOwnIcons(kind)) << kind;
  for (const wchar_t* kind : {L".txt", L".no-such-kind", L""}) {
    EXPECT_FALSE(icons.HasOwnIcons(kind)) << kind;
  }
}

TEST_P(ShellContract, IconsAreTakenAtTheirSizeAndFreed) {
  const auto place = icons.FindFolderKind();
  ASSERT_TRUE(place);
  for (const std::int32_t size : {16, 32, 160}) {
    const UniqueIcon icon(icons, icons.Take(*place, size));
    EXPECT_TRUE(icon);
#ifdef _WIN32
    if (!IsReal() || size > 32) continue;
    ICONINFO info{};
    GetIconInfo(win32::ToNative<HICON>(icon.get()), &info);
    BITMAP bitmap{};
    GetObjectW(info.hbmMask, sizeof bitmap, &bitmap);
    DeleteObject(info.hbmMask);
    DeleteObject(info.hbmColor);
    EXPECT_EQ(bitmap.bmWidth, size);
#endif
  }
}

}  // namespace
}  // namespace orvane
