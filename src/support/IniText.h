#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/CodePage.h"

namespace orvane {

/// The sections and keys of an INI file, as Windows reads it (GetPrivateProfileString): names
/// without regard to case, the first section or key of a name wins, lines that begin with ";" or
/// hold no "=" are passed over, blanks and then one pair of quotes around a value are taken off.
/// The bytes are ANSI, or UTF-16 or UTF-8 behind a byte-order mark.
class IniText {
 public:
  IniText(std::span<const std::byte> bytes, const CodePage& codePage);

  /// The names in the order of the file, each once.
  const std::vector<std::wstring>& Sections() const { return m_sections; }

  /// The names of the sections that an earlier one of the name hides.
  const std::vector<std::wstring>& Repeated() const { return m_repeated; }

  /// Null when the section or the key is missing.
  const std::wstring* Value(std::wstring_view section, std::wstring_view key) const;

 private:
  using Keys = std::map<std::wstring, std::wstring>;

  std::vector<std::wstring> m_sections;
  std::vector<std::wstring> m_repeated;
  std::map<std::wstring, Keys> m_keys;  // names in lower case
};

/// The file's bytes with one value written; without a value the key is removed, without a key the
/// whole section. All other bytes stay as they are. Line ends inside the texts become blanks: a
/// value cannot add lines of its own.
std::vector<std::byte> WriteIniText(std::span<const std::byte> bytes, const CodePage& codePage,
                                    std::wstring_view section,
                                    const std::optional<std::wstring>& key,
                                    const std::optional<std::wstring>& value);

}  // namespace orvane
