#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <thread>

namespace orvane::test {

/// Ends the program when one test takes longer than two minutes, and says which: a hung right-click
/// is a fault that must not look like a slow machine. Tests that are run by hand may take their
/// time, and those of suites named Long fifteen minutes.
class Watchdog : public testing::EmptyTestEventListener {
 public:
  Watchdog() {
    std::thread([] { Watch(); }).detach();
  }

  void OnTestStart(const testing::TestInfo& test) override {
    std::snprintf(m_name, sizeof m_name, "%s.%s", test.test_suite_name(), test.name());
    m_limit = std::string_view(test.test_suite_name()).starts_with("Long") ? 900 : 120;
    if (!std::string_view(test.name()).starts_with("DISABLED_")) m_seconds = 0;
  }
  void OnTestEnd(const testing::TestInfo&) override { m_seconds = -1; }

 private:
  [[noreturn]] static void Watch() {
    for (;; std::this_thread::sleep_for(std::chrono::seconds(1))) {
      if (m_seconds < 0 || ++m_seconds <= m_limit) continue;
      std::fprintf(stderr, "watchdog: %s hangs\n", m_name);
      std::fflush(stderr);
      std::_Exit(3);
    }
  }

  // Not the object's own: the thread outlives it at the program's end.
  static inline std::atomic<int> m_seconds = -1;  // of the running test, or -1 between two
  static inline std::atomic<int> m_limit = 120;
  static inline char m_name[256] = "";
};

}  // namespace orvane::test
