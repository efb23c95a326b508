// Logs from a file and from the network: whatever the bytes, they are lines or are refused, and it
// makes no difference in what pieces they come.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "LogMessages.h"
#include "LogReader.h"
#include "memory/Desktop.h"

namespace {

using namespace orvane;

class Log {
 public:
  /// All lines of the bytes, and whether they are a log; fed in pieces of that many.
  std::wstring ReadFile(std::string_view bytes, std::size_t piece) {
    std::wstring lines;
    tool::LogReader reader(m_codePage, Appending(lines));
    try {
      Feed(reader, bytes, piece);
      reader.End();
    } catch (const std::runtime_error&) {
      lines += L"(refused)";
    }
    return lines;
  }
  /// Each line as a record of the scrambled log.
  std::string Scrambled(std::string_view lines) {
    std::string log;
    while (!lines.empty()) {
      std::string line(lines.substr(0, lines.find('\n')));
      lines.remove_prefix(std::min(lines.size(), line.size() + 1));
      log += {'\b', '\0', static_cast<char>(line.size()), static_cast<char>(line.size() >> 8)};
      m_scrambler.Scramble(std::as_writable_bytes(std::span(line)));
      log += line;
    }
    return log;
  }
  std::wstring ReadNetwork(std::string_view bytes, std::size_t piece) {
    std::wstring lines;
    tool::LogMessages messages(m_codePage, Appending(lines));
    Feed(messages, bytes, piece);
    return lines + std::to_wstring(messages.Pending());
  }

 private:
  static tool::LogReader::Sink Appending(std::wstring& lines) {
    return [&](const tool::LogLine& line) { lines += line.Format() + L'\n'; };
  }
  template <class Reader>
  static void Feed(Reader& reader, std::string_view bytes, std::size_t piece) {
    for (std::size_t at = 0; at < bytes.size(); at += piece) reader.Feed(bytes.substr(at, piece));
  }

  memory::Desktop m_desktop;
  CodePage m_codePage{m_desktop.system.AnsiCharacters()};
  Scrambler m_scrambler;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Each entered operation indents what follows by two: the lines' size grows with the square.
  if (size == 0 || size > 4000) return 0;
  static Log log;
  const std::size_t piece = data[0] + 1u;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  if (log.ReadFile(bytes, size) != log.ReadFile(bytes, piece)) std::abort();
  const std::string scrambled = log.Scrambled(bytes);
  if (log.ReadFile(scrambled, 70000) != log.ReadFile(scrambled, piece)) std::abort();
  if (log.ReadNetwork(bytes, size) != log.ReadNetwork(bytes, piece)) std::abort();
  return 0;
}
