#ifdef _WIN32
#include <gtest/gtest.h>
#include <ole2.h>
#include <shlobj.h>

#include <fstream>
#include <set>

#include "platform/ScratchFolder.h"
#include "win32/ComPointer.h"
#include "win32/FolderWalk.h"
#include "win32/NativePath.h"
#include "win32/Patience.h"
#include "win32/ShellIcons.h"

namespace orvane::win32 {
namespace {

TEST(Win32Paths, TellsSharesFromTheRest) {
  for (const wchar_t* path : {L"\\\\server\\share\\a", L"\\\\?\\UNC\\server\\share"}) {
    EXPECT_TRUE(IsOnNetwork(path)) << path;
  }
  for (const wchar_t* path :
       {L"\\\\?\\C:\\a", L"\\\\.\\pipe\\a", L"C:\\a", L"relative\\a", L"", L"\\\\?\\"}) {
    EXPECT_FALSE(IsOnNetwork(path)) << path;
  }
}

TEST(Win32Paths, LiftsTheLimitOnlyWhereItIsNeeded) {
  const std::wstring name = L"\\" + std::wstring(250, L'n');
  EXPECT_EQ(NativePath(L"C:\\a"), L"C:\\a");
  EXPECT_EQ(NativePath(L"C:" + name), L"\\\\?\\C:" + name);
  EXPECT_EQ(NativePath(L"C:\\a/..\\." + name), L"\\\\?\\C:" + name);
  EXPECT_EQ(NativePath(L"\\\\server\\share" + name), L"\\\\?\\UNC\\server\\share" + name);
  EXPECT_EQ(NativePath(L"\\\\?\\C:" + name), L"\\\\?\\C:" + name);
}

TEST(Win32FolderWalk, FetchesANetworkFolderPieceByPiece) {
  const ScratchFolder scratch;
  const std::wstring folder = scratch.Path().wstring();
  for (int i = 0; i < 600; ++i) std::ofstream(scratch.Path() / std::to_wstring(i));
  const Patience user{Patience::Endless, [] { return true; }};
  const auto listing = MakeListing(FolderWalk(folder + L"\\*"), folder, &user);
  std::set<std::wstring> names;
  for (FoundFile found; listing->Next(found);) names.insert(found.name);
  EXPECT_EQ(names.size(), 600u);
  EXPECT_TRUE(listing->IsWhole());
  EXPECT_EQ(FolderWalk(folder + L"\\none\\*").Failure(), DWORD{ERROR_PATH_NOT_FOUND});

  const Patience none = 0;
  const auto silent = MakeListing(FolderWalk(folder + L"\\*"), folder, &none);
  FoundFile found;
  EXPECT_FALSE(silent->Next(found) || silent->Next(found));
  EXPECT_FALSE(silent->IsWhole());
}

TEST(Win32ShellIcons, ReadWhereAShortcutLeads) {
  ASSERT_TRUE(SUCCEEDED(OleInitialize(nullptr)));
  {
    const ScratchFolder scratch;
    const std::wstring link = (scratch.Path() / "a.lnk").wstring();
    ComPointer<IShellLinkW> shortcut;
    ComPointer<IPersistFile> file;
    ASSERT_EQ(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                               reinterpret_cast<void**>(shortcut.Out())),
              S_OK);
    ASSERT_EQ(shortcut->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(file.Out())),
              S_OK);
    shortcut->SetPath(L"C:\\windows\\notepad.exe");
    shortcut->SetIconLocation(L"\\\\dead\\share\\a.ico", 0);
    ASSERT_EQ(file->Save(link.c_str(), TRUE), S_OK);
    const std::vector<std::wstring> places = ShellIcons().LeadsTo(link);
    ASSERT_EQ(places.size(), 2u);
    EXPECT_TRUE(places[0].ends_with(L"notepad.exe")) << places[0];
    EXPECT_TRUE(IsOnNetwork(places[1])) << places[1];

    const auto internet = scratch.Path() / "b.url";
    std::ofstream(internet) << "[InternetShortcut]\r\nIconFile=\\\\dead\\share\\b.ico\r\n";
    EXPECT_EQ(ShellIcons().LeadsTo(internet.wstring()),
              std::vector<std::wstring>{L"\\\\dead\\share\\b.ico"});
    EXPECT_TRUE(ShellIcons().LeadsTo(L"C:\\windows\\notepad.exe").empty());
  }
  OleUninitialize();
}

TEST(Win32Patience, LeavesSlowWorkToItself) {
  const HANDLE ended = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  const DWORD start = GetTickCount();
  const Patience patience = 50;
  EXPECT_FALSE(RunWithPatience([ended] { Sleep(400), SetEvent(ended); }, patience, L"\\\\a\\b"));
  EXPECT_LT(GetTickCount() - start, 350u);
  EXPECT_EQ(WaitForSingleObject(ended, 5'000), WAIT_OBJECT_0);
  CloseHandle(ended);
  EXPECT_TRUE(patience.HasRunOut());
  EXPECT_FALSE(RunWithPatience([] {}, patience, L"\\\\?\\UNC\\a\\c")) << "the same server";
  EXPECT_TRUE(RunWithPatience([] {}, patience, L"\\\\ab\\b")) << "another one";
  const DWORD cancelled = GetTickCount();
  const Patience user{Patience::Endless, [] { return false; }};
  EXPECT_FALSE(RunWithPatience([] { Sleep(1'000); }, user));
  EXPECT_FALSE(user.HasRunOut());
  EXPECT_LT(GetTickCount() - cancelled, 500u);
  EXPECT_EQ(AskWithPatience([] { return 7; }, 5'000, 0), 7);
  EXPECT_EQ(AskWithPatience([] { return Sleep(200), 7; }, 10, 0), 0);
}

}  // namespace
}  // namespace orvane::win32
#endif
