#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace orvane {

/// A directory of the machine's own, removed with the object.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::random_device random;
    m_path = std::filesystem::temp_directory_path() / ("orvane-test-" + std::to_string(random()));
    std::filesystem::create_directory(m_path);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
#ifdef _WIN32
    std::filesystem::remove_all(L"\\\\?\\" + m_path.wstring(), ignored);  // paths of any length
#else
    std::filesystem::remove_all(m_path, ignored);
#endif
  }

  const std::filesystem::path& Path() const {
    return m_path;
  }

 private:
  std::filesystem::path m_path;
};

}  // namespace orvane
