#include "support/FileFilter.h"

#include <algorithm>
#include <string>

#include "support/Text.h"
#include "support/clsStrTok.h"

namespace orvane {

FileFilter::FileFilter(std::wstring_view filter) : m_isEmpty(filter.empty()) {
  clsStrTok tokens;
  tokens.Value(LowerCase(filter));
  for (;;) {
    const auto token = tokens.GetNextToken(L",", clsStrTok::TypeString);
    const auto* text = std::get_if<std::wstring>(&token);
    if (!text) return;
    m_patterns.emplace_back(*text);
  }
}

bool FileFilter::Matches(std::wstring_view lowerCaseName) const {
  return m_isEmpty || std::ranges::any_of(m_patterns, [&](const WildcardPattern& pattern) {
           return pattern.Matches(lowerCaseName);
         });
}

}  // namespace orvane
