#include "Progress.h"

#include <iostream>
#include <utility>

#include "Host.h"

namespace orvane::tool {
namespace {

constexpr std::uintmax_t Long = 4'000'000;  // bytes: what is shorter is done at once

}  // namespace

Progress::Progress(std::string what, std::uintmax_t total)
    : m_what(std::move(what)), m_total(total) {}

Progress::~Progress() {
  if (m_shown) std::cerr << '\r' << std::string(m_what.size() + 6, ' ') << '\r' << std::flush;
}

// Lines that are printed to the same terminal would be torn apart.
void Progress::Reach(std::uintmax_t done) {
  if (m_total < Long || done > m_total) return;
  const std::uintmax_t percent = done * 100 / m_total;
  if (percent == m_percent || !IsTerminal(Stream::Errors) || IsTerminal(Stream::Output)) return;
  m_percent = percent;
  m_shown = true;
  std::cerr << '\r' << m_what << ' ' << percent << " %" << std::flush;
}

}  // namespace orvane::tool
