#include "commands/frmClipboardProgress.h"

#include <deque>
#include <utility>

#include "commands/ClipboardInUse.h"
#include "commands/SelectedNames.h"
#include "menudata/ShellPaths.h"
#include "support/ProductName.h"
#include "support/Text.h"
#include "support/Trace.h"

namespace orvane {
namespace {

constexpr std::wstring_view LineEnd = L"\r\n";

// How long a folder on a network may keep the walk from going on, in milliseconds.
constexpr std::uint32_t NetworkPatience = 5000;

// Far deeper than a path can be typed; a file system that shows a folder inside itself without
// saying so (a server that follows its own links) must not be walked for ever.
constexpr std::size_t MaxDepth = 1000;

/// A folder on the way down, and the walk over it.
struct Level {
  TraceScope scope{L"BuildSelectionList_"};
  std::wstring folder;  // with a backslash at its end
  std::unique_ptr<DirectoryListing> listing;
};

void Enter(std::deque<Level>& levels, FileReader& files, const std::wstring& folder) {
  if (levels.size() == MaxDepth) return;
  Level& level = levels.emplace_back();
  Log(L"szDir=", folder);
  level.folder = folder;
  if (!folder.ends_with(L'\\')) level.folder += L'\\';
  level.listing = files.List(folder, NetworkPatience);
  if (!level.listing) levels.pop_back();
}

bool IsFolder(const FoundFile& found) {
  return (found.attributes & FileAttribute::Directory) != 0;
}

/// A link may lead back to a folder above it: what lies behind links is not listed.
bool IsLink(const FoundFile& found) {
  return (found.attributes & FileAttribute::ReparsePoint) != 0;
}

}  // namespace

void frmClipboardProgress::BuildSelectionList(bool bRecursive) {
  TraceScope scope(L"BuildSelectionList");
  Log(L"bRecursive=", bRecursive);
  if (!m_Data && !m_clipboard.Clear()) throw ClipboardInUse();

  const FileNames names = SelectedNames(m_pSelection);
  Log(L"lCount=", names.Count());
  BuildLists(names, bRecursive);

  if (!m_Data && !m_clipboard.SetText(m_lines)) throw ClipboardInUse();
}

void frmClipboardProgress::BuildLists(const FileNames& names, bool recursive) {
  if (m_Data) m_filter.emplace(m_Data->m_szSelection_Filter);
  const bool needsKind = recursive || (m_filter && !m_filter->IsEmpty());
  if (!needsKind) Reserve(names);
  std::wstring found;
  std::wstring name;
  for (std::wstring_view rest = names.All(); !rest.empty() && !m_bStop;) {
    found = FileNames::Take(rest);
    Log(L"szFilename=", found);
    const bool isFolder = needsKind && IsDirectory(m_files, found);
    name = found;
    GetName(name);
    Add(found, name, isFolder);
    if (isFolder && recursive) BuildSelectionList_(found);
  }
}

/// Every name is going to be in the lists, in about its own length.
void frmClipboardProgress::Reserve(const FileNames& names) {
  const auto reserve = [&](std::wstring& list, std::size_t perName) {
    list.reserve(names.All().size() + names.Count() * perName);
  };
  if (!m_Data) return reserve(m_lines, LineEnd.size());
  reserve(m_szCmdLine,
          m_Data->m_szSelection_CmdPrefix.size() + m_Data->m_szSelection_CmdSuffix.size());
  reserve(m_szFile,
          m_Data->m_szSelection_FilePrefix.size() + m_Data->m_szSelection_FileSuffix.size());
}

void frmClipboardProgress::BuildSelectionList_(const std::wstring& szDir) {
  std::deque<Level> levels;
  Enter(levels, m_files, szDir);
  FoundFile found;
  std::wstring full;
  while (!levels.empty() && !m_bStop) {
    const Level& level = levels.back();
    if (!level.listing->Next(found)) {
      levels.pop_back();
      continue;
    }
    full.assign(level.folder).append(found.name);
    GetName(full);
    Add(full, full, IsFolder(found));
    if (!IsFolder(found)) continue;
    SetFolder(full);
    if (!m_bStop && !IsLink(found)) Enter(levels, m_files, full);
  }
}

void frmClipboardProgress::Add(const std::wstring& found, const std::wstring& name, bool isFolder) {
  if (m_Data)
    ProcessFilename(found, name, isFolder);
  else
    m_lines.append(name).append(LineEnd);
  ++m_count;
  if (m_view) m_view->ShowCount(m_count);
}

void frmClipboardProgress::ProcessFilename(const std::wstring& found, const std::wstring& name,
                                           bool isFolder) {
  // No file can bear a quotation mark; in a name made up by another program it would end the quotes
  // around the name and add arguments of its own.
  if (found.find(L'"') != std::wstring::npos) return;
  if (!m_filter->IsEmpty() && (isFolder || !m_filter->Matches(LowerCase(found)))) return;
  const bool quoted = !m_bShortNames && m_Data->SelectionOptions_IsQIS() != 0 &&
                      name.find(L' ') != std::wstring::npos;
  const std::wstring_view quote = quoted ? L"\"" : L"";
  const auto append = [&](std::wstring& list, std::wstring_view prefix, std::wstring_view suffix) {
    list.append(prefix).append(quote).append(name).append(quote).append(suffix);
  };
  append(m_szCmdLine, m_Data->m_szSelection_CmdPrefix, m_Data->m_szSelection_CmdSuffix);
  append(m_szFile, m_Data->m_szSelection_FilePrefix, m_Data->m_szSelection_FileSuffix);
}

void frmClipboardProgress::GetName(std::wstring& szName) const {
  if (!m_bShortNames) return;
  std::wstring shortName = m_files.ShortName(szName);
  if (!shortName.empty()) szName = std::move(shortName);
}

void frmClipboardProgress::SetFolder(const std::wstring& szFolder) {
  if (m_view) m_view->ShowFolder(szFolder);
}

void frmClipboardProgress::ShowModal(Dialogs& dialogs, WindowHandle owner) {
  dialogs.ShowProgress(owner, *this);
  if (m_failure) std::rethrow_exception(m_failure);
}

void frmClipboardProgress::Run(ProgressView& view) noexcept {
  m_view = &view;
  try {
    BuildSelectionList(true);
  } catch (...) {
    m_failure = std::current_exception();
  }
  m_view = nullptr;
}

std::wstring frmClipboardProgress::Caption() {
  return m_Data ? L"Selection Task Progress" : L"Copy to Clipboard Progress";
}

std::wstring frmClipboardProgress::Title() {
  return ProductName + (L" - " + Caption());
}

}  // namespace orvane
