#include <windows.h>

#include <algorithm>

#include "ConsoleStream.h"

namespace orvane::tool {
namespace {

constexpr std::size_t Chunk = 4096;  // older consoles refuse long writes

/// The length of the text without a character that is cut at its end.
std::size_t WholeCharacters(const std::string& text) {
  std::size_t lead = text.size();
  for (int back = 0; lead > 0 && back < 4; ++back) {
    const auto byte = static_cast<unsigned char>(text[--lead]);
    if ((byte & 0xC0) == 0x80) continue;
    const std::size_t length = byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
    return lead + length > text.size() ? lead : text.size();
  }
  return text.size();
}

std::wstring Widened(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');  // a character has no more units than bytes
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size)));
  return wide;
}

}  // namespace

ConsoleStream::ConsoleStream(std::ostream& stream, unsigned long standardHandle)
    : m_stream(stream), m_console(GetStdHandle(standardHandle)) {
  DWORD mode = 0;
  if (GetConsoleMode(m_console, &mode)) m_before = stream.rdbuf(this);
}

ConsoleStream::~ConsoleStream() {
  if (!m_before) return;
  ConsoleStream::sync();
  m_stream.rdbuf(m_before);
}

ConsoleStream::int_type ConsoleStream::overflow(int_type character) {
  if (traits_type::eq_int_type(character, traits_type::eof())) return 0;
  const char c = traits_type::to_char_type(character);
  return xsputn(&c, 1) == 1 ? character : traits_type::eof();
}

std::streamsize ConsoleStream::xsputn(const char* text, std::streamsize length) {
  m_pending.append(text, static_cast<std::size_t>(length));
  if (m_pending.size() >= Chunk && sync() != 0) return 0;
  return length;
}

int ConsoleStream::sync() {
  const std::size_t whole = WholeCharacters(m_pending);
  const std::wstring wide = Widened(std::string_view(m_pending).substr(0, whole));
  m_pending.erase(0, whole);
  for (std::size_t start = 0; start < wide.size();) {
    const auto length = static_cast<DWORD>(std::min(Chunk, wide.size() - start));
    DWORD written = 0;
    if (!WriteConsoleW(m_console, wide.data() + start, length, &written, nullptr) || written == 0)
      return -1;
    start += written;
  }
  return 0;
}

}  // namespace orvane::tool
