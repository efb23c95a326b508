#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "designer/History.h"

namespace orvane::designer {

// What a user does to a menu. Each command is one step of the history; one that cannot be done in
// the place where it is asked for does nothing. The answer is the items to be selected afterwards.
using Items = std::vector<MenuItem*>;

/// The items in the menu's order, without those that lie inside others; a root stays where it is
/// and is left out.
Items Movable(const MenuItem& top, const Items& items);

/// Where something new goes when `item` is selected: to the end of what holds items, behind
/// anything else. Null is the top: then it is the end of the first root.
Place PlaceFor(MenuItem& top, MenuItem* item);

Items Insert(History& history, clsOrvaneData data, Place at);
Items Insert(History& history, std::vector<clsOrvaneData> records, Place at);
/// The item next to what went.
Items Remove(History& history, const MenuItem& top, const Items& items);
Items Duplicate(History& history, const MenuItem& top, const Items& items);
/// None of the items may hold the place.
Items MoveTo(History& history, const MenuItem& top, const Items& items, Place to);
bool CanMoveTo(const MenuItem& top, const Items& items, const Place& to);

/// Up and Down pass a neighbour, and leave the popup at its ends; In goes into the popup above, Out
/// behind the popup that holds the items.
enum class Direction { Up, Down, In, Out };
Items Move(History& history, const MenuItem& top, const Items& items, Direction direction);

/// Lets the file items that open a shortcut open what `targetOf` makes of its path, where that is
/// not empty. The answer is those that were changed.
Items ReplaceShortcuts(History& history, const Items& items,
                       const std::function<std::wstring(const std::wstring&)>& targetOf);
bool IsShortcut(const std::wstring& path);

/// The items as the text of a menu document, and back. DocumentError for a text that is none. A
/// pasted root stands for what it holds.
std::string CopyText(const MenuItem& top, const Items& items);
Items Paste(History& history, std::string_view text, Place at);

/// Puts another menu in the place of the whole one.
void Replace(History& history, MenuItem& top, MenuItem::Owner other, const std::wstring& name);

/// The next item behind `after`, round the end, that has the text in any of its own, in any case.
/// Null when there is none.
MenuItem* FindText(MenuItem& top, const std::wstring& text, const MenuItem* after);

}  // namespace orvane::designer
