#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace orvane {

/// Windows' INI files ("profile files"): sections of key=value lines. Section and key names are
/// compared without regard to case; a value loses blanks and one pair of quotes around it. Files
/// are named by full paths (Windows looks for others in its own folder).
class ProfileFiles {
 public:
  virtual ~ProfileFiles() = default;

  /// The value, cut to `maxLength` characters; `fallback` when the file, section or key is missing.
  virtual std::wstring Text(const std::wstring& file, const std::wstring& section,
                            const std::wstring& key, const std::wstring& fallback,
                            std::size_t maxLength) = 0;

  /// The value's leading decimal digits (with sign); `fallback` when it is missing.
  virtual std::int32_t Number(const std::wstring& file, const std::wstring& section,
                              const std::wstring& key, std::int32_t fallback) = 0;

  /// Writes one value; without a value removes the key, without a key the whole section. Creates
  /// the file when needed. A line end inside a text becomes a blank, so that no text can add lines
  /// of its own. False when the file cannot be written.
  virtual bool Write(const std::wstring& file, const std::wstring& section,
                     const std::optional<std::wstring>& key,
                     const std::optional<std::wstring>& value) = 0;
};

}  // namespace orvane
