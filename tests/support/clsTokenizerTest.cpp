#include "support/clsTokenizer.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "support/Error.h"
#include "support/SplitFields.h"
#include "support/clsStrTok.h"

namespace orvane {
namespace {

using namespace std::string_literals;

/// Token, separator, quoted, result of the call.
using Step = std::tuple<std::wstring, std::wstring, bool, bool>;

std::vector<Step> Take(clsTokenizer& tokenizer, std::size_t count) {
  std::vector<Step> steps;
  for (std::size_t i = 0; i < count; ++i) {
    std::wstring token = L"left";
    std::wstring separator = L"over";
    bool quoted = true;
    const bool found = tokenizer.GetNextToken(token, separator, quoted);
    steps.emplace_back(token, separator, quoted, found);
  }
  return steps;
}

struct Row {
  std::wstring text;
  std::vector<Step> steps;
};

TEST(clsTokenizer, WhiteSpaceAndLineEnds) {
  const Row rows[] = {
      {L"", {{L"", L"", false, false}}},
      {L"ab cd", {{L"ab", L"", false, true}, {L"cd", L"", false, true}, {L"", L"", false, false}}},
      {L"  ab \t ", {{L"ab", L"", false, true}, {L"", L"", false, false}}},
      {L"   ", {{L"", L"", false, true}, {L"", L"", false, false}}},
      {L"one\r\ntwo", {{L"one", L"\n", false, true}, {L"two", L"", false, true}}},
      {L"one\n\r\r\n", {{L"one", L"\n", false, true}, {L"", L"", false, false}}},
      {L"one \r two", {{L"one", L"\r", false, true}, {L"two", L"", false, true}}},
  };
  for (const Row& row : rows) {
    clsTokenizer tokenizer;
    tokenizer.Text(row.text);
    EXPECT_EQ(row.steps, Take(tokenizer, row.steps.size())) << row.text;
  }
}

TEST(clsTokenizer, SeparatorsAndQuotes) {
  const Row rows[] = {
      {L"a,b", {{L"a", L",", false, true}, {L"b", L"", false, true}, {L"", L"", false, false}}},
      {L"a,,b", {{L"a", L",", false, true}, {L"", L",", false, true}, {L"b", L"", false, true}}},
      {L"a ,b", {{L"a", L",", false, true}, {L"b", L"", false, true}}},
      {L"\"a, 'b\" c", {{L"a, 'b", L"", true, true}, {L"c", L"", false, true}}},
      {L"\"a\",b", {{L"a", L",", true, true}, {L"b", L"", false, true}}},
      // A quote behind text ends that token, which counts as quoted, and opens the next.
      {L"ab\"c d\"", {{L"ab", L"\"", true, true}, {L"c d", L"", true, true}}},
      {L"ab 'c'", {{L"ab", L"'", true, true}, {L"c", L"", true, true}}},
      {L"'a''b'", {{L"a", L"'", true, true}, {L"b", L"", true, true}}},
      {L"''", {{L"", L"", true, true}, {L"", L"", false, false}}},
      {L"'open", {{L"open", L"", true, true}, {L"", L"", false, false}}},
      {L"'a\nb'", {{L"a", L"\n", true, true}, {L"b", L"'", true, true}, {L"", L"", true, true}}},
  };
  for (const Row& row : rows) {
    clsTokenizer tokenizer;
    tokenizer.SeparatorChars(L",");
    tokenizer.QuoteChars(L"'\"");
    tokenizer.Text(row.text);
    EXPECT_EQ(row.steps, Take(tokenizer, row.steps.size())) << row.text;
  }
}

TEST(clsTokenizer, CaseIsConvertedOutsideQuotes) {
  clsTokenizer tokenizer;
  tokenizer.QuoteChars(L"'");
  tokenizer.ConvertCase(clsTokenizer::CaseUpper);
  tokenizer.Text(L"ab 'Cd' eF");
  EXPECT_EQ((std::vector<Step>{
                {L"AB", L"'", true, true}, {L"Cd", L"", true, true}, {L"EF", L"", false, true}}),
            Take(tokenizer, 3));
  tokenizer.ConvertCase(clsTokenizer::CaseLower);
  tokenizer.Text(L"AB");
  EXPECT_EQ((std::vector<Step>{{L"ab", L"", false, true}}), Take(tokenizer, 1));
}

// A list of section names: the first empty name ends it.
TEST(clsTokenizer, ZeroSeparatedList) {
  clsTokenizer tokenizer;
  tokenizer.WhiteSpaceChars(L"\0"s);
  tokenizer.SeparatorChars(L"\0"s);
  tokenizer.Text(L"a b\0c\0\0"s);
  EXPECT_EQ(
      (std::vector<Step>{
          {L"a b", L"\0"s, false, true}, {L"c", L"\0"s, false, true}, {L"", L"\0"s, false, true}}),
      Take(tokenizer, 3));
}

TEST(clsStrTok, TypedTokens) {
  clsStrTok tokens;
  tokens.Value(L"12,,34");
  EXPECT_EQ(clsStrTok::Token(std::int32_t{12}), tokens.GetNextToken(L",", clsStrTok::TypeLong));
  EXPECT_EQ(clsStrTok::Token(std::int32_t{34}), tokens.GetNextToken(L",", clsStrTok::TypeLong));
  EXPECT_EQ(clsStrTok::Token(), tokens.GetNextToken(L",", clsStrTok::TypeLong));

  tokens.Value(L";,-3;abc,TRUE;0;1;x");
  EXPECT_EQ(clsStrTok::Token(std::int16_t{-3}), tokens.GetNextToken(L",;", clsStrTok::TypeInteger));
  EXPECT_EQ(clsStrTok::Token(L"abc"s), tokens.GetNextToken(L",;", clsStrTok::TypeString));
  EXPECT_EQ(clsStrTok::Token(true), tokens.GetNextToken(L",;", clsStrTok::TypeBoolean));
  EXPECT_EQ(clsStrTok::Token(false), tokens.GetNextToken(L",;", clsStrTok::TypeBoolean));
  EXPECT_EQ(clsStrTok::Token(), tokens.GetNextToken(L",;", 99));  // no such type, but a token
  EXPECT_EQ(clsStrTok::Token(L"x"s), tokens.GetNextToken(L",;", clsStrTok::TypeString));

  tokens.Value(L"40000,x,?");
  EXPECT_THROW(tokens.GetNextToken(L",", clsStrTok::TypeInteger), Error);
  EXPECT_THROW(tokens.GetNextToken(L",", clsStrTok::TypeLong), Error);
  EXPECT_THROW(tokens.GetNextToken(L",", clsStrTok::TypeBoolean), Error);
  EXPECT_EQ(clsStrTok::Token(), tokens.GetNextToken(L",", clsStrTok::TypeString));

  tokens.Value(L"abc");
  tokens.Reset();
  EXPECT_EQ(clsStrTok::Token(), tokens.GetNextToken(L",", clsStrTok::TypeString));
  tokens.Value(L"a,b");  // no delimiters: the whole text
  EXPECT_EQ(clsStrTok::Token(L"a,b"s), tokens.GetNextToken(L"", clsStrTok::TypeString));
}

TEST(SplitFields, Fields) {
  struct {
    const wchar_t* text;
    std::vector<std::wstring> fields;
  } const rows[] = {
      {L"", {}},
      {L"5", {L"5"}},
      {L"0,3,7", {L"0", L"3", L"7"}},
      {L"0, 3", {L"0", L" 3"}},
      {L",,", {L"", L""}},
      {L"'a,b',\"c,d\"", {L"a,b", L"c,d"}},
  };
  for (const auto& row : rows) {
    std::vector<std::wstring> fields{L"old"};
    const auto count = static_cast<std::size_t>(SplitFields(row.text, fields, true, L",", L""));
    ASSERT_EQ(row.fields.size(), count) << row.text;
    ASSERT_EQ(count + 1, fields.size());
    EXPECT_EQ(L"", fields.back());
    fields.pop_back();
    EXPECT_EQ(row.fields, fields) << row.text;
  }
  std::vector<std::wstring> fields;
  EXPECT_EQ(3, SplitFields(L"'a,b'\tc", fields, false, L",\\t", L"'"));
  EXPECT_EQ((std::vector<std::wstring>{L"a", L"b", L"c", L""}), fields);
}

TEST(SplitFields, Escapes) {
  EXPECT_EQ(L"a\\nb", DecodeEscapes(L"a\\\\nb"));
  EXPECT_EQ(L"a\tb", DecodeEscapes(L"a\\tb"));
  EXPECT_EQ(L"\a\b\f\n\r\t\v'\"?\\", DecodeEscapes(L"\\a\\b\\f\\n\\r\\t\\v\\'\\\"\\?\\\\"));
  EXPECT_EQ(L"\\x41\\", DecodeEscapes(L"\\x41\\"));
}

}  // namespace
}  // namespace orvane
