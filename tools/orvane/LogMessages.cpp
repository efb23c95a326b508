#include "LogMessages.h"

#include <utility>

namespace orvane::tool {
namespace {

constexpr std::wstring_view Greeting = L"0 0 ";
constexpr std::wstring_view Line = L"1 ";

/// Takes a decimal number and the blank behind it off the text.
std::optional<std::int32_t> TakeNumber(std::wstring_view& text) {
  const std::size_t blank = text.find(L' ');
  if (blank == 0 || blank == text.npos || blank > 9) return std::nullopt;
  std::int32_t number = 0;
  for (const wchar_t digit : text.substr(0, blank)) {
    if (digit < L'0' || digit > L'9') return std::nullopt;
    number = 10 * number + (digit - L'0');
  }
  text.remove_prefix(blank + 1);
  return number;
}

}  // namespace

LogMessages::LogMessages(const CodePage& codePage, Sink sink)
    : m_codePage(&codePage), m_sink(std::move(sink)) {}

void LogMessages::Feed(std::string_view bytes) {
  m_pending.append(bytes);
  std::string_view rest = m_pending;
  while (rest.size() >= 2) {
    const std::size_t length = static_cast<unsigned char>(rest[0]) |
                               static_cast<std::size_t>(static_cast<unsigned char>(rest[1])) << 8;
    if (rest.size() < 2 + length) break;
    Take(m_codePage->Decode(std::as_bytes(std::span(rest.substr(2, length)))));
    rest.remove_prefix(2 + length);
  }
  m_pending.erase(0, m_pending.size() - rest.size());
}

void LogMessages::Take(std::wstring_view message) {
  std::wstring_view text = message;
  if (text.starts_with(Greeting)) {
    text.remove_prefix(Greeting.size());
    return m_sink(m_lines.Make(0, L"(connected) " + std::wstring(text)));
  }
  if (text.starts_with(Line)) {
    text.remove_prefix(Line.size());
    if (const auto flags = TakeNumber(text))
      return m_sink(m_lines.Make(*flags, std::wstring(text)));
  }
  m_sink(m_lines.Make(0, L"(no message of a log) " + std::wstring(message)));
}

}  // namespace orvane::tool
