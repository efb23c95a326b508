// Matching a window against the custom actions file: what every click on a folder costs as soon as
// the user has one window action.

#include <benchmark/benchmark.h>

#include <string>

#include "customactions/clsCustomActions.h"
#include "customactions/clsProcess.h"
#include "memory/Desktop.h"
#include "support/CodePage.h"

namespace orvane {
namespace {

const std::wstring Path = L"C:\\CustomActions.ini";

/// Window actions that each use all three criteria and never match.
std::string ActionsFileText(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    text +=
        "[action " + number + "]\r\nType=1\r\nOrder=" + std::to_string(count - i) +
        "\r\nDescription=Action " + number +
        "\r\nExe=C:\\Programs\r\nExeMatch=1\r\nCaption=Window\r\nCaptionMatch=1\r\nClass=Class " +
        number + "x\r\nClassMatch=2\r\nActions=%n[orv_item]{TAB 2}[orv_pause 100]~\r\n" +
        "Options=1\r\n";
  }
  return text;
}

struct World {
  explicit World(int actions) {
    desktop.files.AddFile(Path, ActionsFileText(actions));
    desktop.processes.running = {{.id = 1, .executable = L"C:\\Programs\\x.exe", .threads = {1}}};
    for (int i = 0; i < 10; ++i) {
      memory::Windows::Window record;
      record.className = L"Class " + std::to_wstring(i);
      record.caption = L"Window " + std::to_wstring(i);
      record.parent = window;
      window = desktop.windows.Add(record);
    }
  }

  memory::Desktop desktop;
  WindowHandle window = WindowHandle::None;
  CodePage codePage{desktop.system.AnsiCharacters()};
  clsProcess process{desktop.processes, desktop.system};
  clsCustomActions actions{{desktop.files, desktop.profiles, desktop.windows, process,
                            desktop.keyboard, desktop.clock, desktop.locale, desktop.boxes,
                            codePage}};
};

void MatchActions(benchmark::State& state) {
  World world(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(world.actions.MatchWindow(world.window, Path));
}
BENCHMARK(MatchActions)->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond);

void LoadAction(benchmark::State& state) {
  World world(200);
  for (auto _ : state) benchmark::DoNotOptimize(world.actions.Load(L"action 150", Path));
}
BENCHMARK(LoadAction)->Unit(benchmark::kMillisecond);

void CountActions(benchmark::State& state) {
  World world(200);
  for (auto _ : state)
    benchmark::DoNotOptimize(world.actions.Count(clsCustomActions::TypeWindow, Path));
}
BENCHMARK(CountActions)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orvane
