#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "menudata/Definition.h"
#include "platform/FileSystem.h"

namespace orvane::designer {

/// The definition file of a menu, and what was in it when it was last read or written. Every
/// failure is an Error whose description names the file; the file is then as it was.
class MenuFile {
 public:
  /// All are kept and outlive the object.
  MenuFile(FileSystem& files, const CodePage& codePage, Scrambler& scrambler,
           const clsOrvaneDataTools& tools)
      : m_files(files), m_codePage(codePage), m_scrambler(scrambler), m_tools(tools) {}

  const std::wstring& Path() const { return m_path; }  // empty: not in a file yet
  void Forget() { m_path.clear(); }

  /// Hands over what the file says; an empty one is a menu without items. What `take` refuses with
  /// an Error has not been read.
  void Read(const std::wstring& path, const std::function<void(const Definition&)>& take);

  /// Writes beside the file and moves the new one over it. What was there before stays under the
  /// same name with ".bak" at its end.
  void Write(const std::wstring& path, const Definition& definition);

  /// Whether the file is not what it was when it was last read or written.
  bool ChangedMeanwhile();
  /// The change is known: it counts as read.
  void Acknowledge() { m_bytes = m_files.Read(m_path); }

  /// The bytes that Write would write. UnwritableText for a text that the file cannot hold.
  std::vector<std::byte> BytesOf(const Definition& definition) const;

 private:
  void Put(const std::wstring& path, const std::vector<std::byte>& bytes);

  FileSystem& m_files;
  const CodePage& m_codePage;
  Scrambler& m_scrambler;
  const clsOrvaneDataTools& m_tools;
  std::wstring m_path;
  std::optional<std::vector<std::byte>> m_bytes;  // none: there was no file
};

/// Writes a whole file beside its place and moves it there. Error when it cannot be.
void PutFile(FileSystem& files, const std::wstring& path, const std::vector<std::byte>& bytes);

/// The whole file. Error when it is not there or cannot be read.
std::vector<std::byte> GetFile(FileSystem& files, const std::wstring& path);

}  // namespace orvane::designer
