#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "LogLine.h"
#include "support/CodePage.h"
#include "support/Scrambler.h"

namespace orvane::tool {

/// Turns the bytes of a log, plain or scrambled, into lines as they come.
class LogReader {
 public:
  using Sink = std::function<void(const LogLine&)>;

  LogReader(const CodePage& codePage, Sink sink);

  /// The next bytes. std::runtime_error when they are no log's.
  void Feed(std::string_view bytes);

  /// Hands on the last line, which waits for its end: values hold line ends of their own.
  void Flush();

  /// The log ends here. std::runtime_error when it ends within a record or line.
  void End();

 private:
  void TakeRecords();
  void TakeTextLines();
  void TakeLine(std::string_view bytes);
  std::string_view Rest() const { return std::string_view(m_pending).substr(m_taken); }

  Scrambler m_scrambler;
  const CodePage& m_codePage;
  Sink m_sink;
  LogLines m_lines;
  std::string m_pending;
  std::size_t m_taken = 0;     // of m_pending
  std::uint64_t m_offset = 0;  // of the next record in the log
  std::optional<LogLine> m_line;
  bool m_begun = false;
};

}  // namespace orvane::tool
