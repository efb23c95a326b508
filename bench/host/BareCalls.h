#pragma once

#include <windows.h>

#include <shlobj.h>

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::host {

// The platform calls of the product's work with nothing around them: what nobody can do without.

/// A whole file.
std::vector<std::byte> BareFile(const std::wstring& path);

/// What a new handler reads: the settings, and lists of so many entries.
void BareHandler(int listEntries);

/// A right-click on a folder's background.
struct BareRightClick {
  std::wstring config;
  PCIDLIST_ABSOLUTE folder;
  std::vector<std::wstring> files;       // one entry each
  std::vector<std::wstring> kinds = {};  // their extensions, of which it fetches the icons
  std::vector<int> pictures = {};        // the module's bitmaps that it shows
  int popups = 0;                        // over which the entries are spread
  int listEntries = 0;                   // in each of the two lists
  int extras = 0;                        // further entries
  bool ownerDraw = false;

  void operator()() const;
};

/// Lists a folder and inserts an owner-drawn entry for each file.
void BareFolder(const std::wstring& folder, HMENU menu);

/// Paints an entry for each name, the icons of their kinds (in turn) beside them.
void BarePainting(HDC context, const std::vector<std::wstring>& names,
                  const std::vector<std::wstring>& kinds);

}  // namespace orvane::host
