#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// A file-name pattern: "*" any run of characters, "?" one character, "#" one digit, "[abc]" or
/// "[a-z]" one of a set, "[!abc]" one outside it; every other character itself. A set that is not
/// closed is the "[" itself; "[]" stands for nothing, and a range that runs backwards for no
/// character. A "]" cannot be in a set, a "-" can, first or last. Case counts: callers lower both
/// sides.
class WildcardPattern {
 public:
  explicit WildcardPattern(std::wstring_view pattern);

  /// Whether the pattern covers the whole text; takes time in order of both lengths multiplied.
  bool Matches(std::wstring_view text) const;

 private:
  struct Element {
    enum class Kind { Character, Any, Digit, Set, Run };
    Kind kind;
    wchar_t character = 0;
    bool excluded = false;
    std::wstring set = {};  // pairs: first and last of a range

    bool Matches(wchar_t wanted) const;
  };

  void AddSet(std::wstring_view characters);

  std::vector<Element> m_elements;
};

}  // namespace orvane
