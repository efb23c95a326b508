#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace orvane::designerapp {

enum class Files { Any, Menus, Documents };

// The system's dialogs for files and folders. Empty when the user gives up.

std::wstring AskFile(HWND owner, Files kind, const std::wstring& start);
std::vector<std::wstring> AskFiles(HWND owner);
std::wstring AskNewFile(HWND owner, Files kind, const std::wstring& start);
std::wstring AskFolder(HWND owner, const std::wstring& start);

}  // namespace orvane::designerapp
