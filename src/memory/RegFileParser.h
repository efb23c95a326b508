#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "memory/RegFileChange.h"

namespace orvane::memory {

/// Reads the text of a registry export. Throws an Error that names the line.
class RegFileParser {
 public:
  explicit RegFileParser(std::wstring_view text) : m_rest(text) {}

  std::vector<RegFileChange> Parse();

 private:
  [[noreturn]] void Fail(const wchar_t* what, int line) const;
  [[noreturn]] void Fail(const wchar_t* what) const { Fail(what, m_line); }

  wchar_t Peek() const { return m_rest.empty() ? L'\0' : m_rest.front(); }
  void Skip();
  void SkipBlanks();
  void SkipLine();
  bool Take(wchar_t character);
  bool TakeWord(std::wstring_view word);
  void EndLine();

  void ParseHeader();
  void ParseKey();
  void ParseValue();
  std::wstring ParseQuoted();
  RegistryValue ParseData();
  std::uint32_t ParseHex(std::size_t maxDigits);
  std::vector<std::byte> ParseByteList();
  bool TakeContinuation();

  std::wstring_view m_rest;
  int m_line = 1;
  std::optional<RegFileChange> m_key;  // the section's
  std::vector<RegFileChange> m_changes;
};

}  // namespace orvane::memory
