#include "CompletionCommand.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace orvane::tool {
namespace {

/// What may stand after some words: subcommands and options, joined by blanks.
std::string WordsAfter(const CLI::App& app) {
  std::string words;
  const auto add = [&](const std::string& word) { words += (words.empty() ? "" : " ") + word; };
  for (const CLI::App* subcommand : app.get_subcommands(nullptr)) add(subcommand->get_name());
  for (const CLI::Option* option : app.get_options()) {
    for (const std::string& name : option->get_lnames()) add("--" + name);
  }
  return words;
}

/// Calls `visit` with the subcommands that lead to each command, such as "menu write".
template <class Visitor>
void ForEachCommand(const CLI::App& app, const std::string& path, const Visitor& visit) {
  visit(path, WordsAfter(app));
  for (const CLI::App* subcommand : app.get_subcommands(nullptr))
    ForEachCommand(*subcommand, path + (path.empty() ? "" : " ") + subcommand->get_name(), visit);
}

// Where no word fits, a file name may. Options and their values are no part of the path.
constexpr const char* BashEnd = R"(
_orvane() {
  local current=${COMP_WORDS[COMP_CWORD]} path= word
  for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    [[ -v "_orvane_words[${path:+$path }$word]" ]] && path=${path:+$path }$word
  done
  mapfile -t COMPREPLY < <(compgen -W "${_orvane_words[${path:-.}]}" -- "$current")
}
complete -o default -F _orvane orvane
)";

constexpr const char* PowerShellEnd = R"(
Register-ArgumentCompleter -Native -CommandName orvane, orvane.exe -ScriptBlock {
  param($current, $ast, $position)
  $path = ''
  foreach ($element in $ast.CommandElements | Select-Object -Skip 1) {
    if ($element.Extent.EndOffset -ge $position) { break }
    $next = "$path $element".Trim()
    if ($orvaneWords.ContainsKey($next)) { $path = $next }
  }
  $orvaneWords[$path] -split ' ' | Where-Object { $_ -like "$current*" } |
    ForEach-Object { [System.Management.Automation.CompletionResult]::new($_) }
}
)";

void PrintBash(const CLI::App& app) {
  std::cout << "# Completion for bash: source this, or put it into\n"
               "# ~/.local/share/bash-completion/completions/orvane.\n"
               "declare -A _orvane_words=(\n";
  ForEachCommand(app, "", [](const std::string& path, const std::string& words) {
    std::cout << "  [\"" << (path.empty() ? "." : path) << "\"]=\"" << words << "\"\n";
  });
  std::cout << ")" << BashEnd;
}

void PrintPowerShell(const CLI::App& app) {
  std::cout << "# Completion for PowerShell: add this to the file that $PROFILE names.\n"
               "$orvaneWords = @{\n";
  ForEachCommand(app, "", [](const std::string& path, const std::string& words) {
    std::cout << "  '" << path << "' = '" << words << "'\n";
  });
  std::cout << "}" << PowerShellEnd;
}

}  // namespace

void AddCompletionCommand(CLI::App& app) {
  CLI::App* completion =
      app.add_subcommand("completion", "Prints a script that completes commands in a shell");
  completion->require_subcommand(1);
  completion->add_subcommand("bash", "Prints the script for bash")->callback([&app] {
    PrintBash(app);
  });
  completion->add_subcommand("powershell", "Prints the script for PowerShell")->callback([&app] {
    PrintPowerShell(app);
  });
}

}  // namespace orvane::tool
