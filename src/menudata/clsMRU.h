#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Registry.h"

namespace orvane {

/// A recently-used list: texts, newest first, kept in one registry key under HKEY_CURRENT_USER.
class clsMRU {
 public:
  explicit clsMRU(Registry& registry) : m_registry(registry) {}

  const std::wstring& Path() const;
  void Path(std::wstring path);  // with a backslash at its end
  std::int32_t MaxFileCount() const;
  void MaxFileCount(std::int32_t maximum);
  std::int32_t FileCount() const;
  const std::wstring& File(std::int32_t index) const;  // 1-based; Error 9 beyond the slots
  bool FileExists(std::int32_t index) const;
  bool UserInterface() const;
  void UserInterface(bool on);

  std::wstring MenuCaption(std::int32_t index, std::int32_t number) const;
  /// Puts the text in front; a text already there (whatever its case) moves up.
  void AddFile(const std::wstring& text);
  bool Save();
  bool Load(std::int32_t maximum);
  void Reset();

  /// At most 32 characters as they are; a longer path loses its front folders to "...".
  static std::wstring GetShortenedName(const std::wstring& text);

 private:
  Registry& m_registry;
};

}  // namespace orvane
