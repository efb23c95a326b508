#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace orvane {

/// How long a call that hangs on a network may keep its caller waiting. The limit is each server's
/// own, and a server that has used it up once is not asked again.
class Patience {
 public:
  static constexpr std::uint32_t Endless = 0xFFFF'FFFF;
  static constexpr std::uint32_t Menu = 200;     // milliseconds that building a menu may be held up
  static constexpr std::uint32_t Chosen = 1000;  // the same for what its user opens or chooses
  static constexpr std::uint32_t Slice = 50;     // milliseconds from one question to the next

  /// `goOn` is asked during the wait; false ends it, as a user's Cancel does.
  Patience(std::uint32_t milliseconds, std::function<bool()> goOn = {})
      : m_milliseconds(milliseconds), m_goOn(std::move(goOn)) {}

  /// Whether there is nothing to watch while a call takes its time.
  bool IsBoundless() const { return m_milliseconds == Endless && !m_goOn; }

  /// Milliseconds for the server of the path.
  std::uint32_t For(std::wstring_view path) const {
    return m_silent.contains(ServerOf(path)) ? 0 : m_milliseconds;
  }

  void RunOut(std::wstring_view path) const { m_silent.insert(ServerOf(path)); }

  /// Whether some server did not answer in time.
  bool HasRunOut() const { return !m_silent.empty(); }

  bool Ends() const { return m_goOn && !m_goOn(); }

 private:
  /// "\\server" or "Z:", whichever way the path is written.
  static std::wstring ServerOf(std::wstring_view path) {
    constexpr std::wstring_view LongPrefix = L"\\\\?\\", LongSharePrefix = L"\\\\?\\UNC\\";
    if (path.starts_with(LongSharePrefix)) {
      path.remove_prefix(LongSharePrefix.size());
      return L"\\\\" + std::wstring(path.substr(0, path.find(L'\\')));
    }
    if (path.starts_with(LongPrefix)) path.remove_prefix(LongPrefix.size());
    return std::wstring(path.substr(0, path.starts_with(L"\\\\") ? path.find(L'\\', 2) : 2));
  }

  std::uint32_t m_milliseconds;
  std::function<bool()> m_goOn;
  mutable std::set<std::wstring> m_silent;  // what the calls found out
};

}  // namespace orvane
