#include "support/WildcardPattern.h"

#include <gtest/gtest.h>

#include <ctime>

#include "support/FileFilter.h"
#include "support/Text.h"

namespace orvane {
namespace {

TEST(WildcardPattern, Table) {
  struct {
    std::wstring pattern;
    std::vector<std::wstring> matches;
    std::vector<std::wstring> others;
  } const rows[] = {
      {L"", {L""}, {L"a"}},
      {L"*", {L"", L"a", L"c:\\x\\a.txt"}, {}},
      {L"*.txt", {L".txt", L"a.txt", L"c:\\a.b\\c.txt"}, {L"a.txt ", L"atxt", L"a.txtx"}},
      {L"a*b*c", {L"abc", L"aXbXbXc", L"abcbc"}, {L"ab", L"acb", L"abcd"}},
      {L"?", {L"a", L"*"}, {L"", L"ab"}},
      {L"?*?", {L"ab", L"abc"}, {L"a"}},
      {L"#", {L"0", L"9"}, {L"a", L"", L"12", L"\x0661"}},
      {L"v#.#", {L"v1.2"}, {L"v1.x"}},
      {L"[abc]", {L"a", L"c"}, {L"d", L"", L"ab", L"[abc]"}},
      {L"[a-cx]*", {L"b", L"xyz"}, {L"d"}},
      {L"[!a-c]", {L"d", L"!", L"-"}, {L"b", L"", L"dd"}},
      {L"[a-]", {L"a", L"-"}, {L"b"}},
      {L"[-a]", {L"a", L"-"}, {L"b"}},
      {L"[!]", {L"!"}, {L"a"}},
      {L"[a!]", {L"a", L"!"}, {L"b"}},
      {L"[*]?[?]#[#]", {L"*x?1#"}, {L"xx?1#", L"*xx1#", L"*x?1x"}},
      {L"[[]", {L"["}, {L"]"}},
      {L"a]", {L"a]"}, {L"a"}},
      {L"[", {L"["}, {L"", L"a"}},
      {L"a[b*", {L"a[b", L"a[bc"}, {L"ab"}},
      {L"[z-a]", {}, {L"", L"a", L"m", L"z", L"-"}},
      {L"[!z-a]", {L"a", L"z"}, {L""}},
      {L"a[]b", {L"ab"}, {L"a[]b"}},
  };
  for (const auto& row : rows) {
    const WildcardPattern pattern(row.pattern);
    for (const auto& text : row.matches)
      EXPECT_TRUE(pattern.Matches(text)) << row.pattern << L" " << text;
    for (const auto& text : row.others)
      EXPECT_FALSE(pattern.Matches(text)) << row.pattern << L" " << text;
  }
}

TEST(WildcardPattern, HardPatternsAreQuick) {
  const std::wstring name(255, L'a');
  std::wstring stars;
  std::wstring pairs;
  for (int i = 0; i < 1000; ++i) {
    stars += L'*';
    pairs += L"*a";
  }
  const std::clock_t start = std::clock();
  EXPECT_TRUE(WildcardPattern(stars).Matches(name));
  EXPECT_FALSE(WildcardPattern(stars + L"b").Matches(name));
  EXPECT_FALSE(WildcardPattern(pairs).Matches(name));
  EXPECT_FALSE(WildcardPattern(pairs + L"b").Matches(std::wstring(5000, L'a')));
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);
}

TEST(FileFilter, Lists) {
  struct {
    std::wstring filter;
    bool isEmpty;
    std::vector<std::wstring> matches;
    std::vector<std::wstring> others;
  } const rows[] = {
      {L"", true, {L"anything"}, {}},
      {L"*.txt,*.DOC", false, {L"A.TXT", L"b.doc"}, {L"c.exe"}},
      {L",,*.txt", false, {L"a.txt"}, {L"a"}},
      {L",,", false, {}, {L"a", L""}},
      {L"*.txt, *.doc", false, {L"a.txt"}, {L"b.doc"}},  // the blank belongs to the pattern
  };
  for (const auto& row : rows) {
    const FileFilter filter(row.filter);
    EXPECT_EQ(row.isEmpty, filter.IsEmpty()) << row.filter;
    for (const auto& name : row.matches)
      EXPECT_TRUE(filter.Matches(LowerCase(name))) << row.filter << name;
    for (const auto& name : row.others)
      EXPECT_FALSE(filter.Matches(LowerCase(name))) << row.filter << name;
  }
}

}  // namespace
}  // namespace orvane
