#include "Progress.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "Host.h"

namespace orvane::tool {
namespace {

constexpr std::uintmax_t Long = 1'000'000;  // bytes

}  // namespace

Progress::Progress(std::uintmax_t size) : m_isShown(size >= Long && IsTerminal(Stream::Errors)) {}

Progress::~Progress() {
  if (!m_line.empty()) Show("");
}

void Progress::Reach(const char* what, std::uintmax_t done, std::uintmax_t total) {
  if (!m_isShown) return;
  const std::uintmax_t percent = std::min(done, total) * 100 / std::max<std::uintmax_t>(total, 1);
  const std::string line = what + (' ' + std::to_string(percent) + " %");
  if (line != m_line) Show(line);
}

void Progress::Show(const std::string& line) {
  const std::size_t before = std::exchange(m_line, line).size();
  std::cerr << '\r' << line << std::string(before - std::min(before, line.size()), ' ');
  if (line.empty()) std::cerr << '\r';
  std::cerr << std::flush;
}

}  // namespace orvane::tool
