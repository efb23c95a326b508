#include "memory/MenuText.h"

namespace orvane::memory {
namespace {

void Append(std::wstring& text, const Menus& menus, MenuHandle menu, std::size_t level) {
  for (const MenuEntry& entry : menus.Entries(menu)) {
    text.append(2 * level, L' ');
    text += entry.separator ? L"--------" : entry.caption;
    if (entry.submenu != MenuHandle::None) text += L" >";
    if (!entry.separator && entry.state != MenuEntry::State::Enabled) text += L" (disabled)";
    text += L'\n';
    Append(text, menus, entry.submenu, level + 1);
  }
}

}  // namespace

std::wstring MenuText(const Menus& menus, MenuHandle menu) {
  std::wstring text;
  Append(text, menus, menu, 0);
  return text;
}

}  // namespace orvane::memory
