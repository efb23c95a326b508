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

void Enter(std::deque<Level>& levels, FileReader& files, const std::wstring& folder,
           const Patience& patience) {
  if (levels.size() == MaxDepth) return;
  Level& level = levels.emplace_back();
  Log(L"szDir=", folder);
  level.folder = folder;
  if (!folder.ends_with(L'\\')) level.folder += L'\\';
  level.listing = files.List(folder, patience);
  if (!level.listing) levels.pop_back();
}

/// Appends to a list that may grow to megabytes. Doubling would write it twice, to fresh pages each
/// time, which takes longer than the walk; room that is not used yet costs no page. It counts as
/// used up, though, wherever memory is promised page by page: a huge list only doubles.
template <class... Part>
void Append(std::wstring& list, Part... parts) {
  constexpr std::size_t Large = 4 << 20;
  const std::size_t size = (list.size() + ... + parts.size());
  if (size > list.capacity()) list.reserve((size < Large ? 8 : 2) * size);
  (list.append(parts), ...);
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
  const bool needsKind = recursive || Filters();
  m_patience = {NetworkPatience, [this] {
                  if (m_view) m_view->ShowCount(m_count);  // runs the window's messages
                  return !m_bStop;
                }};
  if (!needsKind) Reserve(names);
  std::wstring name;
  for (std::wstring_view rest = names.All(); !rest.empty() && !m_bStop;) {
    const std::wstring_view found = FileNames::Take(rest);
    Log(L"szFilename=", found);
    const bool isFolder = needsKind && IsDirectory(m_files, std::wstring(found), m_patience);
    Written written{{}, found};
    if (m_bShortNames) {
      name = found;
      GetName(name);
      written.name = name;
    }
    Add(written, found, isFolder);
    if (isFolder && recursive) BuildSelectionList_(std::wstring(found));
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
  Enter(levels, m_files, szDir, m_patience);
  FoundFile found;
  std::wstring full;
  while (!levels.empty() && !m_bStop) {
    const Level& level = levels.back();
    if (!level.listing->Next(found)) {
      levels.pop_back();
      continue;
    }
    Written written{level.folder, found.name};
    if (m_bShortNames || IsFolder(found) || Filters()) {
      full.assign(level.folder).append(found.name);
      GetName(full);
      written = {{}, full};
    }
    Add(written, written.name, IsFolder(found));
    if (!IsFolder(found)) continue;
    SetFolder(full);
    if (!m_bStop && !IsLink(found)) Enter(levels, m_files, full, m_patience);
  }
}

void frmClipboardProgress::Add(const Written& written, std::wstring_view found, bool isFolder) {
  if (m_Data)
    ProcessFilename(written, found, isFolder);
  else
    Append(m_lines, written.folder, written.name, LineEnd);
  ++m_count;
  if (m_view) m_view->ShowCount(m_count);
}

void frmClipboardProgress::ProcessFilename(const Written& written, std::wstring_view found,
                                           bool isFolder) {
  if (Filters() && (isFolder || !m_filter->Matches(LowerCase(found)))) return;
  const bool quoted = !m_bShortNames && m_Data->SelectionOptions_IsQIS() != 0 && written.Has(L' ');
  const std::wstring_view quote = quoted ? L"\"" : L"";
  const auto wrap = [&](std::wstring& list, std::wstring_view prefix, std::wstring_view suffix) {
    Append(list, prefix, quote, written.folder, written.name, quote, suffix);
  };
  // No file can bear a quotation mark; in a name made up by another program it would end the quotes
  // around the name and add arguments of its own.
  if (!written.Has(L'"'))
    wrap(m_szCmdLine, m_Data->m_szSelection_CmdPrefix, m_Data->m_szSelection_CmdSuffix);
  wrap(m_szFile, m_Data->m_szSelection_FilePrefix, m_Data->m_szSelection_FileSuffix);
}

void frmClipboardProgress::GetName(std::wstring& szName) const {
  if (!m_bShortNames) return;
  std::wstring shortName = m_files.ShortName(szName, m_patience);
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
