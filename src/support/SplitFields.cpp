#include "support/SplitFields.h"

#include "support/clsTokenizer.h"

namespace orvane {

std::int32_t SplitFields(const std::wstring& text, std::vector<std::wstring>& fields, bool quoting,
                         std::wstring_view separators, std::wstring_view whiteSpace) {
  clsTokenizer tokenizer;
  tokenizer.WhiteSpaceChars(DecodeEscapes(whiteSpace));
  tokenizer.SeparatorChars(DecodeEscapes(separators));
  tokenizer.Text(text);
  if (quoting) tokenizer.QuoteChars(L"'\"");

  fields.clear();
  std::wstring field;
  std::wstring separator;
  bool quoted = false;
  while (tokenizer.GetNextToken(field, separator, quoted)) fields.push_back(field);
  fields.emplace_back();
  return static_cast<std::int32_t>(fields.size() - 1);
}

std::wstring DecodeEscapes(std::wstring_view text) {
  constexpr std::wstring_view letters = L"abfnrtv'\"?\\";
  constexpr std::wstring_view characters = L"\a\b\f\n\r\t\v'\"?\\";
  std::wstring decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == L'\\' && i + 1 < text.size();
    const std::size_t letter = escape ? letters.find(text[i + 1]) : letters.npos;
    if (letter == letters.npos) {
      decoded += text[i];
    } else {
      decoded += characters[letter];
      ++i;
    }
  }
  return decoded;
}

}  // namespace orvane
