#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "memory/Desktop.h"
#include "platform/ScratchFolder.h"
#ifdef _WIN32
#include <ole2.h>

#include "win32/Desktop.h"
#endif

namespace orvane {

/// A test of a contract: it runs on the desktop in memory and, on Windows, on the real one.
class AnyDesktop : public testing::TestWithParam<const char*> {
 protected:
#ifdef _WIN32
  AnyDesktop() {
    EXPECT_TRUE(SUCCEEDED(OleInitialize(nullptr)));
  }
  ~AnyDesktop() override {
    OleUninitialize();
  }

  bool IsReal() const {
    return std::string_view(GetParam()) == "win32";
  }

  memory::Desktop m_memory;
  win32::Desktop m_real{GetModuleHandleW(nullptr)};
  Platform m_platform = IsReal() ? m_real.Bundle() : m_memory.Bundle();
#else
  static bool IsReal() {
    return false;
  }

  memory::Desktop m_memory;
  Platform m_platform = m_memory.Bundle();
#endif
};

inline auto EveryDesktop() {
#ifdef _WIN32
  return testing::Values("memory", "win32");
#else
  return testing::Values("memory");
#endif
}

inline std::string NameOfDesktop(const testing::TestParamInfo<const char*>& info) {
  return info.param;
}

inline std::vector<std::byte> Bytes(std::string_view text) {
  const auto* first = reinterpret_cast<const std::byte*>(text.data());
  return {first, first + text.size()};
}

/// One with a folder of its own, which goes with it.
class AnyDisk : public AnyDesktop {
 protected:
  AnyDisk() { m_memory.files.AddFolder(L"D:\\Scratch"); }

  std::wstring At(const std::wstring& name) const { return m_root + L"\\" + name; }

  void MakeFolder(const std::wstring& name) {
    if (!IsReal()) m_memory.files.AddFolder(At(name));
#ifdef _WIN32
    if (IsReal()) CreateDirectoryW((L"\\\\?\\" + At(name)).c_str(), nullptr);
#endif
  }

  bool Put(const std::wstring& name, std::string_view content = "",
           FileSystem::Open how = FileSystem::Open::CreateAnew) {
    const auto file = files.OpenToWrite(At(name), how);
    return file && file->Write(Bytes(content));
  }

  FileSystem& files = m_platform.files;
  ScratchFolder m_scratch;
  std::wstring m_root = IsReal() ? m_scratch.Path().wstring() : L"D:\\Scratch";
};

}  // namespace orvane
