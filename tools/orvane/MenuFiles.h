#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "HostWindows.h"
#include "memory/Desktop.h"
#include "menudata/clsOptions.h"
#include "menudata/clsOrvaneDataTools.h"
#include "menudoc/CheckMenu.h"
#include "support/CodePage.h"

namespace CLI {
class App;
}

namespace orvane::tool {

/// For whom menus are read and written; texts as they stand on the command line (UTF-8).
struct MenuOptions {
  int codePage = 0;              // 0: the one of this Windows, elsewhere 1252
  std::vector<std::string> set;  // NAME=VALUE
  std::string driveC;            // a directory that plays the drive; empty: none does
};

/// Adds those of the options that commands on documents have.
void AddMenuOptions(CLI::App& command, MenuOptions& options);

/// Menu documents and definition files of this machine. What cannot be done is a
/// std::runtime_error.
class MenuFiles {
 public:
  explicit MenuFiles(const MenuOptions& options);
  MenuFiles(const MenuFiles&) = delete;
  MenuFiles& operator=(const MenuFiles&) = delete;

  /// A document or definition file with all that is wrong with it.
  ParsedMenu Read(const std::string& path);
  /// The menu of such a file; std::runtime_error that names every error in it.
  MenuDocument ReadSound(const std::string& path);
  /// A definition file as it is, whatever its items say.
  MenuDocument ReadDefinitionFile(const std::string& path);
  /// Refuses to write over what has been read.
  void WriteDefinitionFile(const MenuDocument& menu, const std::string& path);
  void WriteText(const std::string& text, const std::string& path);

  const CodePage& Page() const { return m_codePage; }
  /// Of the Windows that the menus are for, as far as there is one.
  FileReader& Files() { return m_windows ? m_windows->Files() : m_desktop.files; }
  const clsOrvaneDataTools& DataTools() const { return m_tools; }
  memory::Desktop& Desktop() { return m_desktop; }

 private:
  /// `locations`: where to look for them; null for nowhere.
  ParsedMenu Read(const std::string& path, FileReader* locations);
  std::string ReadInput(const std::string& path);
  MenuDocument Decode(const std::string& content);
  DocumentSources Sources(const std::string& path);
  std::optional<std::wstring> ValueOf(std::wstring_view name);
  void Write(const std::string& path, std::span<const std::byte> bytes);

  std::unique_ptr<HostWindows> m_windows;  // null elsewhere, and under another drive
  memory::Desktop m_desktop;
  bool m_hasFiles;  // there are files to look for the menu's locations in
  CodePage m_codePage;
  Scrambler m_scrambler;
  clsOptions m_options;
  clsOrvaneDataTools m_tools;
  std::map<std::wstring, std::wstring> m_values;  // by lower-case name
  std::vector<std::string> m_inputs;
  std::size_t m_size = 0;  // of what was read
};

}  // namespace orvane::tool
