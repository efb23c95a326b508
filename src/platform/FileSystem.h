#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/Patience.h"

namespace orvane {

// Windows' file attributes (FILE_ATTRIBUTE_*).
struct FileAttribute {
  static constexpr std::uint32_t ReadOnly = 0x1;
  static constexpr std::uint32_t Hidden = 0x2;
  static constexpr std::uint32_t System = 0x4;
  static constexpr std::uint32_t Directory = 0x10;
  static constexpr std::uint32_t Archive = 0x20;
  static constexpr std::uint32_t Normal = 0x80;
  static constexpr std::uint32_t ReparsePoint = 0x400;
  static constexpr std::uint32_t Offline = 0x1000;
  static constexpr std::uint32_t RecallOnOpen = 0x40000;
  static constexpr std::uint32_t RecallOnDataAccess = 0x400000;
};

struct FoundFile {
  std::wstring name;
  std::uint32_t attributes = 0;
  bool isLink = false;  // it stands for another place: a link or a mount point
};

/// What tells two files or folders apart, whatever their names.
struct FileIdentity {
  std::uint64_t volume = 0;
  std::uint64_t file = 0;

  bool operator==(const FileIdentity&) const = default;
};

/// A walk over one folder, in the order the file system gives; closed with the object.
class DirectoryListing {
 public:
  virtual ~DirectoryListing() = default;

  /// The next entry, without "." and ".."; false at the end (`found` then untouched).
  virtual bool Next(FoundFile& found) = 0;

  /// After the end: false when the walk broke off before everything was found.
  virtual bool IsWhole() const = 0;
};

/// A file open for writing, shared with nobody; closed with the object.
class OutputFile {
 public:
  virtual ~OutputFile() = default;

  /// True when every byte was taken.
  virtual bool Write(std::span<const std::byte> bytes) = 0;
};

/// The part of the file system that a reader needs. Paths are Windows paths of any length ("\"
/// between names); names are compared without regard to case. A call on a network that does not
/// answer before the patience ends comes back as a failed one.
class FileReader {
 public:
  virtual ~FileReader() = default;

  static constexpr std::size_t MaxSize = 256u << 20;

  /// The whole file, read with one read; none when it cannot be opened or read, or is longer than
  /// `limit` bytes.
  virtual std::optional<std::vector<std::byte>> Read(
      const std::wstring& path, std::size_t limit = MaxSize,
      const Patience& patience = Patience::Endless) = 0;

  /// FileAttribute bits of a file or folder; none when there is no such thing.
  virtual std::optional<std::uint32_t> Attributes(const std::wstring& path,
                                                  const Patience& patience = Patience::Endless) = 0;

  /// The identity of what a path leads to, links followed; none when there is no such thing.
  virtual std::optional<FileIdentity> Identity(const std::wstring& path,
                                               const Patience& patience = Patience::Endless) = 0;

  /// Opens a walk over the folder; null when it is no folder or cannot be listed. The patience,
  /// which outlives the walk, is also that of its steps.
  virtual std::unique_ptr<DirectoryListing> List(const std::wstring& folder,
                                                 const Patience& patience) = 0;

  /// The path in its short (8.3) form; empty when there is none.
  virtual std::wstring ShortName(const std::wstring& path,
                                 const Patience& patience = Patience::Endless) = 0;

  /// Whether the path leads to another machine, which may take long to answer. Told without asking
  /// that machine.
  virtual bool LiesOnNetwork(const std::wstring& path) = 0;

  virtual std::wstring WorkingDirectory() = 0;
};

/// The file system. The Windows error code of the last failed call is at hand in LastError().
class FileSystem : public FileReader {
 public:
  enum class Open { CreateAnew, Append };

  /// Creates the file when it is not there. Null when it cannot be opened for writing.
  virtual std::unique_ptr<OutputFile> OpenToWrite(const std::wstring& path, Open how) = 0;

  virtual bool Remove(const std::wstring& path) = 0;

  /// Moves the file `from` over `to`, which may exist; both lie on one volume.
  virtual bool Replace(const std::wstring& from, const std::wstring& to) = 0;

  virtual bool ChangeDirectory(const std::wstring& folder) = 0;

  /// Windows error code of this object's last failed call; 0 when none failed.
  virtual std::uint32_t LastError() const = 0;
};

}  // namespace orvane
