#ifdef _WIN32

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "commands/ClipboardLines.h"
#include "commands/frmClipboardProgress.h"
#include "memory/DataObject.h"
#include "win32/FileSystem.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

/// A real tree of so many files, gone with the object.
struct Tree {
  explicit Tree(int files) : root(fs::temp_directory_path() / L"orvane selection tree") {
    constexpr int FilesPerFolder = 100;
    fs::remove_all(root);
    for (int i = 0; i < files; ++i) {
      const fs::path folder = root / (L"Folder " + std::to_wstring(i / FilesPerFolder));
      if (i % FilesPerFolder == 0) fs::create_directories(folder);
      std::ofstream(folder / (L"A file of usual length " + std::to_wstring(i) + L".txt"));
    }
  }
  ~Tree() {
    std::error_code ignored;
    fs::remove_all(root, ignored);
  }

  fs::path root;
};

/// The find calls of a walk over the folder.
void FindAll(const std::wstring& folder) {
  WIN32_FIND_DATAW found;
  const HANDLE find = FindFirstFileW((folder + L"\\*.*").c_str(), &found);
  if (find == INVALID_HANDLE_VALUE) return;
  do {
    const std::wstring_view name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
      FindAll(folder + L"\\" + found.cFileName);
  } while (FindNextFileW(find, &found));
  FindClose(find);
}

/// The length of the tree's clipboard list.
std::ptrdiff_t ListAll(const std::wstring& folder) {
  win32::FileSystem files;
  memory::DataObject selection{folder};
  ClipboardLines lines;
  frmClipboardProgress(files, &selection, lines, false, L"").BuildSelectionList(true);
  return std::ranges::count(lines.Text(), L'\n');
}

double Milliseconds(const auto& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

TEST(SelectionListOnDisk, ListsEveryFile) {
  const Tree tree(250);
  EXPECT_EQ(ListAll(tree.root.wstring()), 1 + 250 + 3);
}

/// A measurement, run by hand: the list against its find calls, the best of three rounds in turn.
class SelectionListCost : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(, SelectionListCost, testing::Values(1'000, 10'000, 100'000));

TEST_P(SelectionListCost, DISABLED_BesideItsFindCallsOnDisk) {
  const Tree tree(GetParam());
  const std::wstring root = tree.root.wstring();
  double calls = 1e9;
  double list = 1e9;
  for (int round = 0; round < 3; ++round) {
    calls = std::min(calls, Milliseconds([&] { FindAll(root); }));
    list = std::min(list, Milliseconds([&] { ListAll(root); }));
  }
  std::printf("%7d files: find calls %.1f ms, list %.1f ms, %.2f times\n", GetParam(), calls, list,
              list / calls);
}

}  // namespace
}  // namespace orvane

#endif
