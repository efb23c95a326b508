#include "menudoc/NamesInText.h"

#include <algorithm>

#include "menudoc/SpecialFolders.h"

namespace orvane {
namespace {

bool IsLetter(wchar_t c) {
  return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c == L'_';
}

bool IsNamePart(wchar_t c) {
  return IsLetter(c) || (c >= L'0' && c <= L'9');
}

/// The name at the start of what follows a percent sign; none when no name and percent sign stand
/// there.
std::wstring_view NameAt(std::wstring_view text) {
  const auto end = std::ranges::find_if_not(text, IsNamePart);
  if (end == text.end() || *end != L'%' || end == text.begin() || !IsLetter(text.front()))
    return {};
  return {text.begin(), end};
}

std::wstring PathOf(Shell& shell, const ItemIdList& pidl) {
  return pidl ? shell.Path(pidl) : std::wstring();
}

std::wstring PathOfFolder(Shell& shell, const SpecialFolder& folder) {
  if (folder.number != SpecialFolder::NoNumber)
    return PathOf(shell, shell.SpecialFolder(WindowHandle::None, folder.number));
  // The user may have moved it, which only its own name tells.
  std::wstring moved =
      PathOf(shell, shell.Parse(WindowHandle::None, L"shell:" + std::wstring(folder.below)));
  if (!moved.empty()) return moved;
  const std::wstring profile =
      PathOf(shell, shell.SpecialFolder(WindowHandle::None, SpecialFolder::Profile));
  return profile.empty() ? profile : profile + L"\\" + std::wstring(folder.below);
}

}  // namespace

ExpandedText ExpandNames(std::wstring_view text, const DocumentSources& sources) {
  ExpandedText result;
  while (!text.empty()) {
    const std::size_t sign = std::min(text.find(L'%'), text.size());
    result.text += text.substr(0, sign);
    text.remove_prefix(sign);
    if (text.empty()) break;
    const std::wstring_view rest = text.substr(1);
    const std::wstring_view name = NameAt(rest);
    if (name.empty()) {
      result.text += L'%';
      text.remove_prefix(rest.starts_with(L'%') ? 2 : 1);
      continue;
    }
    const auto value = sources.value ? sources.value(name) : std::nullopt;
    if (value)
      result.text += *value;
    else if (result.unknown.empty())
      result.unknown = name;
    text.remove_prefix(name.size() + 2);
  }
  return result;
}

std::wstring EscapeNames(std::wstring_view text) {
  std::wstring escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    escaped += text[i];
    const std::wstring_view rest = text.substr(i + 1);
    if (text[i] == L'%' && (rest.starts_with(L'%') || !NameAt(rest).empty())) escaped += L'%';
  }
  return escaped;
}

std::optional<std::wstring> SpecialFolderPath(Shell& shell, std::wstring_view name) {
  const SpecialFolder* folder = FindSpecialFolder(name);
  if (!folder) return std::nullopt;
  std::wstring path = PathOfFolder(shell, *folder);
  if (path.empty()) return std::nullopt;
  return path;
}

}  // namespace orvane
