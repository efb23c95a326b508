#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/CodePage.h"

namespace orvane {

/// The product's text scrambling: each byte meets one byte of a key stream that depends only on the
/// password and the byte's place, so scrambling twice gives the bytes back. The stream is worked
/// out once, as far as it was needed.
class Scrambler {
 public:
  /// What menu files, list entries and logs are scrambled with.
  static constexpr std::wstring_view ProductPassword = L"QWXKRTZPV";

  explicit Scrambler(std::wstring_view password = ProductPassword);

  void Scramble(std::span<std::byte> bytes);
  /// The text that its scrambled bytes are in the code page.
  std::wstring Scramble(std::wstring_view text, const CodePage& codePage);

 private:
  void Extend(std::size_t size);

  std::vector<std::uint8_t> m_key;  // evolves as the stream does
  std::size_t m_index = 0;          // of the key
  std::vector<std::uint8_t> m_stream;
};

}  // namespace orvane
