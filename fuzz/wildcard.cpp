// Wildcard patterns against the plain definition: a table of what each part of the pattern can
// cover. The input is a pattern, a line end and a text.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "support/FileFilter.h"
#include "support/WildcardPattern.h"

namespace {

bool InSet(const std::wstring& list, wchar_t c) {
  const bool excluded = list.size() > 1 && list[0] == L'!';
  for (std::size_t i = excluded ? 1 : 0; i < list.size(); ++i) {
    if (i + 2 < list.size() && list[i + 1] == L'-') {
      if (c >= list[i] && c <= list[i + 2]) return !excluded;
      i += 2;
    } else if (c == list[i]) {
      return !excluded;
    }
  }
  return excluded;
}

/// Whether the pattern covers exactly the text.
bool Covers(const std::wstring& pattern, const std::wstring& text) {
  std::vector<bool> ends(text.size() + 1);  // where the part of the pattern so far can end
  ends[0] = true;
  for (std::size_t p = 0; p < pattern.size(); ++p) {
    const std::size_t close = pattern[p] == L'[' ? pattern.find(L']', p) : pattern.npos;
    if (close == p + 1) {
      p = close;
      continue;
    }
    std::vector<bool> next(text.size() + 1);
    if (pattern[p] == L'*') {
      bool any = false;
      for (std::size_t t = 0; t <= text.size(); ++t) next[t] = any = any || ends[t];
    } else {
      for (std::size_t t = 0; t < text.size(); ++t) {
        const wchar_t c = text[t];
        const bool fits = close != pattern.npos ? InSet(pattern.substr(p + 1, close - p - 1), c)
                          : pattern[p] == L'?'  ? true
                          : pattern[p] == L'#'  ? c >= L'0' && c <= L'9'
                                                : c == pattern[p];
        next[t + 1] = ends[t] && fits;
      }
      if (close != pattern.npos) p = close;
    }
    ends = next;
  }
  return ends[text.size()];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 2000) return 0;
  const std::wstring input(data, data + size);
  const std::size_t end = std::min(input.find(L'\n'), input.size());
  const std::wstring pattern = input.substr(0, end);
  const std::wstring text = input.substr(std::min(end + 1, input.size()));
  if (orvane::WildcardPattern(pattern).Matches(text) != Covers(pattern, text)) std::abort();
  orvane::FileFilter(pattern).Matches(text);
  return 0;
}
