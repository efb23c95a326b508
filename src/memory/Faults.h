#pragma once

#include <cstddef>

namespace orvane::memory {

/// Counts the fallible calls of all nouns of a desktop and fails one of them, or all from one on,
/// so that a test can sweep over a whole right-click: run it once, then fail each of its calls in
/// turn.
class Faults {
 public:
  /// The n-th fallible call from now on fails (1 is the next one).
  void FailCall(std::size_t n) {
    m_calls = 0;
    m_fail = m_last = n;
  }

  /// From the n-th call on all fail: what was done by then is what the end of the process, or of
  /// its disk, would leave.
  void FailFrom(std::size_t n) {
    FailCall(n);
    m_last = Always;
  }

  /// Calls since the last FailCall, or since the beginning.
  std::size_t Calls() const { return m_calls; }

  /// Asked first by every operation that can fail; true when this one must.
  bool Hit() { return ++m_calls >= m_fail && m_calls <= m_last && m_fail != 0; }

 private:
  static constexpr std::size_t Always = static_cast<std::size_t>(-1);

  std::size_t m_calls = 0;
  std::size_t m_fail = 0;  // 0: none
  std::size_t m_last = 0;
};

}  // namespace orvane::memory
