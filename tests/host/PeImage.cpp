#include "host/PeImage.h"

#include <windows.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace orvane::host {
namespace {

class PeImage {
 public:
  explicit PeImage(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    m_bytes.assign(std::istreambuf_iterator<char>(file), {});
    m_header = At<IMAGE_DOS_HEADER>(0).e_lfanew;
    if (Headers().Signature != IMAGE_NT_SIGNATURE ||
        Headers().OptionalHeader.Magic != IMAGE_NT_OPTIONAL_HDR64_MAGIC) {
      throw std::runtime_error("no 64-bit program file");
    }
  }

  std::set<std::string> Imports() const {
    const auto& entry = Headers().OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    std::set<std::string> names;
    for (std::size_t at = Offset(entry.VirtualAddress);; at += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
      const auto& import = At<IMAGE_IMPORT_DESCRIPTOR>(at);
      if (import.Name == 0) return names;
      std::string name = &At<char>(Offset(import.Name));
      std::transform(name.begin(), name.end(), name.begin(),
                     [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
      names.insert(std::move(name));
    }
  }

 private:
  template <class T>
  const T& At(std::size_t offset) const {
    if (offset + sizeof(T) > m_bytes.size()) throw std::runtime_error("program file cut short");
    return *reinterpret_cast<const T*>(m_bytes.data() + offset);
  }

  const IMAGE_NT_HEADERS64& Headers() const {
    return At<IMAGE_NT_HEADERS64>(static_cast<std::size_t>(m_header));
  }

  std::size_t Offset(DWORD address) const {
    const std::size_t sections = static_cast<std::size_t>(m_header) +
                                 offsetof(IMAGE_NT_HEADERS64, OptionalHeader) +
                                 Headers().FileHeader.SizeOfOptionalHeader;
    for (std::size_t i = 0; i < Headers().FileHeader.NumberOfSections; ++i) {
      const auto& section = At<IMAGE_SECTION_HEADER>(sections + i * sizeof(IMAGE_SECTION_HEADER));
      if (address - section.VirtualAddress < section.SizeOfRawData) {
        return section.PointerToRawData + (address - section.VirtualAddress);
      }
    }
    throw std::runtime_error("address outside the sections");
  }

  std::vector<char> m_bytes;
  LONG m_header = 0;
};

}  // namespace

std::set<std::string> ImportedDlls(const std::wstring& path) {
  return PeImage(path).Imports();
}

}  // namespace orvane::host
