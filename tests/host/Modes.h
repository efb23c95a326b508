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

/// Saves a list of such texts under a test's key, many times.
int SaveListOften(const std::wstring& text);

/// The text with its surrogates as "<D83D>", so that unpaired ones survive UTF-8.
std::wstring WithSurrogatesSpelt(const std::wstring& text);

/// Names the record of a start in the place of the command interpreter.
inline constexpr wchar_t PromptRecord[] = L"ORVANE_PROMPT_RECORD";

/// The program's message loop.
int RunMessages();

}  // namespace orvane::host
