#include "support/WildcardPattern.h"

#include <gtest/gtest.h>

#include <ctime>

namespace orvane {
namespace {

TEST(WildcardPattern, Table) {
  const struct {
    std::wstring pattern;
    std::vector<std::wstring> matches, others;
  } rows[] = {
      {L"", {L""}, {L"a"}},
      {L"*.txt", {L".txt", L"c:\\a.b\\c.txt"}, {L"a.txt ", L"atxt", L"a.txtx"}},
      {L"a*b*c", {L"abc", L"aXbXbXc", L"abcbc"}, {L"ab", L"acb", L"abcd"}},
      {L"?#*", {L"v0", L"#9x"}, {L"va", L"v", L"", L"v\x0661"}},
      {L"[a-cx]*", {L"b", L"xyz"}, {L"d", L"", L"[a-cx]"}},
      {L"[!a-c]", {L"d", L"!", L"-"}, {L"b", L"", L"dd"}},
      {L"[-a-]", {L"a", L"-"}, {L"b"}},
      {L"[!]", {L"!"}, {L"a"}},
      {L"[*[][?][#]", {L"*?#", L"[?#"}, {L"x?#", L"*x#", L"*?1"}},
      {L"[z-a]", {}, {L"", L"a", L"m", L"z", L"-"}},
      {L"a[b*", {L"a[b", L"a[bc"}, {L"ab"}},
      {L"[!z-a]", {L"a", L"z"}, {L""}},
      {L"a[]b", {L"ab"}, {L"a[]b"}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.pattern.c_str());
    const WildcardPattern pattern(row.pattern);
    for (const auto& text : row.matches) EXPECT_TRUE(pattern.Matches(text)) << text;
    for (const auto& text : row.others) EXPECT_FALSE(pattern.Matches(text)) << text;
  }
}

TEST(WildcardPattern, HardPatternsAreQuick) {
  const std::wstring stars(1000, L'*');
  std::wstring pairs;
  for (int i = 0; i < 1000; ++i) pairs += L"*a";
  const std::clock_t start = std::clock();
  EXPECT_FALSE(WildcardPattern(stars + L"b").Matches(std::wstring(255, L'a')));
  EXPECT_FALSE(WildcardPattern(pairs + L"b").Matches(std::wstring(5000, L'a')));
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);
}

}  // namespace
}  // namespace orvane
