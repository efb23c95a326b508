// Runs a fuzz target over the files of a folder, and over each of them cut short.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  std::size_t inputs = 0;
  for (int i = 1; i < argc; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
      const std::size_t step = bytes.size() / 64 + 1;
      for (std::size_t size = bytes.size();; size -= step) {
        const std::vector<std::uint8_t> input(bytes.begin(),
                                              bytes.begin() + static_cast<std::ptrdiff_t>(size));
        LLVMFuzzerTestOneInput(input.data(), input.size());
        ++inputs;
        if (size < step) break;
      }
    }
  }
  std::printf("%zu inputs\n", inputs);
  return inputs == 0;
}
