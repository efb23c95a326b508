#include "support/IniText.h"

#include <algorithm>

#include "support/Text.h"
#include "support/Utf16.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

constexpr std::u16string_view LineEnds = u"\r\n";
constexpr std::u16string_view Blanks = u" \t\v\f\x1A";

/// How the bytes of a file stand for text. The structure of the file is looked for in its units,
/// bytes or UTF-16 units, so that writing one value changes no other.
class Encoding {
 public:
  Encoding(std::span<const std::byte> bytes, const CodePage& codePage) : m_codePage(codePage) {
    if (StartsWith(bytes, {0xFF, 0xFE})) m_kind = Kind::Utf16;
    if (StartsWith(bytes, {0xEF, 0xBB, 0xBF})) m_kind = Kind::Utf8;
  }

  std::size_t MarkLength() const {
    return m_kind == Kind::Utf16 ? 2 : m_kind == Kind::Utf8 ? 3 : 0;
  }

  /// Bytes at the end that make no whole unit.
  std::size_t OddBytes(std::span<const std::byte> bytes) const {
    return m_kind == Kind::Utf16 ? bytes.size() % 2 : 0;
  }

  /// The units behind the byte-order mark.
  std::u16string Units(std::span<const std::byte> bytes) const {
    bytes = bytes.subspan(MarkLength());
    if (m_kind == Kind::Utf16) return ToUnits(FromUtf16(bytes));
    std::u16string units(bytes.size(), u'\0');
    std::ranges::transform(bytes, units.begin(), std::to_integer<char16_t>);
    return units;
  }

  void AppendBytes(std::vector<std::byte>& bytes, std::u16string_view units) const {
    for (const char16_t unit : units) {
      bytes.push_back(static_cast<std::byte>(unit & 0xFF));
      if (m_kind == Kind::Utf16) bytes.push_back(static_cast<std::byte>(unit >> 8));
    }
  }

  std::wstring Decode(std::u16string_view units) const {
    if (m_kind == Kind::Utf16) return FromUnits(units);
    std::string bytes(units.size(), '\0');
    std::ranges::transform(units, bytes.begin(), [](char16_t unit) { return char(unit); });
    if (m_kind == Kind::Utf8) {
      if (auto text = FromUtf8(bytes)) return *std::move(text);
    }
    return m_codePage.Decode(std::as_bytes(std::span(bytes)));
  }

  std::u16string Encode(std::wstring_view text) const {
    if (m_kind == Kind::Utf16) return ToUnits(text);
    std::u16string units;
    if (m_kind == Kind::Utf8) {
      for (const char byte : ToUtf8(text)) units.push_back(static_cast<unsigned char>(byte));
    } else {
      for (const std::byte byte : m_codePage.Encode(text)) {
        units.push_back(std::to_integer<char16_t>(byte));
      }
    }
    return units;
  }

 private:
  enum class Kind { Ansi, Utf8, Utf16 };

  static bool StartsWith(std::span<const std::byte> bytes, std::initializer_list<unsigned> mark) {
    return bytes.size() >= mark.size() &&
           std::equal(mark.begin(), mark.end(), bytes.begin(),
                      [](unsigned wanted, std::byte byte) { return std::byte(wanted) == byte; });
  }

  const CodePage& m_codePage;
  Kind m_kind = Kind::Ansi;
};

std::u16string_view TrimBlanks(std::u16string_view text) {
  const std::size_t first = text.find_first_not_of(Blanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

/// One line of the file: where it lies and what it is.
struct Line {
  enum class Kind { Blank, Other, Section, Key };

  Kind kind = Kind::Other;
  std::size_t begin = 0;
  std::size_t end = 0;    // before the line end
  std::size_t next = 0;   // behind the line end
  std::size_t value = 0;  // of a key: behind the "="
  std::u16string_view name;
};

Line ReadLine(std::u16string_view text, std::size_t begin) {
  Line line;
  line.begin = begin;
  line.end = std::min(text.find_first_of(LineEnds, begin), text.size());
  line.next = std::min(line.end + (text.substr(line.end, 2) == LineEnds ? 2 : 1), text.size());

  const std::u16string_view content = text.substr(begin, line.end - begin);
  const std::u16string_view trimmed = TrimBlanks(content);
  const std::size_t equals = content.find(u'=');
  if (trimmed.empty()) {
    line.kind = Line::Kind::Blank;
  } else if (trimmed.front() == u'[') {
    const std::size_t close = trimmed.rfind(u']');
    if (close == trimmed.npos) return line;
    line.kind = Line::Kind::Section;
    line.name = trimmed.substr(1, close - 1);
  } else if (trimmed.front() != u';' && equals != content.npos) {
    line.kind = Line::Kind::Key;
    line.name = TrimBlanks(content.substr(0, equals));
    line.value = begin + equals + 1;
  }
  return line;
}

/// The value without blanks and one pair of quotes around it.
std::u16string_view BareValue(std::u16string_view value) {
  value = TrimBlanks(value);
  const bool quoted = value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') &&
                      value.back() == value.front();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

std::wstring OneLine(std::wstring_view text) {
  std::wstring line(text);
  std::ranges::replace_if(
      line, [](wchar_t c) { return c == L'\r' || c == L'\n' || c == L'\0'; }, L' ');
  return line;
}

/// The units of a file that one section or key is changed in.
class Editor {
 public:
  Editor(const Encoding& encoding, std::u16string text)
      : m_encoding(encoding), m_text(std::move(text)) {}

  const std::u16string& Text() const { return m_text; }

  void RemoveSection(std::wstring_view section) {
    std::size_t begin = 0;
    if (!FindHeader(section, begin)) return;
    std::size_t end = begin;
    do {
      end = ReadLine(m_text, end).next;
    } while (end < m_text.size() && ReadLine(m_text, end).kind != Line::Kind::Section);
    m_text.erase(begin, end - begin);
  }

  void Write(std::wstring_view section, const std::wstring& key,
             const std::optional<std::wstring>& value) {
    std::size_t place = 0;  // where a new key goes
    if (!FindHeader(section, place)) {
      if (!value) return;
      place = m_text.size();
      place = InsertLine(place, L"[" + OneLine(section) + L"]");
    } else {
      Line line = ReadLine(m_text, place);
      place = line.next;
      while (line.next < m_text.size()) {
        line = ReadLine(m_text, line.next);
        if (line.kind == Line::Kind::Section) break;
        if (line.kind == Line::Kind::Key && IsNamed(line, key)) return Replace(line, value);
        if (line.kind != Line::Kind::Blank) place = line.next;
      }
    }
    if (value) InsertLine(place, OneLine(key) + L"=" + OneLine(*value));
  }

 private:
  bool IsNamed(const Line& line, std::wstring_view name) const {
    return EqualIgnoringCase(m_encoding.Decode(line.name), name);
  }

  /// Where the header line of the section begins; false when there is none.
  bool FindHeader(std::wstring_view section, std::size_t& begin) const {
    for (Line line; line.next < m_text.size();) {
      line = ReadLine(m_text, line.next);
      if (line.kind == Line::Kind::Section && IsNamed(line, section)) {
        begin = line.begin;
        return true;
      }
    }
    return false;
  }

  void Replace(const Line& line, const std::optional<std::wstring>& value) {
    if (value) {
      m_text.replace(line.value, line.end - line.value, m_encoding.Encode(OneLine(*value)));
    } else {
      m_text.erase(line.begin, line.next - line.begin);
    }
  }

  /// Inserts a line of its own at `place`; the position behind it.
  std::size_t InsertLine(std::size_t place, std::wstring_view content) {
    std::u16string line = m_encoding.Encode(content);
    line += LineEnds;
    const bool open = place > 0 && LineEnds.find(m_text[place - 1]) == LineEnds.npos;
    if (open) line.insert(0, LineEnds);
    m_text.insert(place, line);
    return place + line.size();
  }

  const Encoding& m_encoding;
  std::u16string m_text;
};

}  // namespace

IniText::IniText(std::span<const std::byte> bytes, const CodePage& codePage) {
  const Encoding encoding(bytes, codePage);
  const std::u16string text = encoding.Units(bytes);
  Keys* keys = nullptr;  // of the section that the lines belong to
  for (Line line; line.next < text.size();) {
    line = ReadLine(text, line.next);
    if (line.kind == Line::Kind::Section) {
      std::wstring name = encoding.Decode(line.name);
      const auto [section, isNew] = m_keys.try_emplace(LowerCase(name));
      keys = isNew ? &section->second : nullptr;
      (isNew ? m_sections : m_repeated).push_back(std::move(name));
    } else if (line.kind == Line::Kind::Key && keys) {
      const auto value = std::u16string_view(text).substr(line.value, line.end - line.value);
      keys->try_emplace(LowerCase(encoding.Decode(line.name)), encoding.Decode(BareValue(value)));
    }
  }
}

const std::wstring* IniText::Value(std::wstring_view section, std::wstring_view key) const {
  const auto keys = m_keys.find(LowerCase(section));
  if (keys == m_keys.end()) return nullptr;
  const auto value = keys->second.find(LowerCase(key));
  return value == keys->second.end() ? nullptr : &value->second;
}

std::vector<std::byte> WriteIniText(std::span<const std::byte> bytes, const CodePage& codePage,
                                    std::wstring_view section,
                                    const std::optional<std::wstring>& key,
                                    const std::optional<std::wstring>& value) {
  const Encoding encoding(bytes, codePage);
  Editor editor(encoding, encoding.Units(bytes));
  if (key) {
    editor.Write(section, *key, value);
  } else {
    editor.RemoveSection(section);
  }
  const auto mark = bytes.first(encoding.MarkLength());
  std::vector<std::byte> written(mark.begin(), mark.end());
  encoding.AppendBytes(written, editor.Text());
  const std::size_t odd = encoding.OddBytes(bytes);
  written.insert(written.end(), bytes.end() - static_cast<std::ptrdiff_t>(odd), bytes.end());
  return written;
}

}  // namespace orvane
