#include "LogReader.h"

#include <stdexcept>
#include <utility>
#include <vector>

namespace orvane::tool {
namespace {

constexpr char TextTag = 8;
constexpr std::size_t HeadSize = 4;  // tag and length, two bytes each
constexpr std::size_t LongestFirstLine = 0x20000;

std::size_t Word(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]) |
         static_cast<std::size_t>(static_cast<unsigned char>(bytes[at + 1])) << 8;
}

}  // namespace

LogReader::LogReader(const CodePage& codePage, Sink sink)
    : m_codePage(codePage), m_sink(std::move(sink)) {}

void LogReader::Feed(std::string_view bytes) {
  m_pending.append(bytes);
  if (m_pending.empty()) return;
  if (m_pending.front() == TextTag)
    TakeRecords();
  else
    TakeTextLines();
  m_pending.erase(0, std::exchange(m_taken, 0));
  // Another file may have no line ends at all.
  if (!m_begun && m_pending.size() > LongestFirstLine)
    throw std::runtime_error("is no log: it begins with no line of one");
}

void LogReader::TakeRecords() {
  for (std::size_t length; Rest().size() >= HeadSize; m_taken += HeadSize + length) {
    if (Word(Rest(), 0) != TextTag)
      throw std::runtime_error("is no log: no record begins at byte " + std::to_string(m_offset));
    length = Word(Rest(), 2);
    if (Rest().size() < HeadSize + length) return;
    std::string bytes(Rest().substr(HeadSize, length));
    m_scrambler.Scramble(std::as_writable_bytes(std::span(bytes)));
    TakeLine(bytes);
    m_offset += HeadSize + length;
  }
}

void LogReader::TakeTextLines() {
  for (std::size_t end; (end = Rest().find('\n')) != std::string_view::npos; m_taken += end + 1) {
    std::string_view line = Rest().substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    TakeLine(line);
  }
}

void LogReader::TakeLine(std::string_view bytes) {
  std::wstring text = m_codePage.Decode(std::as_bytes(std::span(bytes)));
  if (auto line = m_lines.Parse(text)) {
    Flush();
    m_line = std::move(line);
    m_begun = true;
  } else if (m_line) {
    m_line->text.append(L"\n").append(text);
  } else if (m_begun) {
    m_line = m_lines.Make(0, text);
  } else {
    throw std::runtime_error("is no log: it begins with no line of one");
  }
}

void LogReader::Flush() {
  if (m_line) m_sink(*m_line);
  m_line.reset();
}

void LogReader::End() {
  Flush();
  if (!m_pending.empty())
    throw std::runtime_error("ends within a line, after " + std::to_string(m_pending.size()) +
                             " bytes of it");
}

}  // namespace orvane::tool
