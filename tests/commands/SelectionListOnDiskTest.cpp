#ifdef _WIN32

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

#include "commands/frmClipboardProgress.h"
#include "platform/memory/Clipboard.h"
#include "platform/memory/DataObject.h"
#include "platform/win32/FileSystem.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

/// A real tree of so many files, gone with the object.
class Tree {
 public:
  explicit Tree(int files) : m_root(fs::temp_directory_path() / L"orvane selection tree") {
    constexpr int FilesPerFolder = 100;
    fs::remove_all(m_root);
    for (int i = 0; i < files; ++i) {
      const fs::path folder = m_root / (L"Folder " + std::to_wstring(i / FilesPerFolder));
      if (i % FilesPerFolder == 0) fs::create_directories(folder);
      std::ofstream(folder / (L"A file of usual length " + std::to_wstring(i) + L".txt"));
    }
  }
  ~Tree() {
    std::error_code ignored;
    fs::remove_all(m_root, ignored);
  }

  std::wstring Root() const { return m_root.wstring(); }

 private:
  fs::path m_root;
};

/// The find calls of a walk over the folder; the number of entries.
std::size_t FindAll(const std::wstring& folder) {
  WIN32_FIND_DATAW found;
  const HANDLE find = FindFirstFileW((folder + L"\\*.*").c_str(), &found);
  if (find == INVALID_HANDLE_VALUE) return 0;
  std::size_t count = 0;
  do {
    const std::wstring_view name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    ++count;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
      count += FindAll(folder + L"\\" + found.cFileName);
  } while (FindNextFileW(find, &found));
  FindClose(find);
  return count;
}

double Milliseconds(const auto& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

/// Takes the text and does nothing with it.
class NoClipboard : public Clipboard {
 public:
  bool Clear() override { return true; }
  bool SetText(const std::wstring& text) override {
    length = text.size();
    return true;
  }

  std::size_t length = 0;
};

/// The clipboard list of the tree.
void List(const std::wstring& root, Clipboard& clipboard) {
  win32::FileSystem files;
  memory::DataObject selection{root};
  frmClipboardProgress form(files, clipboard);
  form.m_pSelection = &selection;
  form.BuildSelectionList(true);
}

TEST(SelectionListOnDisk, ListsEveryFile) {
  const Tree tree(250);
  memory::Effects effects;
  memory::Faults faults;
  memory::Clipboard clipboard(effects, faults);
  List(tree.Root(), clipboard);
  const std::wstring& lines = *clipboard.text;
  EXPECT_EQ(std::ranges::count(lines, L'\n'), 1 + 250 + 3);
  EXPECT_NE(lines.find(tree.Root() + L"\\Folder 2\\A file of usual length 249.txt\r\n"),
            std::wstring::npos);
}

/// A measurement, run by hand: the list against its find calls, medians of five rounds in turn.
class SelectionListOnDiskCost : public testing::TestWithParam<int> {};

TEST_P(SelectionListOnDiskCost, DISABLED_BesideItsFindCalls) {
  const Tree tree(GetParam());
  FindAll(tree.Root());
  NoClipboard clipboard;
  std::vector<double> calls;
  std::vector<double> list;
  for (int round = 0; round < 5; ++round) {
    calls.push_back(Milliseconds([&] { FindAll(tree.Root()); }));
    list.push_back(Milliseconds([&] { List(tree.Root(), clipboard); }));
  }
  std::ranges::sort(calls);
  std::ranges::sort(list);
  std::printf("%7d files: find calls %.1f ms, list %.1f ms, %.2f times\n", GetParam(), calls[2],
              list[2], list[2] / calls[2]);
  std::fflush(stdout);
}

INSTANTIATE_TEST_SUITE_P(Sizes, SelectionListOnDiskCost, testing::Values(1'000, 10'000, 100'000));

}  // namespace
}  // namespace orvane

#endif
