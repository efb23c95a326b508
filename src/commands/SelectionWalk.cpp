#include "commands/SelectionWalk.h"

#include <algorithm>
#include <utility>

namespace orvane {
namespace {

// How long a server may keep a walk without a window from going on, in milliseconds.
constexpr std::uint32_t NetworkPatience = 5000;

// Deeper than people make folders: from here on every one is looked at twice, since a server that
// follows its own links shows a folder inside itself without saying so.
constexpr std::size_t Suspicious = 64;

// Far deeper than a path can be typed; a file system that cannot even tell its folders apart must
// not be walked for ever.
constexpr std::size_t MaxDepth = 1000;

bool IsFolder(std::uint32_t attributes) {
  return (attributes & FileAttribute::Directory) != 0;
}

}  // namespace

void SelectionWalk::Run(const FileNames& names, bool recursive, ProgressView* view) {
  m_view = view;
  const auto goOn = [this] {
    if (m_view) m_view->ShowCount(m_count);  // runs the window's messages
    return !m_bStop;
  };
  m_patience = {view ? Patience::Endless : NetworkPatience, goOn};
  const bool needsKind = recursive || m_list.Filters();
  if (!needsKind) m_list.Reserve(names.Count(), names.All().size());
  for (std::wstring_view rest = names.All(); !rest.empty() && !m_bStop;) {
    const std::wstring_view found = FileNames::Take(rest);
    Log(L"szFilename=", found);
    const bool isFolder = needsKind && IsFolder(std::wstring(found));
    AddSelected(found, isFolder);
    if (isFolder && recursive) BuildSelectionList_(std::wstring(found));
  }
}

bool SelectionWalk::IsFolder(const std::wstring& name) {
  const auto attributes = m_files.Attributes(name, m_patience);
  if (!attributes && m_files.LiesOnNetwork(name)) m_isWhole = false;
  return attributes && orvane::IsFolder(*attributes);
}

void SelectionWalk::AddSelected(std::wstring_view found, bool isFolder) {
  if (!m_shortNames) return Add({{}, found}, found, isFolder);
  const std::wstring name = GetName(std::wstring(found));
  Add({{}, name}, found, isFolder);
}

void SelectionWalk::BuildSelectionList_(const std::wstring& szDir) {
  Enter(szDir, false);
  FoundFile found;
  while (!m_levels.empty() && !m_bStop) {
    if (m_levels.back().listing->Next(found))
      AddFound(found);
    else
      Leave();
  }
  m_levels.clear();
}

void SelectionWalk::AddFound(const FoundFile& found) {
  const std::wstring& folder = m_levels.back().folder;
  const bool isFolder = orvane::IsFolder(found.attributes);
  if (!m_shortNames && !isFolder && !m_list.Filters())
    return Add({folder, found.name}, found.name, false);
  const std::wstring full = GetName(folder + found.name);
  Add({{}, full}, full, isFolder);
  if (!isFolder) return;
  SetFolder(full);
  if (!m_bStop && !LeadsBack(full, found.isLink)) Enter(full, found.isLink);
}

void SelectionWalk::Enter(const std::wstring& folder, bool isLink) {
  if (m_levels.size() == MaxDepth) {
    m_isWhole = false;
    return;
  }
  Level& level = m_levels.emplace_back();
  Log(L"szDir=", folder);
  level.folder = folder;
  if (!folder.ends_with(L'\\')) level.folder += L'\\';
  level.listing = m_files.List(folder, m_patience);
  level.isLink = isLink;
  if (level.listing) {
    m_links += isLink;
    return;
  }
  m_levels.pop_back();
  if (m_files.LiesOnNetwork(folder)) m_isWhole = false;
}

void SelectionWalk::Leave() {
  const Level& level = m_levels.back();
  if (!level.listing->IsWhole()) m_isWhole = false;
  m_links -= level.isLink;
  m_levels.pop_back();
}

/// Whether the folder is one of those that are being walked. Only links lead to these, and what is
/// behind a link.
bool SelectionWalk::LeadsBack(const std::wstring& folder, bool isLink) {
  if (!isLink && m_links == 0 && m_levels.size() < Suspicious) return false;
  const auto identity = m_files.Identity(folder, m_patience);
  return identity && std::ranges::any_of(m_levels, [&](Level& level) {
           if (!level.identity) level.identity = m_files.Identity(level.folder, m_patience);
           return level.identity == identity;
         });
}

void SelectionWalk::Add(const WrittenName& written, std::wstring_view found, bool isFolder) {
  m_list.Add(written, found, isFolder);
  ++m_count;
  if (m_view) m_view->ShowCount(m_count);
}

std::wstring SelectionWalk::GetName(const std::wstring& szName) const {
  std::wstring shortName = m_shortNames ? m_files.ShortName(szName, m_patience) : std::wstring();
  return shortName.empty() ? szName : shortName;
}

void SelectionWalk::SetFolder(const std::wstring& szFolder) {
  if (m_view) m_view->ShowFolder(szFolder);
}

}  // namespace orvane
