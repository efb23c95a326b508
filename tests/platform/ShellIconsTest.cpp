#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include <objbase.h>

#include "common/AnyGdi.h"
#include "platform/win32/ShellIcons.h"
#endif

namespace orvane::test {
namespace {

class ShellIconsTest : public testing::TestWithParam<const char*> {
 protected:
  ShellIconsTest() {
    m_desktop.files.AddFile(L"C:\\icons\\a.txt");
    m_desktop.files.AddFile(L"C:\\icons\\b.txt");
    m_desktop.files.AddFolder(L"C:\\icons\\folder");
#ifdef _WIN32
    CoInitialize(nullptr);
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    if (IsReal()) m_folder = std::wstring(temp) + L"orvane icons";
    CreateDirectoryW(m_folder.c_str(), nullptr);
    CreateDirectoryW((m_folder + L"\\folder").c_str(), nullptr);
    for (const wchar_t* name : {L"\\a.txt", L"\\b.txt"})
      CloseHandle(CreateFileW((m_folder + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              0, nullptr));
#endif
  }
  ~ShellIconsTest() override {
#ifdef _WIN32
    CoUninitialize();
#endif
    EXPECT_EQ(m_desktop.icons.Live(), 0u);
  }

  bool IsReal() const {
    return std::string(GetParam()) == "win32";
  }
  ShellIcons& Icons() {
#ifdef _WIN32
    if (IsReal()) return m_real;
#endif
    return m_desktop.icons;
  }

  memory::Desktop m_desktop;
  std::wstring m_folder = L"C:\\icons";
#ifdef _WIN32
  win32::ShellIcons m_real;
#endif
};

INSTANTIATE_TEST_SUITE_P(, ShellIconsTest,
#ifdef _WIN32
                         testing::Values("memory", "win32"),
#else
                         testing::Values("memory"),
#endif
                         [](const auto& info) { return info.param; });

bool Same(const std::optional<SystemIcon>& one, const std::optional<SystemIcon>& other) {
  return one && other && one->imageList == other->imageList && one->index == other->index;
}

TEST_P(ShellIconsTest, FilesOfOneKindShareTheirPlace) {
  ShellIcons& icons = Icons();
  EXPECT_TRUE(Same(icons.Find(m_folder + L"\\a.txt"), icons.Find(m_folder + L"\\b.txt")));
  EXPECT_TRUE(Same(icons.Find(m_folder + L"\\a.txt"), icons.FindFileKind(L".txt")));
  EXPECT_TRUE(Same(icons.Find(m_folder + L"\\folder"), icons.FindFolderKind()));
  EXPECT_FALSE(Same(icons.FindFolderKind(), icons.FindFileKind(L".txt")));
  EXPECT_TRUE(icons.FindFileKind(L""));
  EXPECT_FALSE(icons.Find(m_folder + L"\\nothing.txt"));
  EXPECT_FALSE(icons.Find(L""));
}

TEST_P(ShellIconsTest, ProgramsAndShortcutsHaveTheirOwn) {
  EXPECT_TRUE(Icons().HasOwnIcons(L".exe"));
  EXPECT_TRUE(Icons().HasOwnIcons(L".lnk"));
  EXPECT_FALSE(Icons().HasOwnIcons(L".txt"));
  EXPECT_FALSE(Icons().HasOwnIcons(L".no-such-kind"));
  EXPECT_FALSE(Icons().HasOwnIcons(L""));
}

TEST_P(ShellIconsTest, IconsAreTakenAndFreed) {
  ShellIcons& icons = Icons();
  const auto place = icons.FindFolderKind();
  ASSERT_TRUE(place);
  for (std::int32_t size : {16, 24, 32, 160})
    EXPECT_TRUE(UniqueIcon(icons, icons.Take(*place, size)));
}

#ifdef _WIN32
TEST(RealIcons, LargerOnesAreLarger) {
  CoInitialize(nullptr);
  win32::ShellIcons icons;
  const auto place = icons.FindFolderKind();
  ASSERT_TRUE(place);
  const auto width = [&](std::int32_t size) {
    const UniqueIcon icon(icons, icons.Take(*place, size));
    ICONINFO info{};
    GetIconInfo(win32::ToNative<HICON>(icon.get()), &info);
    BITMAP bitmap{};
    GetObjectW(info.hbmMask, sizeof bitmap, &bitmap);
    DeleteObject(info.hbmMask);
    DeleteObject(info.hbmColor);
    return bitmap.bmWidth;
  };
  EXPECT_EQ(width(16), 16);
  EXPECT_EQ(width(32), 32);
  CoUninitialize();
}
#endif

}  // namespace
}  // namespace orvane::test
