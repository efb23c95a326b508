#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane::tool {

/// A line of a log, taken apart.
struct LogLine {
  enum class Kind { Value, Entry, Exit, Error };

  std::wstring time;  // as it was written; empty without one
  Kind kind = Kind::Value;
  std::size_t level = 0;  // in how many operations it stands
  std::wstring text;

  /// As the log has it.
  std::wstring Format() const;
};

/// Takes the lines of one log, from its first one on, and knows how deep they are.
class LogLines {
 public:
  /// None for a text that no line begins with.
  std::optional<LogLine> Parse(std::wstring_view line);

  /// A line by what the network says of it: the flags of the trace, and the bare text.
  LogLine Make(std::int32_t flags, std::wstring text);

 private:
  void Enter(LogLine& line);

  std::size_t m_level = 0;
};

/// "entry", "exit", "error" or "value".
const char* KindName(LogLine::Kind kind);

}  // namespace orvane::tool
