#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "menudata/Arena.h"
#include "support/CodePage.h"
#include "support/Error.h"

namespace orvane {

/// A menu definition file that breaks its own layout.
class CorruptFile : public Error {
 public:
  static constexpr std::int32_t ErrorNumber = 321;

  CorruptFile() : Error(ErrorNumber, L"File is corrupt!") {}
};

/// A menu definition file in memory and the place up to which it has been read: value records, each
/// a tag and a length (16 bits, low byte first) before its bytes.
class DefinitionFile {
 public:
  static constexpr std::uint16_t TextTag = 8;
  static constexpr std::size_t MaxLength = 65535;  // of one value, in bytes

  /// With an arena, which is kept, the texts of records lie in it: those that are made there.
  DefinitionFile(std::vector<std::byte> bytes, const CodePage& codePage,
                 const Arena* arena = nullptr)
      : m_bytes(std::move(bytes)), m_codePage(codePage), m_arena(arena) {}

  /// The bytes of the next value, which may be deciphered where they are; empty past the end.
  /// CorruptFile for a record that is cut off or no text.
  std::span<std::byte> Next();

  const CodePage& Page() const { return m_codePage; }
  const Arena* TextArena() const { return m_arena; }

 private:
  std::uint16_t Number();

  std::vector<std::byte> m_bytes;
  std::size_t m_position = 0;
  const CodePage& m_codePage;
  const Arena* m_arena;
};

}  // namespace orvane
