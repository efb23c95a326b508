#pragma once

#include <filesystem>
#include <initializer_list>
#include <map>
#include <optional>
#include <set>
#include <string_view>

#include "memory/Clock.h"
#include "memory/Effects.h"
#include "memory/Faults.h"
#include "memory/FileNode.h"
#include "platform/FileSystem.h"

namespace orvane::memory {

/// Drives and shares in memory. A folder lists its entries in the order in which they came, a
/// mounted directory in order of name. Paths are taken with "\" or "/", with or without the "\\?\"
/// before them; short names are found like long ones.
///
/// Files that the component writes are recorded as an effect when they are closed ("WriteFile" with
/// the text that was written), and so are removals ("DeleteFile"). A file that was written and then
/// moved to its place counts as written there.
///
/// Left out: times, streams, the hidden rules of names (dots at the end, devices), sharing between
/// readers, volumes' sizes.
class FileSystem : public orvane::FileSystem {
 public:
  FileSystem(Clock& clock, Effects& effects, Faults& faults);

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
  std::wstring WorkingDirectory() override { return m_working; }
  std::unique_ptr<OutputFile> OpenToWrite(const std::wstring& path, Open how) override;
  bool Remove(const std::wstring& path) override;
  bool Replace(const std::wstring& from, const std::wstring& to) override;
  bool ChangeDirectory(const std::wstring& folder) override;
  std::uint32_t LastError() const override { return m_lastError; }

  // For tests. Folders above the path are made as needed.
  FileNode& AddFolder(const std::wstring& path);
  FileNode& AddFile(const std::wstring& path, std::string_view content = {},
                    std::uint32_t attributes = FileAttribute::Archive);
  /// A link, or mount point, that leads to the target.
  FileNode& AddLink(const std::wstring& path, const std::wstring& target);
  /// The file's bytes as they stand; none without such a file. Not a call that can be failed.
  std::optional<std::string> Content(const std::wstring& path);
  bool Exists(const std::wstring& path) { return Find(Split(path)) != nullptr; }

  /// A directory of the host plays the drive ("C:") or share. It is read when it is first looked
  /// into and never written to: all changes stay in memory.
  void Mount(const std::wstring& root, const std::filesystem::path& directory);

  enum class Trouble {
    Unreadable,  // no access, for reading and listing
    ReadOnly,    // no access, for writing
    Full,        // opens, but takes no byte
    Fixed,       // nothing is made, moved or removed; what is there can be written
    BreaksOff,   // a listing ends after its first entry
  };
  /// From now on everything at and below the path, there or not, is in trouble.
  void Add(Trouble trouble, const std::wstring& path);
  /// The folder is on a network, as its whole drive then is, and does not answer for so long; the
  /// clock moves on by the wait.
  void Stall(const std::wstring& folder, std::uint32_t milliseconds);

 private:
  class Output;
  using Names = std::vector<std::wstring>;  // "C:" or "\\server\share" first

  static Names LowerCaseAll(Names names);
  static std::wstring Joined(const Names& names);
  Names Split(const std::wstring& path) const;
  FileNode* Find(const Names& names, int links = 0);
  FileNode* Follow(FileNode* node, int links = 0);
  FileNode* FindOrFail(const Names& names);
  FileNode* FindParent(Names names);
  FileNode* FindToChange(const Names& names);
  bool In(Trouble trouble, const Names& names) const;
  std::uint32_t StallOf(const Names& names) const;
  bool Enter(const Names& names, const Patience& patience = Patience::Endless);
  bool Wait(std::uint32_t time, const std::wstring& server, const Patience& patience);
  // Windows error codes that stand for a trouble of the whole call.
  static constexpr std::uint32_t SemaphoreTimeout = 121;
  static constexpr std::uint32_t IoFailure = 1117;  // for a call that a test fails

  void Fail(std::uint32_t error) { m_lastError = error; }
  FileNode* FindOrCreate(const Names& names, const std::wstring& path);
  void Written(const std::wstring& path, std::wstring text);
  void Moved(const std::wstring& from, const std::wstring& to);

  Clock& m_clock;
  Effects& m_effects;
  Faults& m_faults;
  FileNode m_roots{L"", FileAttribute::Directory};
  std::wstring m_working = L"C:\\Windows\\System32";
  std::map<Names, std::vector<Trouble>> m_troubles;  // by lower-cased names
  std::map<Names, std::uint32_t> m_stalls;
  std::set<std::wstring> m_networkDrives;  // lower-cased, as "z:"
  std::uint32_t m_lastError = 0;
};

}  // namespace orvane::memory
