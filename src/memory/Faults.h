#pragma once

#include <cstddef>

namespace orvane::memory {

/// Counts the fallible calls of all nouns of a desktop and fails one of them, so that a test can
/// sweep over a whole right-click: run it once, then fail each of its calls in turn.
class Faults {
 public:
  /// The n-th fallible call from now on fails (1 is the next one).
  void FailCall(std::size_t n) {
    m_calls = 0;
    m_fail = n;
  }

  /// Calls since the last FailCall, or since the beginning.
  std::size_t Calls() const { return m_calls; }

  /// Asked first by every operation that can fail; true when this one must.
  bool Hit() { return ++m_calls == m_fail; }

 private:
  std::size_t m_calls = 0;
  std::size_t m_fail = 0;
};

}  // namespace orvane::memory
