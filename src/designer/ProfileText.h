#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/ProfileFiles.h"
#include "support/CodePage.h"

namespace orvane::designer {

/// An INI file that is written in memory, whatever name it is called by, so that many changes reach
/// the disk at once. A value is read back as it was written: what would be taken off its ends
/// stands in quotes.
class ProfileText : public ProfileFiles {
 public:
  ProfileText(std::vector<std::byte> bytes, const CodePage& codePage)
      : m_bytes(std::move(bytes)), m_codePage(codePage) {}

  const std::vector<std::byte>& Bytes() const { return m_bytes; }

  std::wstring Text(const std::wstring& file, const std::wstring& section, const std::wstring& key,
                    const std::wstring& fallback, std::size_t maxLength) override;
  std::int32_t Number(const std::wstring& file, const std::wstring& section,
                      const std::wstring& key, std::int32_t fallback) override;
  bool Write(const std::wstring& file, const std::wstring& section,
             const std::optional<std::wstring>& key,
             const std::optional<std::wstring>& value) override;

 private:
  std::vector<std::byte> m_bytes;
  const CodePage& m_codePage;
};

/// Whether the bytes are in the ANSI code page: they have no byte-order mark.
bool IsAnsi(std::span<const std::byte> bytes);
/// The same text in UTF-16 with its mark, as Windows reads it too.
std::vector<std::byte> FromAnsi(std::span<const std::byte> bytes, const CodePage& codePage);

}  // namespace orvane::designer
