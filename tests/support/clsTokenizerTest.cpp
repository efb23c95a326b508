#include "support/clsTokenizer.h"

#include <gtest/gtest.h>

#include "support/Error.h"
#include "support/SplitFields.h"
#include "support/clsStrTok.h"

namespace orvane {
namespace {

using namespace std::string_literals;

/// What the tokenizer finds in the text: each token in "[]", "q" behind a quoted one, then the
/// separator it ended with (a line end as "n" or "r").
std::wstring Tokens(clsTokenizer& tokenizer, const std::wstring& text) {
  tokenizer.Text(text);
  std::wstring shown;
  std::wstring token = L"left", separator = L"over";
  for (bool quoted = true; tokenizer.GetNextToken(token, separator, quoted);) {
    shown += L"[" + token + (quoted ? L"]q" : L"]");
    shown += separator == L"\n" ? L"n" : separator == L"\r" ? L"r" : separator;
  }
  EXPECT_EQ(token + separator, L"") << "nothing is left over at the end of " << text;
  return shown;
}

TEST(clsTokenizer, WhiteSpaceAndLineEnds) {
  clsTokenizer tokenizer;
  for (const auto& [text, tokens] : {std::pair(L"", L""),
                                     {L" ab \t cd ", L"[ab][cd]"},
                                     {L"one\r\ntwo", L"[one]n[two]"},
                                     {L"one\n\r\r\n", L"[one]n"},
                                     {L"one \r two", L"[one]r[two]"}})
    EXPECT_EQ(tokens, Tokens(tokenizer, text)) << text;
}

TEST(clsTokenizer, SeparatorsAndQuotes) {
  clsTokenizer tokenizer;
  tokenizer.SeparatorChars(L",");
  tokenizer.QuoteChars(L"'\"");
  for (const auto& [text, tokens] :
       {std::pair(L"a,,b ,c", L"[a],[],[b],[c]"),
        {L"\"a, 'b\" c", L"[a, 'b]q[c]"},
        {L"\"a\",b", L"[a]q,[b]"},
        // A quote behind text ends that token, which counts as quoted, and opens the next.
        {L"ab\"c d\"", L"[ab]q\"[c d]q"},
        {L"'a''b'", L"[a]q'[b]q"},
        {L"''", L"[]q"},
        {L"'a\nb'", L"[a]qn[b]q'[]q"}})
    EXPECT_EQ(tokens, Tokens(tokenizer, text)) << text;
}

TEST(clsTokenizer, CaseIsConvertedOutsideQuotes) {
  clsTokenizer tokenizer;
  tokenizer.QuoteChars(L"'");
  tokenizer.ConvertCase(clsTokenizer::CaseUpper);
  EXPECT_EQ(Tokens(tokenizer, L"ab 'Cd' eF"), L"[AB]q'[Cd]q[EF]");
  tokenizer.ConvertCase(clsTokenizer::CaseLower);
  EXPECT_EQ(Tokens(tokenizer, L"AB"), L"[ab]");
}

TEST(clsStrTok, TypedTokens) {
  using Token = clsStrTok::Token;
  clsStrTok tokens;
  const auto next = [&](std::int32_t type) { return tokens.GetNextToken(L",;", type); };
  tokens.Value(L";,-3;;abc,TRUE;0;7;40000");
  EXPECT_EQ(Token(std::int16_t{-3}), next(clsStrTok::TypeInteger));
  EXPECT_EQ(Token(L"abc"s), next(clsStrTok::TypeString));
  EXPECT_EQ(Token(true), next(clsStrTok::TypeBoolean));
  EXPECT_EQ(Token(false), next(clsStrTok::TypeBoolean));
  EXPECT_EQ(Token(), next(99));  // no such type, but a token
  EXPECT_EQ(Token(std::int32_t{40000}), next(clsStrTok::TypeLong));
  EXPECT_EQ(Token(), next(clsStrTok::TypeString));
  tokens.Value(L"40000,?");
  EXPECT_THROW(next(clsStrTok::TypeInteger), Error);
  EXPECT_THROW(next(clsStrTok::TypeBoolean), Error);
}

TEST(SplitFields, CountsAndEndsWithAnEmptyField) {
  using Fields = std::vector<std::wstring>;
  Fields fields{L"old"};
  EXPECT_EQ(0, SplitFields(L"", fields, true, L",", L""));
  EXPECT_EQ(fields, Fields{L""});
  EXPECT_EQ(4, SplitFields(L"0, 3,,'a,b'", fields, true, L",", L""));
  EXPECT_EQ(fields, (Fields{L"0", L" 3", L"", L"a,b", L""}));
  EXPECT_EQ(3, SplitFields(L"'a,b'\tc", fields, false, L",\\t", L"'"));
  EXPECT_EQ(fields, (Fields{L"a", L"b", L"c", L""}));
  EXPECT_EQ(L"\a\b\f\n\r\t\v'\"?\\", DecodeEscapes(L"\\a\\b\\f\\n\\r\\t\\v\\'\\\"\\?\\\\"));
  EXPECT_EQ(L"a\\n\\x41\\", DecodeEscapes(L"a\\\\n\\x41\\"));
}

}  // namespace
}  // namespace orvane
