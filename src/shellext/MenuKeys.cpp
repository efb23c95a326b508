#include "shellext/MenuKeys.h"

#include <string>
#include <vector>

#include "support/Text.h"

namespace orvane {
namespace {

// MNC_EXECUTE and MNC_SELECT, in the result's high word; the position is in the low one.
constexpr std::intptr_t Execute = 2 << 16;
constexpr std::intptr_t Select = 3 << 16;

/// The letter that "&" marks, else 0; "&&" marks none.
wchar_t MarkedLetter(const std::wstring& caption) {
  std::size_t at = caption.find(L'&');
  while (at != std::wstring::npos && at + 1 < caption.size() && caption[at + 1] == L'&')
    at = caption.find(L'&', at + 2);
  return at == std::wstring::npos || at + 1 == caption.size() ? L'\0' : caption[at + 1];
}

/// Its first letter where none is marked.
wchar_t FirstLetter(const std::wstring& caption) {
  return caption.empty() || MarkedLetter(caption) != L'\0' ? L'\0' : caption[0];
}

std::vector<std::int32_t> Matches(Menus& menus, MenuHandle menu, wchar_t character,
                                  wchar_t (*letterOf)(const std::wstring&)) {
  std::vector<std::int32_t> matches;
  const std::int32_t count = menus.Count(menu);
  for (std::int32_t position = 0; position < count; ++position) {
    std::wstring caption;
    MenuHandle submenu = MenuHandle::None;
    if (!menus.Look(menu, position, caption, submenu)) continue;
    const wchar_t letter = letterOf(caption);
    if (letter != L'\0' && LowerCase(letter) == LowerCase(character)) matches.push_back(position);
  }
  return matches;
}

}  // namespace

std::intptr_t AnswerMenuChar(Menus& menus, MenuHandle menu, wchar_t character) {
  std::vector<std::int32_t> matches = Matches(menus, menu, character, MarkedLetter);
  if (matches.empty()) matches = Matches(menus, menu, character, FirstLetter);
  if (matches.empty()) return 0;
  if (matches.size() == 1) return Execute | matches[0];
  const std::int32_t highlighted = menus.Highlighted(menu);
  for (const std::int32_t position : matches)
    if (position > highlighted) return Select | position;
  return Select | matches[0];
}

}  // namespace orvane
