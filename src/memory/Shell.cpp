#include "memory/Shell.h"

#include <algorithm>
#include <string_view>

namespace orvane::memory {
namespace {

// A list is a row of items, closed by two zeros. An item is its own size (2 bytes), a tag, and the
// name (4 bytes a character) or the special folder's number (4 bytes), all little-endian.
constexpr std::byte NameTag{'n'};
constexpr std::byte SpecialTag{'s'};
constexpr std::size_t ItemHead = 3;
constexpr std::size_t MaxName = 16'000;

void PutNumber(ItemIdList& list, std::uint32_t number, int bytes) {
  for (int i = 0; i < bytes; ++i) list.bytes.push_back(static_cast<std::byte>(number >> 8 * i));
}

std::uint32_t NumberAt(const ItemIdList& list, std::size_t at, std::size_t bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = bytes; i-- > 0;) {
    number = number << 8 | static_cast<std::uint32_t>(list.bytes[at + i]);
  }
  return number;
}

void PutName(ItemIdList& list, std::wstring_view name) {
  PutNumber(list, static_cast<std::uint32_t>(ItemHead + 4 * name.size()), 2);
  list.bytes.push_back(NameTag);
  for (const wchar_t c : name) PutNumber(list, static_cast<std::uint32_t>(c), 4);
}

/// Calls `visit(tag, offset, size)` for each item; false when the list is damaged.
template <class Visit>
bool ForEachItem(const ItemIdList& list, Visit visit) {
  std::size_t at = 0;
  while (at + 2 <= list.bytes.size()) {
    const std::size_t size = NumberAt(list, at, 2);
    if (size == 0) return true;
    if (size < ItemHead || size > list.bytes.size() - at || (size - ItemHead) % 4 != 0) break;
    visit(list.bytes[at + 2], at + ItemHead, size - ItemHead);
    at += size;
  }
  return false;
}

bool IsFullPath(std::wstring_view path) {
  return path.starts_with(L"\\\\") || (path.size() >= 2 && path[1] == L':');
}

std::wstring_view WithoutBackslash(std::wstring_view path) {
  while (!path.empty() && path.back() == L'\\') path.remove_suffix(1);
  return path;
}

std::wstring LastName(std::wstring_view path) {
  path = WithoutBackslash(path);
  if (path.size() == 2 && path[1] == L':') return L"Local Disk (" + std::wstring(path) + L")";
  return std::wstring(path.substr(path.rfind(L'\\') + 1));
}

struct SpecialRow {
  std::int32_t csidl;
  const wchar_t* path;
  const wchar_t* displayName;
};

constexpr SpecialRow SpecialRows[] = {
    {0, L"C:\\Users\\Robin\\Desktop", L"Desktop"},
    {2, L"C:\\Users\\Robin\\Start Menu\\Programs", L"Programs"},
    {3, L"", L"Control Panel"},
    {4, L"", L"Printers"},
    {5, L"C:\\Users\\Robin\\Documents", L"Documents"},
    {6, L"C:\\Users\\Robin\\Favorites", L"Favorites"},
    {7, L"C:\\Users\\Robin\\Start Menu\\Programs\\Startup", L"Startup"},
    {8, L"C:\\Users\\Robin\\Recent", L"Recent Items"},
    {9, L"C:\\Users\\Robin\\SendTo", L"SendTo"},
    {10, L"", L"Recycle Bin"},
    {11, L"C:\\Users\\Robin\\Start Menu", L"Start Menu"},
    {13, L"C:\\Users\\Robin\\Music", L"Music"},
    {14, L"C:\\Users\\Robin\\Videos", L"Videos"},
    {16, L"C:\\Users\\Robin\\Desktop", L"Desktop"},
    {17, L"", L"This PC"},
    {18, L"", L"Network"},
    {20, L"C:\\Windows\\Fonts", L"Fonts"},
    {21, L"C:\\Users\\Robin\\Templates", L"Templates"},
    {22, L"C:\\ProgramData\\Start Menu", L"Start Menu"},
    {23, L"C:\\ProgramData\\Start Menu\\Programs", L"Programs"},
    {24, L"C:\\ProgramData\\Start Menu\\Programs\\Startup", L"Startup"},
    {25, L"C:\\Users\\Public\\Desktop", L"Desktop"},
    {26, L"C:\\Users\\Robin\\AppData\\Roaming", L"Roaming"},
    {28, L"C:\\Users\\Robin\\AppData\\Local", L"Local"},
    {35, L"C:\\ProgramData", L"ProgramData"},
    {36, L"C:\\Windows", L"Windows"},
    {37, L"C:\\Windows\\System32", L"System32"},
    {38, L"C:\\Program Files", L"Program Files"},
    {39, L"C:\\Users\\Robin\\Pictures", L"Pictures"},
    {40, L"C:\\Users\\Robin", L"Robin"},
    {43, L"C:\\Program Files\\Common Files", L"Common Files"},
    {45, L"C:\\ProgramData\\Templates", L"Templates"},
    {46, L"C:\\Users\\Public\\Documents", L"Documents"},
    {49, L"", L"Network Connections"},
    {53, L"C:\\Users\\Public\\Music", L"Music"},
    {54, L"C:\\Users\\Public\\Pictures", L"Pictures"},
    {55, L"C:\\Users\\Public\\Videos", L"Videos"},
};

}  // namespace

Shell::Shell(FileReader& files, Faults& faults) : m_files(files), m_faults(faults) {
  for (const SpecialRow& row : SpecialRows) {
    specialFolders[row.csidl] = {row.path, row.displayName};
  }
}

ItemIdList Shell::ItemOf(const std::wstring& path) {
  std::wstring_view rest = WithoutBackslash(path);
  ItemIdList list;
  // "\\server\share" is one name
  std::size_t from = rest.starts_with(L"\\\\") ? rest.find(L'\\', 2) : 0;
  while (!rest.empty()) {
    const std::size_t end = from < rest.size() ? rest.find(L'\\', from + 1) : rest.size();
    const std::wstring_view name = rest.substr(0, end);
    if (name.size() > MaxName) return {};
    PutName(list, name);
    rest.remove_prefix(std::min(rest.size(), name.size() + 1));
    from = 0;
  }
  PutNumber(list, 0, 2);
  return list;
}

const Shell::Special* Shell::FindSpecial(const ItemIdList& item) const {
  std::int32_t csidl = item.bytes.size() == 2 ? 0 : -1;  // the desktop is the empty list
  if (!ForEachItem(item, [&](std::byte tag, std::size_t at, std::size_t size) {
        if (tag == SpecialTag && size == 4) {
          csidl = static_cast<std::int32_t>(NumberAt(item, at, 4));
        }
      })) {
    return nullptr;
  }
  const auto special = specialFolders.find(csidl);
  return special == specialFolders.end() ? nullptr : &special->second;
}

std::wstring Shell::Path(const ItemIdList& item) {
  if (m_faults.Hit()) return {};
  if (const Special* special = FindSpecial(item)) return special->path;
  std::wstring path;
  const bool whole = ForEachItem(item, [&](std::byte tag, std::size_t at, std::size_t size) {
    if (tag != NameTag) return;
    if (!path.empty()) path += L'\\';
    for (std::size_t i = 0; i < size; i += 4) {
      path += static_cast<wchar_t>(NumberAt(item, at + i, 4));
    }
  });
  if (!whole) return {};
  if (path.size() == 2) path += L'\\';
  return path;
}

ItemIdList Shell::Parse(WindowHandle, const std::wstring& path) {
  if (m_faults.Hit() || !IsFullPath(path) || !m_files.Attributes(path)) return {};
  return ItemOf(path);
}

ItemIdList Shell::SpecialFolder(WindowHandle, std::int32_t csidl) {
  const auto special = specialFolders.find(csidl);
  if (m_faults.Hit() || special == specialFolders.end()) return {};
  ItemIdList list;
  if (csidl != 0 && !special->second.path.empty()) return ItemOf(special->second.path);
  if (csidl != 0) {
    PutNumber(list, ItemHead + 4, 2);
    list.bytes.push_back(SpecialTag);
    PutNumber(list, static_cast<std::uint32_t>(csidl), 4);
  }
  PutNumber(list, 0, 2);
  return list;
}

std::wstring Shell::DisplayName(const ItemIdList& item) {
  if (m_faults.Hit()) return {};
  const Special* special = FindSpecial(item);
  return special ? special->displayName : LastName(Path(item));
}

std::wstring Shell::DisplayName(const std::wstring& path) {
  if (m_faults.Hit() || !m_files.Attributes(path)) return {};
  return LastName(path);
}

std::wstring Shell::Text(const ItemIdList& item) {
  std::wstring path = Path(item);
  return path.empty() ? DisplayName(item) : path;
}

}  // namespace orvane::memory
