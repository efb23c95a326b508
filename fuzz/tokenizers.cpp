// The tokenizers against their definitions written down as tables and loops. The first byte chooses
// how the tokenizer is set up, the rest is the text.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "support/SplitFields.h"
#include "support/Text.h"
#include "support/clsStrTok.h"
#include "support/clsTokenizer.h"

namespace {

struct Settings {
  std::wstring white, separators, quotes, ends;
  std::int32_t convert;
};

struct Token {
  std::wstring text, separator;
  bool quoted = false, found = false;
};

bool In(const std::wstring& set, wchar_t c) {
  return set.find(c) != set.npos;
}

enum Action { Skip, Begin, Append, Complete, Stop, End, Hold, Open, Quote };

/// One row for each class (quote, separator, white space, token character), one column for each
/// state (nothing, token, quoted, complete).
constexpr Action Table[4][4] = {
    {Open, Hold, Quote, Hold},
    {End, End, Append, End},
    {Skip, Complete, Append, Skip},
    {Begin, Append, Append, Stop},
};

Token Next(const Settings& s, const std::wstring& text, std::size_t& at) {
  Token token;
  token.found = at < text.size();
  int state = 0;
  wchar_t open = 0;
  while (at < text.size()) {
    const wchar_t c = text[at];
    const int row = In(s.quotes, c) ? 0 : In(s.separators, c) ? 1 : In(s.white, c) ? 2 : 3;
    if (row == 3 && In(s.ends, c)) {
      while (at < text.size() && In(s.ends, text[at])) token.separator = text[at++];
      return token;
    }
    token.quoted |= row == 0;
    Action action = Table[row][state];
    if (action == Quote && c != open) action = Append;
    if (action == Hold) token.separator = c;
    if (action == Hold || action == Stop) return token;
    ++at;
    if (action == End) {
      token.separator = c;
      return token;
    }
    if (action == Begin || action == Append) {
      token.text += state == 2       ? c
                    : s.convert == 1 ? orvane::UpperCase(c)
                    : s.convert == 2 ? orvane::LowerCase(c)
                                     : c;
    }
    if (action == Begin) state = 1;
    if (action == Complete || action == Quote) state = 3;
    if (action == Open) {
      state = 2;
      open = c;
    }
  }
  return token;
}

void CheckTokenizer(const Settings& s, const std::wstring& text) {
  orvane::clsTokenizer tokenizer;
  tokenizer.WhiteSpaceChars(s.white);
  tokenizer.SeparatorChars(s.separators);
  tokenizer.QuoteChars(s.quotes);
  tokenizer.EOLChars(s.ends);
  tokenizer.ConvertCase(s.convert);
  tokenizer.Text(text);
  std::size_t at = 0;
  for (std::size_t calls = 0;; ++calls) {
    const Token expected = Next(s, text, at);
    std::wstring token, separator;
    bool quoted = false;
    const bool found = tokenizer.GetNextToken(token, separator, quoted);
    if (found != expected.found || token != expected.text || separator != expected.separator ||
        quoted != expected.quoted || calls > text.size())
      std::abort();
    if (!found) return;
  }
}

void CheckStrTok(const std::wstring& delimiters, const std::wstring& text) {
  orvane::clsStrTok tokens;
  tokens.Value(text);
  std::wstring expected;
  for (const wchar_t c : text + (delimiters.empty() ? L"" : delimiters.substr(0, 1))) {
    if (!In(delimiters, c)) {
      expected += c;
    } else if (!expected.empty()) {
      if (tokens.GetNextToken(delimiters, orvane::clsStrTok::TypeString) !=
          orvane::clsStrTok::Token(expected))
        std::abort();
      expected.clear();
    }
  }
  if (!delimiters.empty() && tokens.GetNextToken(delimiters, 8).index() != 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const unsigned choice = data[0];
  const std::wstring text(data + 1, data + size);
  Settings s;
  s.white = choice & 1 ? L" \t" : std::wstring(1, L'\0');
  s.separators = choice & 2 ? L",;" : choice & 4 ? std::wstring(1, L'\0') : L"";
  s.quotes = choice & 8 ? L"'\"" : L"";
  s.ends = choice & 16 ? L"\r\n" : L"";
  s.convert = static_cast<std::int32_t>(choice >> 5 & 3);
  CheckTokenizer(s, text);
  CheckStrTok(s.separators, text);

  std::vector<std::wstring> fields;
  const std::int32_t count = orvane::SplitFields(text, fields, choice & 8, L",", L"\\t");
  if (fields.size() != static_cast<std::size_t>(count) + 1 || !fields.back().empty()) std::abort();
  return 0;
}
