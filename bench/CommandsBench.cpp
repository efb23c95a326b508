// The selection list: over the selected names alone, and over a tree behind the progress window,
// against a loop that makes the same find calls and nothing else.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "commands/ClipboardLines.h"
#include "commands/TaskLists.h"
#include "commands/frmClipboardProgress.h"
#include "memory/DataObject.h"
#include "memory/Desktop.h"

namespace orvane {
namespace {

constexpr int FilesPerFolder = 100;

/// Lets the allocator keep its pages from one round to the next: on a virtual machine fetching them
/// anew costs more than everything that is measured here.
void KeepPages() {
#ifdef __GLIBC__
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, 1 << 30);
#endif
}

/// A desktop with a tree of so many files under C:\Tree.
struct Tree {
  explicit Tree(std::int64_t files) {
    for (std::int64_t i = 0; i < files; ++i) {
      desktop.files.AddFile(L"C:\\Tree\\Folder " + std::to_wstring(i / FilesPerFolder) +
                            L"\\A file of usual length " + std::to_wstring(i) + L".txt");
    }
  }

  memory::Desktop desktop;
  memory::DataObject selection{L"C:\\Tree"};
};

memory::DataObject Names(std::int64_t count) {
  FileNames names;
  for (std::int64_t i = 0; i < count; ++i)
    names.Add(L"C:\\Documents\\A file of usual length " + std::to_wstring(i) + L".txt");
  return memory::DataObject(names);
}

clsOrvaneData Task() {
  clsOrvaneData task;
  task.m_lType = clsOrvaneData::TypeSelectionTask;
  task.m_lSelection_Options = clsOrvaneData::SelectionOptions_QIS;
  task.m_szSelection_CmdSuffix = L" ";
  task.m_szSelection_FileSuffix = L"\r\n";
  return task;
}

std::size_t Build(memory::Desktop& desktop, memory::DataObject& selection,
                  const clsOrvaneData* task, bool recursive) {
  const auto build = [&](NameList& list) {
    frmClipboardProgress(desktop.files, &selection, list, false, L"").BuildSelectionList(recursive);
  };
  if (!task) {
    ClipboardLines lines;
    build(lines);
    return lines.Text().size();
  }
  TaskLists lists(*task, false);
  build(lists);
  return lists.File().size();
}

/// What cannot be done without: a copy of the selection, and the two texts made of it.
void BM_TakeAndAppendNames(benchmark::State& state) {
  KeepPages();
  memory::DataObject selection = Names(state.range(0));
  for (auto _ : state) {
    FileNames names;
    selection.Files(names);
    std::wstring commandLine;
    std::wstring file;
    for (std::wstring_view rest = names.All(); !rest.empty();) {
      const std::wstring_view name = FileNames::Take(rest);
      commandLine.append(name).append(L" ");
      file.append(name).append(L"\r\n");
    }
    benchmark::DoNotOptimize(commandLine.data());
    benchmark::DoNotOptimize(file.data());
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_TakeAndAppendNames)
    ->RangeMultiplier(10)
    ->Range(1'000, 100'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void BM_SelectionListOfNames(benchmark::State& state) {
  KeepPages();
  memory::Desktop desktop;
  memory::DataObject selection = Names(state.range(0));
  const clsOrvaneData task = Task();
  for (auto _ : state) benchmark::DoNotOptimize(Build(desktop, selection, &task, false));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_SelectionListOfNames)
    ->RangeMultiplier(10)
    ->Range(1'000, 100'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

/// Makes the find calls of a walk over the tree, and gives `take` every path.
template <class Take>
void FindAll(FileSystem& files, std::wstring folder, Take take) {
  std::vector<std::wstring> folders = {std::move(folder)};
  FoundFile file;
  std::wstring path;
  while (!folders.empty()) {
    const std::wstring parent = std::move(folders.back()) + L"\\";
    folders.pop_back();
    const auto listing = files.List(parent, 1000);
    while (listing->Next(file)) {
      path.assign(parent).append(file.name);
      take(path);
      if ((file.attributes & FileAttribute::Directory) != 0) folders.push_back(path);
    }
  }
}

void BM_FindLoopOverTree(benchmark::State& state) {
  KeepPages();
  Tree tree(state.range(0));
  for (auto _ : state) {
    FindAll(tree.desktop.files, L"C:\\Tree",
            [](const std::wstring& path) { benchmark::DoNotOptimize(path.data()); });
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_FindLoopOverTree)
    ->RangeMultiplier(10)
    ->Range(1'000, 100'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

/// The same calls, and the text that cannot be done without.
void BM_FindAndAppendOverTree(benchmark::State& state) {
  KeepPages();
  Tree tree(state.range(0));
  for (auto _ : state) {
    std::wstring lines;
    FindAll(tree.desktop.files, L"C:\\Tree",
            [&](const std::wstring& path) { lines.append(path).append(L"\r\n"); });
    benchmark::DoNotOptimize(lines.data());
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_FindAndAppendOverTree)
    ->RangeMultiplier(10)
    ->Range(1'000, 100'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void BM_SelectionListOfTree(benchmark::State& state) {
  KeepPages();
  Tree tree(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(Build(tree.desktop, tree.selection, nullptr, true));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_SelectionListOfTree)
    ->RangeMultiplier(10)
    ->Range(1'000, 100'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void BM_SelectionTaskOverTree(benchmark::State& state) {
  KeepPages();
  Tree tree(state.range(0));
  const clsOrvaneData task = Task();
  for (auto _ : state) benchmark::DoNotOptimize(Build(tree.desktop, tree.selection, &task, true));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_SelectionTaskOverTree)
    ->RangeMultiplier(10)
    ->Range(1'000, 100'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

}  // namespace
}  // namespace orvane
