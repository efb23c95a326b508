#include "LogSummary.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include <charconv>
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

constexpr std::wstring_view TimerMark = L"ms\t(Timer ";

/// The milliseconds of "ReadConfig: 31ms<TAB>(Timer 1)", and what was measured.
std::optional<std::pair<std::wstring, std::int64_t>> TimeOf(std::wstring_view text) {
  const std::size_t mark = text.rfind(TimerMark);
  const std::size_t colon = text.substr(0, mark).rfind(L": ");
  if (mark == text.npos || colon == text.npos) return std::nullopt;
  const std::string digits = ToUtf8(text.substr(colon + 2, mark - colon - 2));
  std::int64_t time = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), time);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return std::pair(std::wstring(text.substr(0, colon)), time);
}

}  // namespace

void LogSummary::Add(const LogLine& line) {
  ++m_lines;
  if (line.kind == LogLine::Kind::Entry) ++m_operations;
  if (line.kind == LogLine::Kind::Error) ++m_errors;
  const auto timed = TimeOf(line.text);
  if (!timed) return;
  const auto [name, time] = *timed;
  auto& times = m_times.try_emplace(name, Times{0, 0, time, time}).first->second;
  ++times.count;
  times.total += time;
  times.least = std::min(times.least, time);
  times.most = std::max(times.most, time);
}

std::string LogSummary::Text() const {
  std::string text = std::to_string(m_lines) + " lines, " + std::to_string(m_operations) +
                     " operations, " + std::to_string(m_errors) + " errors\n";
  for (const auto& [name, times] : m_times)
    text += ToUtf8(name) + ": " + std::to_string(times.count) + " times, " +
            std::to_string(times.least) + " to " + std::to_string(times.most) + " ms, " +
            std::to_string(times.total / times.count) + " ms on average\n";
  return text;
}

std::string LogSummary::Json() const {
  nlohmann::ordered_json json = {
      {"lines", m_lines}, {"operations", m_operations}, {"errors", m_errors}};
  json["timings"] = nlohmann::ordered_json::array();
  for (const auto& [name, times] : m_times)
    json["timings"].push_back({{"name", ToUtf8(name)},
                               {"count", times.count},
                               {"total", times.total},
                               {"least", times.least},
                               {"most", times.most}});
  return nlohmann::ordered_json{{"summary", json}}.dump();
}

}  // namespace orvane::tool
