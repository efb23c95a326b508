// Selection lists of arbitrary names, filters and affixes, against a list made name by name.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "commands/CopyNames.h"
#include "commands/TaskLists.h"
#include "commands/frmClipboardProgress.h"
#include "memory/DataObject.h"
#include "memory/Desktop.h"
#include "menudata/ShellPaths.h"
#include "support/Text.h"

namespace {

/// The parts of the input between line feeds.
std::vector<std::wstring> Parts(const std::uint8_t* data, std::size_t size) {
  std::vector<std::wstring> parts(1);
  for (std::size_t i = 0; i < size; ++i) {
    if (data[i] == '\n')
      parts.emplace_back();
    else if (data[i] != 0)
      parts.back() += static_cast<wchar_t>(data[i]);
  }
  return parts;
}

bool Qualifies(const std::wstring& name, const std::wstring& filter) {
  if (filter.empty()) return true;
  const std::wstring lower = orvane::LowerCase(name);
  std::size_t start = 0;
  while (start <= filter.size()) {
    const std::size_t end = std::min(filter.find(L',', start), filter.size());
    const std::wstring token = filter.substr(start, end - start);
    if (!token.empty() && orvane::WildcardPattern(orvane::LowerCase(token)).Matches(lower))
      return true;
    start = end + 1;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<std::wstring> parts = Parts(data, size);
  if (parts.size() < 4) return 0;
  orvane::clsOrvaneData task;
  task.m_lType = orvane::clsOrvaneData::TypeSelectionTask;
  task.m_szSelection_Filter = parts[0];
  task.m_szSelection_CmdPrefix = parts[1];
  task.m_szSelection_CmdSuffix = parts[2];
  task.m_lSelection_Options = parts[3].empty() ? 0 : orvane::clsOrvaneData::SelectionOptions_QIS;

  orvane::memory::Desktop desktop;
  orvane::FileNames names;
  std::wstring expected;
  std::wstring copied;
  for (std::size_t i = 4; i < parts.size(); ++i) {
    const std::wstring& name = parts[i];
    names.Add(name);
    copied += name + L"\r\n";
    if (name.find(L'"') != name.npos || !Qualifies(name, parts[0])) continue;
    if (!parts[0].empty() && orvane::IsDirectory(desktop.files, name)) continue;
    const bool quoted = task.m_lSelection_Options != 0 && name.find(L' ') != name.npos;
    expected += parts[1] + (quoted ? L'"' + name + L'"' : name) + parts[2];
  }

  orvane::memory::DataObject selection(names);
  orvane::TaskLists lists(task, false);
  orvane::frmClipboardProgress(desktop.files, &selection, lists, false, L"")
      .BuildSelectionList(false);
  if (lists.CmdLine() != expected) std::abort();

  orvane::CopyNamesToClipboard(desktop.Bundle(), {}, &selection, false, false);
  if (desktop.clipboard.text != copied) std::abort();
  return 0;
}
