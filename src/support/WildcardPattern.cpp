#include "support/WildcardPattern.h"

namespace orvane {
namespace {

constexpr std::size_t None = static_cast<std::size_t>(-1);

}  // namespace

bool WildcardPattern::Element::Matches(wchar_t wanted) const {
  switch (kind) {
    case Kind::Any:
      return true;
    case Kind::Digit:
      return wanted >= L'0' && wanted <= L'9';
    case Kind::Set:
      for (std::size_t i = 0; i < set.size(); i += 2)
        if (wanted >= set[i] && wanted <= set[i + 1]) return !excluded;
      return excluded;
    default:
      return wanted == character;
  }
}

WildcardPattern::WildcardPattern(std::wstring_view pattern) {
  using Kind = Element::Kind;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const std::size_t close = pattern[i] == L'[' ? pattern.find(L']', i) : None;
    if (close != None) {
      AddSet(pattern.substr(i + 1, close - i - 1));
      i = close;
    } else if (pattern[i] == L'*') {
      // A row of them is one.
      if (m_elements.empty() || m_elements.back().kind != Kind::Run)
        m_elements.push_back({Kind::Run});
    } else if (pattern[i] == L'?') {
      m_elements.push_back({Kind::Any});
    } else if (pattern[i] == L'#') {
      m_elements.push_back({Kind::Digit});
    } else {
      m_elements.push_back({Kind::Character, pattern[i]});
    }
  }
}

void WildcardPattern::AddSet(std::wstring_view characters) {
  if (characters.empty()) return;
  Element element{Element::Kind::Set};
  element.excluded = characters.size() > 1 && characters.front() == L'!';
  if (element.excluded) characters.remove_prefix(1);
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const bool range = i + 2 < characters.size() && characters[i + 1] == L'-';
    element.set += characters[i];
    element.set += characters[range ? i + 2 : i];
    if (range) i += 2;
  }
  m_elements.push_back(std::move(element));
}

// Only the last run is ever taken up again: whatever an earlier one could give, the later can too.
bool WildcardPattern::Matches(std::wstring_view text) const {
  std::size_t element = 0;
  std::size_t run = None;  // the last run met
  std::size_t runEnd = 0;  // how far it reaches so far
  for (std::size_t i = 0; i < text.size();) {
    const bool more = element < m_elements.size();
    if (more && m_elements[element].kind == Element::Kind::Run) {
      run = element++;
      runEnd = i;
    } else if (more && m_elements[element].Matches(text[i])) {
      ++element;
      ++i;
    } else if (run != None) {
      element = run + 1;
      i = ++runEnd;
    } else {
      return false;
    }
  }
  while (element < m_elements.size() && m_elements[element].kind == Element::Kind::Run) ++element;
  return element == m_elements.size();
}

}  // namespace orvane
