#pragma once

#include <windows.h>

#include <span>

namespace orvane::designerapp {

/// A column of a list; the width is for 96 dots per inch.
struct Column {
  const wchar_t* title;
  int width;
};

/// Gives a list view its columns, and the looks that all lists have.
void AddColumns(HWND list, std::span<const Column> columns);
void ScaleColumns(HWND list, std::span<const Column> columns, UINT dpi);

}  // namespace orvane::designerapp
