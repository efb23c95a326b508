#include "menudata/clsMRU.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "menudata/MenuControl.h"
#include "menudata/RegistryAccess.h"
#include "support/Error.h"
#include "support/Text.h"

namespace orvane {
namespace {

constexpr const wchar_t* CountValue = L"MruFileCount";

std::wstring EntryValue(std::int32_t index) {
  return L"Mru" + std::to_wstring(index);
}

constexpr std::size_t ShortLength = 32;
constexpr std::wstring_view ItemPrefix = L"mru_";
constexpr const wchar_t* ItemAfter = L"id_fileexit";

}  // namespace

void clsMRU::MaxFileCount(std::int32_t maximum) {
  m_entries.resize(static_cast<std::size_t>(std::clamp(maximum, 0, Limit)));
}

const std::wstring& clsMRU::File(std::int32_t index) const {
  if (index < 1 || index > MaxFileCount())
    throw Error(Error::OutOfRange, L"No such entry", L"clsMRU");
  return m_entries[static_cast<std::size_t>(index) - 1];
}

std::wstring clsMRU::MenuCaption(std::int32_t index, std::int32_t number) const {
  return L"&" + std::to_wstring(number) + L" " + GetShortenedName(File(index));
}

/// Position of the entry that is the text in some letter case; 0 when there is none.
std::int32_t clsMRU::Find(const std::wstring& text) const {
  const std::wstring wanted = LowerCase(text);
  for (std::int32_t i = 1; i <= Used(); ++i) {
    if (LowerCase(File(i)) == wanted) return i;
  }
  return 0;
}

void clsMRU::AddFile(const std::wstring& text) {
  if (m_entries.empty()) return;
  std::int32_t position = Find(text);
  if (position == 0) {
    if (m_count < MaxFileCount()) ++m_count;
    position = Used();
  }
  const auto last = m_entries.begin() + (position - 1);
  *last = text;
  std::rotate(m_entries.begin(), last, last + 1);
  m_unsaved = true;
  if (m_userInterface)
    UpdateFileMenu(text);
  else
    Save();
}

void clsMRU::Remember(const std::wstring& text) {
  if (!m_unsaved) Load(MaxFileCount());
  AddFile(text);
  if (m_unsaved) Save();
}

bool clsMRU::Forget(const std::vector<std::wstring>& texts) {
  Load(MaxFileCount());
  const auto last = m_entries.begin() + m_count;
  const auto kept = std::stable_partition(m_entries.begin(), last, [&](const std::wstring& entry) {
    return std::ranges::find(texts, entry) == texts.end();
  });
  std::fill(kept, last, std::wstring());
  m_unsaved = true;
  Save();  // the empty ones too
  m_count = static_cast<std::int32_t>(kept - m_entries.begin());
  if (!m_unsaved) Save();
  return !m_unsaved;
}

bool clsMRU::Save() {
  std::unique_ptr<RegistryKey> key;
  if (m_registry.OpenToWrite(Hive::CurrentUser, m_path, key) == 0) {
    WriteValue(*key, CountValue, m_count);
    for (std::int32_t i = 1; i <= Used(); ++i) WriteValue(*key, EntryValue(i), File(i));
    m_unsaved = false;
  }
  return true;
}

bool clsMRU::Load(std::int32_t maximum) {
  MaxFileCount(maximum);
  m_count = 0;
  std::ranges::fill(m_entries, std::wstring());
  std::unique_ptr<RegistryKey> key;
  if (m_registry.OpenToRead(Hive::CurrentUser, m_path, key) == 0) {
    ReadValue(*key, CountValue, m_count);
    m_count = std::clamp(m_count, 0, MaxFileCount());
    for (std::int32_t i = 1; i <= m_count; ++i)
      ReadValue(*key, EntryValue(i), m_entries[static_cast<std::size_t>(i) - 1]);
  }
  m_unsaved = false;
  if (m_userInterface) UpdateFileMenu({});
  return true;
}

void clsMRU::Reset() {
  m_count = 0;
  m_unsaved = true;
  std::ranges::fill(m_entries, std::wstring());
}

// The short form starts at the leftmost backslash with at most 32 characters after it; when the
// last name alone is longer than that, at the leftmost backslash of all.
std::wstring clsMRU::GetShortenedName(const std::wstring& text) {
  if (text.size() <= ShortLength) return text;
  const std::size_t first = text.find(L'\\');
  if (first == std::wstring::npos || text.size() - first - 1 <= ShortLength) return text;
  const std::size_t start = text.find(L'\\', text.size() - ShortLength - 1);
  return L"..." + text.substr(start == std::wstring::npos ? first : start);
}

void clsMRU::UpdateFileMenu(const std::wstring& text) {
  if (m_fileMenu && LowerCase(m_fileMenu->TypeName()) == L"smartitem")
    AddToSmartUI(*m_fileMenu, text);
}

void clsMRU::AddToSmartUI(MenuControl& control, const std::wstring&) {
  for (std::int32_t i = control.SubItemCount(); i >= 1; --i) {
    const std::wstring key = control.SubItemKey(i);
    if (key.starts_with(ItemPrefix)) control.RemoveSubItem(key);
  }
  control.InsertSubItem(L"mru_separator", {}, ItemAfter);
  for (std::int32_t i = 1; i <= Used(); ++i) {
    if (FileExists(i))
      control.InsertSubItem(std::wstring(ItemPrefix) + std::to_wstring(i), MenuCaption(i, i),
                            ItemAfter);
  }
}

}  // namespace orvane
