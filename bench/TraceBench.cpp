// What the trace costs while it is off, which is nearly always, and the scrambling of texts.

#include <benchmark/benchmark.h>

#include "memory/Desktop.h"
#include "memory/Windows1252.h"
#include "support/ThreadState.h"
#include "support/Trace.h"
#include "support/clsTrace.h"

namespace orvane {
namespace {

class TraceBench : public benchmark::Fixture {
 public:
  void SetUp(const benchmark::State&) override {
    m_state.debug = &m_trace;
    ThreadState::SetCurrent(&m_state);
  }
  void TearDown(const benchmark::State&) override { ThreadState::SetCurrent(nullptr); }

 protected:
  memory::Desktop m_desktop;
  CodePage m_page{memory::Windows1252()};
  clsTrace m_trace{m_desktop.files,  m_desktop.boxes, m_desktop.clock,
                   m_desktop.locale, m_desktop.tcp,   m_page};
  ThreadState m_state;
};

BENCHMARK_F(TraceBench, UninitialisedScopeAndLine)(benchmark::State& state) {
  const std::wstring folder = L"C:\\Users\\someone\\Documents";
  for (auto _ : state) {
    TraceScope scope(L"IContextMenu_QueryContextMenuEx");
    Log(L"hMenu=", Hex(MenuHandle{0x1234}), L"  szDir=", folder);
    benchmark::ClobberMemory();
  }
}

BENCHMARK_F(TraceBench, UninitialisedLine)(benchmark::State& state) {
  const std::wstring folder = L"C:\\Users\\someone\\Documents";
  for (auto _ : state) {
    Log(L"szDir=", folder);
    benchmark::ClobberMemory();
  }
}

BENCHMARK_F(TraceBench, LineToFile)(benchmark::State& state) {
  m_desktop.files.AddFolder(L"C:\\Logs");
  m_trace.Initialize(L"C:\\Logs\\x", clsTrace::FlagReset);
  // The file is begun anew now and then: it lies in memory.
  for (int lines = 0; auto _ : state) {
    if (++lines % 10'000 == 0) m_trace.Initialize(L"C:\\Logs\\x", clsTrace::FlagReset);
    Log(L"hMenu=", Hex(MenuHandle{0x1234}));
  }
  m_trace.Terminate();
}

/// As the definition file is read: one value after the other, in place.
BENCHMARK_DEFINE_F(TraceBench, ScrambleValue)(benchmark::State& state) {
  std::vector<std::byte> value(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    m_trace.EncryptBytes(value);
    benchmark::DoNotOptimize(value.data());
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK_REGISTER_F(TraceBench, ScrambleValue)->Arg(5)->Arg(40)->Arg(65535);

BENCHMARK_DEFINE_F(TraceBench, EncryptStringAscii)(benchmark::State& state) {
  const std::wstring text(static_cast<std::size_t>(state.range(0)), L'x');
  for (auto _ : state) benchmark::DoNotOptimize(m_trace.EncryptStringAscii(text));
}
BENCHMARK_REGISTER_F(TraceBench, EncryptStringAscii)->Arg(40)->Arg(65535);

}  // namespace
}  // namespace orvane
