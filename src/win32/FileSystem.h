#pragma once

#include "platform/FileSystem.h"

namespace orvane::win32 {

/// Files of the machine and its network. A folder counts as one on a network by its path or its
/// drive's kind, which is remembered for two seconds; a link on a local drive that leads to a
/// network is taken for local.
class FileSystem : public orvane::FileSystem {
 public:
  std::optional<std::vector<std::byte>> Read(const std::wstring& path, std::size_t limit = MaxSize,
                                             const Patience& patience = Patience::Endless) override;
  std::optional<std::uint32_t> Attributes(const std::wstring& path,
                                          const Patience& patience = Patience::Endless) override;
  std::optional<FileIdentity> Identity(const std::wstring& path,
                                       const Patience& patience = Patience::Endless) override;
  std::unique_ptr<DirectoryListing> List(const std::wstring& folder,
                                         const Patience& patience) override;
  std::wstring ShortName(const std::wstring& path,
                         const Patience& patience = Patience::Endless) override;
  bool LiesOnNetwork(const std::wstring& path) override;
  std::wstring WorkingDirectory() override;
  std::unique_ptr<OutputFile> OpenToWrite(const std::wstring& path, Open how) override;
  bool Remove(const std::wstring& path) override;
  bool Replace(const std::wstring& from, const std::wstring& to) override;
  bool ChangeDirectory(const std::wstring& folder) override;
  std::uint32_t LastError() const override { return m_lastError; }

 private:
  bool Check(bool success);
  bool Waits(const std::wstring& path, const Patience& patience);
  template <class Ask>
  auto Within(const std::wstring& path, const Patience& patience, Ask ask);

  std::uint32_t m_lastError = 0;
};

}  // namespace orvane::win32
