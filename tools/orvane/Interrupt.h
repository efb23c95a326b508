#pragma once

#include <atomic>
#include <csignal>

namespace orvane::tool {

/// While it lives, Ctrl+C asks the program to end in place of ending it.
class Interrupt {
 public:
  Interrupt() { std::signal(SIGINT, Ask); }
  ~Interrupt() { std::signal(SIGINT, SIG_DFL); }
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  bool Asked() const { return s_asked; }

 private:
  static void Ask(int) { s_asked = true; }

  static inline constinit std::atomic<bool> s_asked = false;
};

}  // namespace orvane::tool
