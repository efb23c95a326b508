#include "LogLine.h"

#include <algorithm>

#include "support/clsTrace.h"

namespace orvane::tool {
namespace {

constexpr std::wstring_view TimeMark = L" @ ";
constexpr std::size_t LongestTime = 64;

/// The length of the time that the line begins with; 0 without one.
std::size_t TimeLength(std::wstring_view line) {
  const std::size_t mark = line.substr(0, LongestTime).find(TimeMark);
  if (mark == line.npos || line.front() == L' ') return 0;
  const std::size_t end = line.find(L' ', mark + TimeMark.size());
  return end == line.npos ? 0 : end;
}

std::optional<LogLine::Kind> KindOf(wchar_t first, wchar_t second) {
  if (first == L'>' && second == L' ') return LogLine::Kind::Entry;
  if (first == L'<' && second == L' ') return LogLine::Kind::Exit;
  if (first == L' ' && second == L'!') return LogLine::Kind::Error;
  if (first == L' ' && second == L' ') return LogLine::Kind::Value;
  return std::nullopt;
}

}  // namespace

std::wstring LogLine::Format() const {
  std::wstring line = time + L' ';
  line += kind == Kind::Entry ? L'>' : kind == Kind::Exit ? L'<' : L' ';
  line += kind == Kind::Error ? L'!' : L' ';
  line += L' ';
  return line.append(2 * level, L' ') + text;
}

std::optional<LogLine> LogLines::Parse(std::wstring_view line) {
  LogLine result;
  result.time = line.substr(0, TimeLength(line));
  line.remove_prefix(result.time.size());
  if (line.size() < 4 || line[0] != L' ' || line[3] != L' ') return std::nullopt;
  const auto kind = KindOf(line[1], line[2]);
  if (!kind) return std::nullopt;
  result.kind = *kind;
  line.remove_prefix(4);
  const std::size_t indented = std::min(line.find_first_not_of(L' '), line.size());
  m_level = std::min(m_level, indented / 2);  // where operations were left unseen
  if (*kind == LogLine::Kind::Entry || *kind == LogLine::Kind::Exit) m_level = indented / 2;
  result.text = line.substr(2 * m_level);
  Enter(result);
  return result;
}

LogLine LogLines::Make(std::int32_t flags, std::wstring text) {
  LogLine line;
  if (flags & clsTrace::FlagEntry)
    line.kind = LogLine::Kind::Entry;
  else if (flags & clsTrace::FlagExit)
    line.kind = LogLine::Kind::Exit;
  else if (flags & clsTrace::FlagError)
    line.kind = LogLine::Kind::Error;
  line.text = line.kind == LogLine::Kind::Exit && text.empty() ? L"(Exit)" : std::move(text);
  Enter(line);
  return line;
}

// The level changes after an entry's line and after an exit's: the exit stands at the inner one.
void LogLines::Enter(LogLine& line) {
  line.level = m_level;
  if (line.kind == LogLine::Kind::Entry) ++m_level;
  if (line.kind == LogLine::Kind::Exit && m_level > 0) --m_level;
}

const char* KindName(LogLine::Kind kind) {
  switch (kind) {
    case LogLine::Kind::Entry:
      return "entry";
    case LogLine::Kind::Exit:
      return "exit";
    case LogLine::Kind::Error:
      return "error";
    case LogLine::Kind::Value:
      break;
  }
  return "value";
}

}  // namespace orvane::tool
