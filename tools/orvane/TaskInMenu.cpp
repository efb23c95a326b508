#include "TaskInMenu.h"

#include <stdexcept>
#include <vector>

#include "menudoc/MenuTree.h"
#include "support/Text.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

/// The captions from the first one below the root to the item, with "/" before each.
std::wstring PathOf(const MenuDocument& menu, std::size_t item) {
  std::wstring path;
  for (;;) {
    const auto& [parent, data] = menu.items[item];
    if (!data.IsTypeRoot()) path.insert(0, L"/" + data.Caption());
    if (parent < 1 || static_cast<std::size_t>(parent) > item) break;  // not an earlier item
    item = static_cast<std::size_t>(parent) - 1;
  }
  std::erase(path, L'&');
  return LowerCase(path);
}

std::wstring Searched(const std::string& name) {
  std::wstring wide = FromUtf8(name).value_or(std::wstring());
  std::erase(wide, L'&');
  return wide.empty() ? wide : L"/" + LowerCase(wide);
}

std::string ListOf(const MenuDocument& menu, const std::vector<std::size_t>& tasks) {
  constexpr std::size_t Most = 20;
  const std::vector<std::string> places = PlacesOf(menu);
  std::string list;
  for (std::size_t i = 0; i < tasks.size() && i < Most; ++i)
    list += (i == 0 ? " " : ", ") + places[tasks[i]] + " \"" +
            ToUtf8(menu.items[tasks[i]].data.Caption()) + "\"";
  return list + (tasks.size() > Most ? ", ..." : "");
}

std::vector<std::size_t> TasksOf(const MenuDocument& menu) {
  std::vector<std::size_t> tasks;
  for (std::size_t i = 0; i < menu.items.size(); ++i) {
    const clsOrvaneData& data = menu.items[i].data;
    if (data.IsTypeSelectionTask() || data.IsTypeCustomAction()) tasks.push_back(i);
  }
  return tasks;
}

}  // namespace

std::size_t FindTask(const MenuDocument& menu, const std::string& name) {
  const std::vector<std::size_t> tasks = TasksOf(menu);
  if (tasks.empty()) throw std::runtime_error("the menu has no action and no selection task");
  const std::vector<std::string> places = PlacesOf(menu);
  const std::wstring searched = Searched(name);
  std::vector<std::size_t> found;
  for (const std::size_t task : tasks) {
    if (places[task] == name) return task;
    if (PathOf(menu, task).ends_with(searched)) found.push_back(task);
  }
  if (found.size() == 1) return found.front();
  if (found.empty())
    throw std::runtime_error("the menu has no action or selection task \"" + name + "\"; it has" +
                             ListOf(menu, tasks));
  throw std::runtime_error("--task must say which of these is meant:" + ListOf(menu, found));
}

}  // namespace orvane::tool
