#pragma once

#include <cstdint>
#include <string>

namespace orvane::tool {

/// How far long work is, in percent on a terminal; nothing elsewhere. The line goes with the
/// object.
class Progress {
 public:
  Progress(std::string what, std::uintmax_t total);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Reach(std::uintmax_t done);

 private:
  std::string m_what;
  std::uintmax_t m_total;
  std::uintmax_t m_percent = 0;
  bool m_shown = false;
};

}  // namespace orvane::tool
