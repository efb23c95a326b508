#include "memory/RegFileParser.h"

#include "memory/RegistryText.h"
#include "support/Error.h"
#include "support/Text.h"

namespace orvane::memory {

namespace {

std::optional<Hive> FindHive(std::wstring_view name) {
  const std::wstring lower = LowerCase(name);
  for (const auto& [hiveName, hive] : HiveNames) {
    if (lower == LowerCase(hiveName)) return hive;
  }
  return std::nullopt;
}

int HexDigit(wchar_t c) {
  if (c >= L'0' && c <= L'9') return c - L'0';
  if (c >= L'a' && c <= L'f') return c - L'a' + 10;
  if (c >= L'A' && c <= L'F') return c - L'A' + 10;
  return -1;
}

}  // namespace

std::vector<RegFileChange> RegFileParser::Parse() {
  ParseHeader();
  while (!m_rest.empty()) {
    SkipBlanks();
    const wchar_t first = Peek();
    if (first == L'[') {
      ParseKey();
    } else if (first == L'"' || first == L'@') {
      ParseValue();
    } else if (first == L';') {
      SkipLine();
    } else if (m_rest.empty() || first == L'\r' || first == L'\n') {
      EndLine();
    } else {
      Fail(L"neither a key in brackets nor a value");
    }
  }
  return std::move(m_changes);
}

void RegFileParser::Fail(const wchar_t* what, int line) const {
  throw Error(Error::InvalidArgument, L"line " + std::to_wstring(line) + L": " + what);
}

void RegFileParser::Skip() {
  if (m_rest.front() == L'\n') ++m_line;
  m_rest.remove_prefix(1);
}

void RegFileParser::SkipBlanks() {
  while (Peek() == L' ' || Peek() == L'\t') Skip();
}

void RegFileParser::SkipLine() {
  while (!m_rest.empty() && Peek() != L'\n') Skip();
  if (!m_rest.empty()) Skip();
}

bool RegFileParser::Take(wchar_t character) {
  if (m_rest.empty() || Peek() != character) return false;
  Skip();
  return true;
}

bool RegFileParser::TakeWord(std::wstring_view word) {
  if (LowerCase(m_rest.substr(0, word.size())) != word) return false;
  m_rest.remove_prefix(word.size());
  return true;
}

void RegFileParser::EndLine() {
  SkipBlanks();
  Take(L'\r');
  if (!m_rest.empty() && !Take(L'\n')) Fail(L"something follows where the line should end");
}

void RegFileParser::ParseHeader() {
  if (!m_rest.starts_with(RegFileHeader)) {
    Fail(L"the file does not begin with \"Windows Registry Editor Version 5.00\"");
  }
  m_rest.remove_prefix(RegFileHeader.size());
  EndLine();
}

void RegFileParser::ParseKey() {
  std::wstring_view line = m_rest.substr(0, m_rest.find_first_of(L"\r\n"));
  const std::size_t end = line.rfind(L']');  // a key's name may hold brackets
  if (end == std::wstring_view::npos) Fail(L"the key's closing bracket is missing");
  std::wstring_view name = line.substr(1, end - 1);
  const bool remove = name.starts_with(L'-');
  if (remove) name.remove_prefix(1);
  const std::size_t slash = name.find(L'\\');
  const auto hive = FindHive(name.substr(0, slash));
  if (!hive) Fail(L"the key does not begin with the name of a hive, such as HKEY_CURRENT_USER");
  RegFileChange change;
  change.kind = remove ? RegFileChange::Kind::RemoveKey : RegFileChange::Kind::AddKey;
  change.hive = *hive;
  if (slash != std::wstring_view::npos) change.path = name.substr(slash + 1);
  if (remove && change.path.empty()) Fail(L"a hive cannot be removed");
  m_key = remove ? std::nullopt : std::optional(change);
  m_changes.push_back(std::move(change));
  m_rest.remove_prefix(end + 1);
  EndLine();
}

void RegFileParser::ParseValue() {
  if (!m_key) Fail(L"a value outside a key");
  RegFileChange change = *m_key;
  if (!Take(L'@')) change.name = ParseQuoted();
  SkipBlanks();
  if (!Take(L'=')) Fail(L"no \"=\" after the value's name");
  SkipBlanks();
  if (Take(L'-')) {
    change.kind = RegFileChange::Kind::RemoveValue;
  } else {
    change.kind = RegFileChange::Kind::Set;
    change.value = ParseData();
  }
  m_changes.push_back(std::move(change));
  EndLine();
}

/// A text in quotes, which may run over several lines.
std::wstring RegFileParser::ParseQuoted() {
  const int start = m_line;
  std::wstring text;
  Skip();
  while (!m_rest.empty()) {
    if (Take(L'"')) return text;
    if (Take(L'\\') && Peek() != L'\\' && Peek() != L'"') {
      Fail(L"a \"\\\" stands alone; write \"\\\\\"");
    }
    text.push_back(Peek());
    Skip();
  }
  Fail(L"the closing quote is missing", start);
}

RegistryValue RegFileParser::ParseData() {
  if (Peek() == L'"') return TextValue(ParseQuoted());
  if (TakeWord(L"dword:")) {
    SkipBlanks();
    return NumberValue(ParseHex(8));
  }
  if (TakeWord(L"hex:")) return {RegistryValue::Binary, ParseByteList()};
  if (TakeWord(L"hex(")) {
    const std::uint32_t type = ParseHex(8);
    if (!TakeWord(L"):")) Fail(L"\"hex(\" is not followed by a type and \"):\"");
    return {type, ParseByteList()};
  }
  Fail(L"the value is neither a text in quotes nor dword:, hex: or hex(n):");
}

std::uint32_t RegFileParser::ParseHex(std::size_t maxDigits) {
  std::uint32_t number = 0;
  std::size_t digits = 0;
  for (int digit; (digit = HexDigit(Peek())) >= 0; ++digits) {
    number = number << 4 | static_cast<std::uint32_t>(digit);
    Skip();
  }
  if (digits == 0) Fail(L"hexadecimal digits are missing");
  if (digits > maxDigits) Fail(L"too many hexadecimal digits");
  return number;
}

std::vector<std::byte> RegFileParser::ParseByteList() {
  std::vector<std::byte> bytes;
  bool more = true;
  while (more) {
    SkipBlanks();
    if (TakeContinuation()) continue;
    if (HexDigit(Peek()) < 0) break;  // an empty list, or a comma at its end
    bytes.push_back(static_cast<std::byte>(ParseHex(2)));
    SkipBlanks();
    more = Take(L',');
  }
  return bytes;
}

/// A backslash at the end of the line, where the list goes on in the next one.
bool RegFileParser::TakeContinuation() {
  if (!Take(L'\\')) return false;
  EndLine();
  return true;
}

}  // namespace orvane::memory
