#include "designerapp/ChoiceMenu.h"

#include "designerapp/Handles.h"

namespace orvane::designerapp {
namespace {

constexpr std::size_t MaxLength = 100;  // characters of a text that are shown

/// As it stands: no letter of it is a key, and nothing of it a column.
std::wstring Literal(const std::wstring& text) {
  std::wstring literal;
  for (const wchar_t c : text.substr(0, MaxLength)) {
    literal += c == L'\t' ? L' ' : c;
    if (c == L'&') literal += c;
  }
  return literal;
}

}  // namespace

std::optional<std::size_t> ChooseText(HWND button, const std::vector<std::wstring>& texts) {
  const UniqueMenu menu(CreatePopupMenu());
  for (UINT_PTR id = 1; const std::wstring& text : texts)
    AppendMenuW(menu.get(), MF_STRING, id++, Literal(text).c_str());
  RECT place{};
  GetWindowRect(button, &place);
  const int chosen = TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON,
                                    place.left, place.bottom, 0, GetParent(button), nullptr);
  if (chosen <= 0) return std::nullopt;
  return static_cast<std::size_t>(chosen - 1);
}

}  // namespace orvane::designerapp
