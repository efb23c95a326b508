#pragma once

#include <string>
#include <vector>

namespace orvane::host {

// The host's ways of working beside its tests; each answers the program's exit status.

/// Right-clicks the named files of a folder, or without names its background, in a real window;
/// prints the menu as text. Ends when the menu is closed.
int ShowMenu(const std::wstring& folder, const std::vector<std::wstring>& names);

/// Times whole right-clicks against a loop of the same platform calls with nothing around them.
int RunBench();

/// Writes the current folder and then each argument, a line each, as UTF-8.
int RecordStart(const std::wstring& path, const std::vector<std::wstring>& arguments);

/// Plays the command interpreter: records its start in the file that this variable names.
int RecordPrompt();
inline constexpr wchar_t PromptRecord[] = L"ORVANE_PROMPT_RECORD";

/// Writes the clipboard's text as UTF-8.
int RecordClipboard(const std::wstring& path);

/// Shows an edit control in a window titled "Orvane Edit", which has the keyboard.
int ShowEdit();

}  // namespace orvane::host
