#pragma once

#include <string>
#include <vector>

#include "menudata/clsMRU.h"
#include "menudata/clsOrvaneDataTools.h"

namespace orvane::designer {

/// A list that the menu keeps of what was used last, as its user may see it and thin it out.
class RecentList {
 public:
  /// All that there are, with their names; both arguments are kept.
  static std::vector<RecentList> All(Registry& registry, const clsOrvaneDataTools& tools);

  const wchar_t* Name() const { return m_name; }

  /// The entries in words as the registry has them now, newest first.
  const std::vector<std::wstring>& Read();

  /// Takes the entries of these places (0-based, of the last Read) out of the list. Error when the
  /// registry refuses.
  void Forget(const std::vector<std::size_t>& places);

 private:
  RecentList(const wchar_t* name, const wchar_t* key, bool isOfItems, Registry& registry,
             const clsOrvaneDataTools& tools);

  std::wstring InWords(const std::wstring& entry) const;

  const wchar_t* m_name;
  bool m_isOfItems;
  clsMRU m_list;
  const clsOrvaneDataTools* m_tools;
  std::vector<std::wstring> m_entries;
  std::vector<std::wstring> m_words;
};

}  // namespace orvane::designer
