#include "designer/RecentList.h"

#include "support/Error.h"

namespace orvane::designer {

RecentList::RecentList(const wchar_t* name, const wchar_t* key, bool isOfItems, Registry& registry,
                       const clsOrvaneDataTools& tools)
    : m_name(name), m_isOfItems(isOfItems), m_list(registry), m_tools(&tools) {
  m_list.Path(key);
  m_list.MaxFileCount(clsMRU::Limit);  // also what a smaller list of today no longer shows
}

std::vector<RecentList> RecentList::All(Registry& registry, const clsOrvaneDataTools& tools) {
  return {{L"History", HistoryKey, true, registry, tools},
          {L"Quick Access", QuickAccessKey, true, registry, tools},
          {L"Copy To and Move To", CopyToKey, false, registry, tools}};
}

std::wstring RecentList::InWords(const std::wstring& entry) const {
  if (!m_isOfItems) return entry;
  clsOrvaneData item;
  m_tools->BreakdownHistoryMRU(entry, item);
  const std::wstring words = m_tools->GetDesignerDescription(item);
  return words.empty() ? L"(an entry that cannot be read)" : words;
}

const std::vector<std::wstring>& RecentList::Read() {
  m_list.Load(clsMRU::Limit);
  m_entries.clear();
  m_words.clear();
  for (std::int32_t i = 1; i <= m_list.FileCount(); ++i) {
    m_entries.push_back(m_list.File(i));
    m_words.push_back(InWords(m_entries.back()));
  }
  return m_words;
}

void RecentList::Forget(const std::vector<std::size_t>& places) {
  std::vector<std::wstring> unwanted;
  unwanted.reserve(places.size());
  for (const std::size_t place : places) unwanted.push_back(m_entries.at(place));
  if (!m_list.Forget(unwanted))
    throw Error(Error::Internal, L"The list cannot be written: the registry refuses it.");
}

}  // namespace orvane::designer
