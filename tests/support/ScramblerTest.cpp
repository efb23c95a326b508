#include "support/Scrambler.h"

#include <gtest/gtest.h>

#include <string>

namespace orvane {
namespace {

/// The scrambling as it is laid down, byte by byte with its evolving key.
class SlowScrambler {
 public:
  explicit SlowScrambler(const std::string& password) {
    for (const char letter : password) {
      m_key.push_back(static_cast<unsigned char>(letter));
      m_key.push_back(0);
    }
  }

  unsigned Next(unsigned byte) {
    const std::size_t last = m_key.size() - 1;
    const unsigned key = m_key[m_index];
    byte = byte ^ key ^ ((key * m_index) & 255);
    if (m_index >= last) {
      m_key[m_index] = (m_key[1] + m_key[m_index]) & 255;
      m_index = 1;
    } else {
      m_key[m_index] = (m_key[m_index] + m_key[m_index + 1]) & 255;
      m_index = m_index + 1;
    }
    return byte;
  }

 private:
  std::vector<unsigned> m_key;
  std::size_t m_index = 0;
};

std::vector<std::byte> Sample(std::size_t size) {
  std::vector<std::byte> bytes(size);
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::byte>(i * 31 + i / 256);
  return bytes;
}

TEST(Scrambler, SameAsTheSlowWayAndItsOwnInverse) {
  for (const std::string password : {"QWXKRTZPV", "a", "ab", "a much longer password than that"}) {
    Scrambler scrambler(std::wstring(password.begin(), password.end()));
    // Growing, shrinking, beyond what one record can hold.
    for (const std::size_t size : {std::size_t{1}, std::size_t{40}, std::size_t{0}, std::size_t{17},
                                   std::size_t{300}, std::size_t{65535}, std::size_t{100'000}}) {
      const std::vector<std::byte> plain = Sample(size);
      std::vector<std::byte> expected = plain;
      SlowScrambler slow(password);
      for (std::byte& byte : expected) {
        byte = static_cast<std::byte>(slow.Next(std::to_integer<unsigned>(byte)));
      }
      std::vector<std::byte> bytes = plain;
      scrambler.Scramble(bytes);
      ASSERT_EQ(expected, bytes) << password << size;
      scrambler.Scramble(bytes);
      ASSERT_EQ(plain, bytes);
    }
  }
}

TEST(Scrambler, NoPasswordNoScrambling) {
  std::vector<std::byte> bytes = Sample(40);
  Scrambler(L"").Scramble(bytes);
  EXPECT_EQ(Sample(40), bytes);
}

}  // namespace
}  // namespace orvane
