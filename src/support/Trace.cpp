#include "support/Trace.h"

#include "support/ThreadState.h"
#include "support/clsTrace.h"

namespace orvane {

clsTrace* ActiveDebugTrace() {
  if (!IsAnyTraceInitialised()) return nullptr;
  const ThreadState* thread = ThreadState::Current();
  if (!thread || !thread->debug || !thread->debug->IsInitialised()) return nullptr;
  return thread->debug;
}

std::wstring HexNumber::Text() const {
  return clsTrace::ToHex(number);
}

HexNumber Hex(const void* address) {
  return {static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(address))};
}

void LogLine(const std::wstring& line) {
  if (clsTrace* trace = ActiveDebugTrace()) trace->Output(line, 0);
}

void TraceScope::Enter(std::wstring_view operation) noexcept {
  clsTrace* trace = ActiveDebugTrace();
  if (!trace) return;
  try {
    trace->Push(std::wstring(operation));
  } catch (...) {
  }
}

void TraceScope::Leave() const noexcept {
  clsTrace* trace = ActiveDebugTrace();
  if (!trace) return;
  try {
    trace->Pop(m_checkError);
  } catch (...) {
  }
}

void TraceScope::Caught() noexcept {
  if (ThreadState* thread = ThreadState::Current()) thread->pending = CaughtError();
  m_checkError = true;
}

}  // namespace orvane
