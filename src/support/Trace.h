#pragma once

#include <atomic>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Handles.h"

namespace orvane {

class clsTrace;

/// How many traces of the process, of whatever thread, are initialised. Nearly always none: then
/// the thread's own state, which the Windows build takes tens of nanoseconds to find, need not be
/// looked up for each of a menu's thousands of lines.
inline constinit std::atomic<int> initialisedTraces = 0;

inline bool IsAnyTraceInitialised() {
  return initialisedTraces.load(std::memory_order_relaxed) > 0;
}

/// The thread's debug trace while it is switched on, else null. Everything below does nothing, not
/// even formatting, when it is null.
clsTrace* ActiveDebugTrace();

// Parts of a log line, each turned into text.
inline std::wstring_view LogText(std::wstring_view text) {
  return text;
}
template <std::integral Number>
std::wstring LogText(Number number) {
  // Not an overload of its own: texts in quotes, which are pointers, would rather be that.
  if constexpr (std::same_as<Number, bool>) return number ? L"True" : L"False";
  return std::to_wstring(number);
}

/// A number that is shown as "0x" and 8 upper-case hexadecimal digits. It becomes text only where
/// one is made, so that it costs nothing as part of a line that is not written.
struct HexNumber {
  std::int32_t number;

  operator std::wstring() const { return Text(); }
  std::wstring Text() const;
  friend std::wstring operator+(std::wstring text, HexNumber number) {
    return text + number.Text();
  }
};
inline std::wstring LogText(HexNumber number) {
  return number.Text();
}

inline HexNumber Hex(std::int32_t number) {
  return {number};
}
template <class Handle>
requires std::is_enum_v<Handle> HexNumber Hex(Handle handle) {
  return {ToNumber(handle)};
}
/// The low 32 bits of an address: enough to tell two apart in a log.
HexNumber Hex(const void* address);

/// Writes one finished line to the thread's debug trace.
void LogLine(const std::wstring& line);

/// The part of Log that is seldom needed, apart so that the rest is a comparison where it stands.
template <class... Part>
[[gnu::noinline]] void LogParts(const Part&... parts) noexcept {
  if (!ActiveDebugTrace()) return;
  try {
    std::wstring line;
    (line.append(LogText(parts)), ...);
    LogLine(line);
  } catch (...) {
  }
}

/// Writes a line made of its parts: Log(L"hMenu=", Hex(menu), L"  szDir=", folder).
/// Never fails: a line for which there is no memory is lost. The texts are fixed, spelling
/// included: people compare logs over years.
template <class... Part>
[[gnu::always_inline]] inline void Log(const Part&... parts) noexcept {
  if (IsAnyTraceInitialised()) [[unlikely]]
    LogParts(parts...);
}

/// The trace's entry into an operation and, at the end of its block, its exit.
class TraceScope {
 public:
  explicit TraceScope(std::wstring_view operation) noexcept {
    if (IsAnyTraceInitialised()) [[unlikely]]
      Enter(operation);
  }
  ~TraceScope() {
    // The operation may have switched the trace on or off.
    if (IsAnyTraceInitialised()) [[unlikely]]
      Leave();
  }
  TraceScope(const TraceScope&) = delete;
  TraceScope& operator=(const TraceScope&) = delete;

  /// In a catch clause: makes the exception being handled the thread's pending error, which the
  /// exit then logs before its own line.
  void Caught() noexcept;

  /// Lets the exit log the thread's pending error, if there is one.
  void CheckErrorAtExit() { m_checkError = true; }

 private:
  static void Enter(std::wstring_view operation) noexcept;
  void Leave() const noexcept;

  bool m_checkError = false;
};

}  // namespace orvane
