#include "Subcommands.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace orvane::tool {
namespace {

std::vector<std::string> NamesOf(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::App* subcommand : app.get_subcommands(nullptr))
    names.push_back(subcommand->get_name());
  return names;
}

/// How many characters must be added, removed or changed to get from one word to the other; 0 for
/// its beginning.
std::size_t Distance(const std::string& from, const std::string& to) {
  if (to.starts_with(from)) return 0;
  std::vector<std::size_t> row(to.size() + 1);
  for (std::size_t i = 0; i < row.size(); ++i) row[i] = i;
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t changed = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({row[j] + 1, diagonal + 1, changed});
    }
  }
  return row.back();
}

std::string Unknown(const CLI::App& app, const std::string& word) {
  const std::vector<std::string> names = NamesOf(app);
  const std::string nearest =
      std::ranges::min(names, {}, [&](const std::string& name) { return Distance(word, name); });
  std::string text = "\"" + word + "\" is no subcommand; ";
  if (Distance(word, nearest) <= nearest.size() / 2)
    return text + "did you mean \"" + nearest + "\"?";
  text += "there are";
  for (const std::string& name : names) text += (name == names.front() ? " " : ", ") + name;
  return text;
}

}  // namespace

void CheckSubcommands(const CLI::App& app, std::span<const std::string> arguments) {
  const CLI::App* level = &app;
  for (const std::string& word : arguments) {
    const std::vector<std::string> names = NamesOf(*level);
    if (names.empty() || word.starts_with('-')) return;
    if (std::ranges::find(names, word) == names.end())
      throw std::runtime_error(Unknown(*level, word));
    level = level->get_subcommand(word);
  }
}

}  // namespace orvane::tool
