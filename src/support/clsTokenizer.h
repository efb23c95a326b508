#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace orvane {

/// Splits a text by classes of characters: white space, separators, quotes, line ends.
class clsTokenizer {
 public:
  enum Case : std::int32_t { CaseKept = 0, CaseUpper = 1, CaseLower = 2 };

  std::int32_t ConvertCase() const { return m_convertCase; }
  void ConvertCase(std::int32_t convertCase) { m_convertCase = convertCase; }
  const std::wstring& EOLChars() const { return m_eolChars; }
  void EOLChars(std::wstring characters) { m_eolChars = std::move(characters); }
  const std::wstring& QuoteChars() const { return m_quoteChars; }
  void QuoteChars(std::wstring characters) { m_quoteChars = std::move(characters); }
  const std::wstring& SeparatorChars() const { return m_separatorChars; }
  void SeparatorChars(std::wstring characters) { m_separatorChars = std::move(characters); }
  const std::wstring& WhiteSpaceChars() const { return m_whiteSpaceChars; }
  void WhiteSpaceChars(std::wstring characters) { m_whiteSpaceChars = std::move(characters); }
  const std::wstring& Text() const { return m_text; }
  /// Starts anew at the text's first character.
  void Text(std::wstring text) {
    m_text = std::move(text);
    m_position = 0;
  }

  /// The next token, the separator that ended it (empty at the end of the text) and whether any of
  /// it was quoted. False when the text was used up before the call.
  bool GetNextToken(std::wstring& strToken, std::wstring& strSeparatorUsed, bool& fQuoted);

 private:
  enum class CharClass { WhiteSpace, Separator, Quote, Token, LineEnd };
  enum class State { Nothing, Token, Quoted, Complete };

  CharClass CharType(wchar_t character) const;
  void AppendToken(wchar_t character);
  // Each tells whether scanning goes on.
  bool HandleWhiteSpace(wchar_t character);
  bool HandleToken(wchar_t character);
  bool HandleSeparator(wchar_t character, std::wstring& used);
  bool HandleQuote(wchar_t character, std::wstring& used);
  bool HandleEOF(std::wstring& used);

  std::wstring m_whiteSpaceChars = L" \t";
  std::wstring m_separatorChars;
  std::wstring m_quoteChars;
  std::wstring m_eolChars = L"\r\n";
  std::wstring m_text;
  std::int32_t m_convertCase = CaseKept;
  State m_state = State::Nothing;
  std::wstring m_token;
  std::size_t m_position = 0;  // of the next character to read, 0-based
  wchar_t m_openQuote = 0;
};

}  // namespace orvane
