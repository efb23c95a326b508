#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Registry.h"

namespace orvane {

class MenuControl;

// Where the menu keeps its lists. Entries of the first two are enciphered items, those of the third
// are folders.
inline constexpr const wchar_t* HistoryKey =
    L"Software\\Tarnwick\\Orvane\\ContextMenu\\HistoryMRU\\";
inline constexpr const wchar_t* QuickAccessKey =
    L"Software\\Tarnwick\\Orvane\\ContextMenu\\QuickAccessMRU\\";
inline constexpr const wchar_t* CopyToKey = L"Software\\Tarnwick\\Orvane\\ContextMenu\\CopyTo\\";

/// A recently-used list: texts, newest first, kept in one registry key under HKEY_CURRENT_USER.
/// What the registry refuses leaves an empty list or entry; nobody is told.
class clsMRU {
 public:
  /// No list grows past this, whatever the settings ask for: every entry is a menu entry.
  static constexpr std::int32_t Limit = 1000;

  explicit clsMRU(Registry& registry) : m_registry(registry) {}

  const std::wstring& Path() const { return m_path; }
  void Path(std::wstring path) { m_path = std::move(path); }  // with a backslash at its end
  std::int32_t MaxFileCount() const { return static_cast<std::int32_t>(m_entries.size()); }
  /// Brought between 0 and Limit. Keeps the entries that fit, and the count as it is.
  void MaxFileCount(std::int32_t maximum);
  std::int32_t FileCount() const { return m_count; }
  const std::wstring& File(std::int32_t index) const;  // 1-based; Error 9 beyond the slots
  bool FileExists(std::int32_t index) const { return !File(index).empty(); }
  /// Whether it holds changes that the registry does not have.
  bool IsUnsaved() const { return m_unsaved; }
  /// Whether changes go to an attached menu control instead of being saved at once.
  bool UserInterface() const { return m_userInterface; }
  void UserInterface(bool on) { m_userInterface = on; }
  /// The control that UpdateFileMenu fills, or null; the caller's.
  void FileMenu(MenuControl* control) { m_fileMenu = control; }

  std::wstring MenuCaption(std::int32_t index, std::int32_t number) const;
  /// Puts the text in front; a text already there (whatever its case) moves up.
  void AddFile(const std::wstring& text);
  /// The same to the list as the registry has it by now, where another window may have added too,
  /// and saves it.
  void Remember(const std::wstring& text);
  /// Takes the texts out of the list as the registry has it by now, and saves it. Nothing of them
  /// stays in the registry. False when it refuses.
  bool Forget(const std::vector<std::wstring>& texts);
  bool Save();
  bool Load(std::int32_t maximum);
  void Reset();
  void UpdateFileMenu(const std::wstring& text);
  void AddToSmartUI(MenuControl& control, const std::wstring& text);

  /// At most 32 characters as they are; a longer path loses its front folders to "...".
  static std::wstring GetShortenedName(const std::wstring& text);

 private:
  std::int32_t Find(const std::wstring& text) const;
  std::int32_t Used() const { return m_count < MaxFileCount() ? m_count : MaxFileCount(); }

  Registry& m_registry;
  std::wstring m_path;
  std::vector<std::wstring> m_entries;  // one slot for each entry the list may hold
  std::int32_t m_count = 0;
  bool m_userInterface = true;
  bool m_unsaved = false;
  MenuControl* m_fileMenu = nullptr;
};

}  // namespace orvane
