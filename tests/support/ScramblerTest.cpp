#include "support/Scrambler.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

/// The scrambling byte by byte, the key evolving with each.
std::vector<std::byte> ScrambledSlowly(std::vector<std::byte> bytes, const std::string& password) {
  std::vector<unsigned> key;
  for (const char letter : password) {
    key.push_back(static_cast<unsigned char>(letter));
    key.push_back(0);
  }
  unsigned index = 0;
  for (std::byte& byte : bytes) {
    byte ^= static_cast<std::byte>(key[index] ^ ((key[index] * index) & 255));
    const bool last = index + 1 >= key.size();
    key[index] = (key[index] + key[last ? 1 : index + 1]) & 255;
    index = last ? 1 : index + 1;
  }
  return bytes;
}

TEST(Scrambler, SameAsTheSlowWay) {
  for (const std::string password : {"QWXKRTZPV", "a", "a much longer password than that"}) {
    Scrambler scrambler(std::wstring(password.begin(), password.end()));
    // Growing, shrinking, beyond what one record can hold.
    for (const std::size_t size : {1, 40, 0, 17, 300, 100'000}) {
      std::vector<std::byte> bytes(size);
      for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::byte>(i * 31 + i / 256);
      const std::vector<std::byte> expected = ScrambledSlowly(bytes, password);
      scrambler.Scramble(bytes);
      ASSERT_EQ(expected, bytes) << password << size;
      Scrambler(L"").Scramble(bytes);
      ASSERT_EQ(expected, bytes) << "no password, no scrambling";
    }
  }
}

}  // namespace
}  // namespace orvane
