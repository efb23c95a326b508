#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace orvane {

/// The product's text scrambling: each byte meets one byte of a key stream that depends only on the
/// password and the byte's place, so scrambling twice gives the bytes back. The stream is worked
/// out once, as far as it was needed.
class Scrambler {
 public:
  explicit Scrambler(std::wstring_view password);

  void Scramble(std::span<std::byte> bytes);

 private:
  void Extend(std::size_t size);

  std::vector<std::uint8_t> m_key;  // m_abKey, the evolving key
  std::size_t m_index = 0;          // m_nKeyIndex
  std::vector<std::uint8_t> m_stream;
};

}  // namespace orvane
