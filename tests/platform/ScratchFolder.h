#pragma once

#include <filesystem>
#include <random>
#include <string>

#ifdef _WIN32
#include <windows.h>
#endif

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
#ifdef _WIN32
  ~ScratchFolder() {
    RemoveAll(L"\\\\?\\" + m_path.wstring());
  }
#else
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }
#endif

  const std::filesystem::path& Path() const {
    return m_path;
  }

 private:
#ifdef _WIN32
  // The library's own stops at paths of 260 characters.
  static void RemoveAll(const std::wstring& folder) {
    WIN32_FIND_DATAW found;
    const HANDLE walk = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (walk == INVALID_HANDLE_VALUE) return;
    do {
      const std::wstring name = found.cFileName;
      if (name == L"." || name == L"..") continue;
      const std::wstring path = folder + L"\\" + name;
      if (!DeleteFileW(path.c_str())) RemoveAll(path);
    } while (FindNextFileW(walk, &found));
    FindClose(walk);
    RemoveDirectoryW(folder.c_str());
  }
#endif

  std::filesystem::path m_path;
};

}  // namespace orvane
