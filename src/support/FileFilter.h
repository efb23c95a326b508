#pragma once

#include <string_view>
#include <vector>

#include "support/WildcardPattern.h"

namespace orvane {

/// The comma-separated patterns of a filter; a name passes when one of them covers it. Case does
/// not count, and an empty filter lets every name pass. A filter of commas alone lets none.
class FileFilter {
 public:
  explicit FileFilter(std::wstring_view filter);

  bool IsEmpty() const { return m_isEmpty; }
  bool Matches(std::wstring_view lowerCaseName) const;

 private:
  bool m_isEmpty;
  std::vector<WildcardPattern> m_patterns;
};

}  // namespace orvane
