// Menu definition files: reading never crashes, and what was read and written reads and writes the
// same again.

#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "memory/Desktop.h"
#include "menudata/Definition.h"

namespace {

using namespace orvane;

struct Reader {
  memory::Desktop desktop;
  CodePage codePage{desktop.system.AnsiCharacters()};
  Scrambler scrambler;
  clsOptions options;
  clsOrvaneDataTools tools{options, codePage, scrambler, desktop.shell};

  Definition Read(std::vector<std::byte> bytes) {
    DefinitionFile file(std::move(bytes), codePage);
    return ReadDefinition(file, tools);
  }
  std::vector<std::byte> Write(const Definition& definition) {
    return WriteDefinition(definition, codePage, scrambler);
  }

  void Try(const std::vector<std::byte>& bytes) {
    std::vector<std::byte> written;
    try {
      written = Write(Read(bytes));
    } catch (const Error&) {
      return;
    }
    if (Write(Read(written)) != written) std::abort();
  }

  /// Scrambles each value, so that a file of plain texts, which mutations can do something with,
  /// becomes a file as it is stored.
  std::vector<std::byte> Scrambled(const std::vector<std::byte>& bytes) {
    std::vector<std::byte> scrambled = bytes;
    for (std::size_t place = 0; place + 4 <= scrambled.size();) {
      const std::size_t length = std::to_integer<std::size_t>(scrambled[place + 2]) |
                                 std::to_integer<std::size_t>(scrambled[place + 3]) << 8;
      place += 4;
      const std::size_t there = std::min(length, scrambled.size() - place);
      scrambler.Scramble(std::span(scrambled).subspan(place, there));
      place += there;
    }
    return scrambled;
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Reader reader;
  const auto input = std::as_bytes(std::span(data, size));
  const std::vector<std::byte> bytes(input.begin(), input.end());
  reader.Try(bytes);
  reader.Try(reader.Scrambled(bytes));
  return 0;
}
