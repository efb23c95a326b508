#pragma once

#include <windows.h>

#include <shlobj.h>

#include <string>
#include <vector>

namespace orvane::host {

/// A right-click's platform calls with nothing around them: what nobody can do without.
struct BareRightClick {
  std::wstring config;
  PCIDLIST_ABSOLUTE folder;
  std::vector<std::wstring> files;  // one entry each
  std::vector<std::wstring> kinds;  // their extensions; empty without icons

  void operator()() const;
};

/// Lists a folder and inserts an owner-drawn entry for each file.
void BareFolder(const std::wstring& folder, HMENU menu);

}  // namespace orvane::host
