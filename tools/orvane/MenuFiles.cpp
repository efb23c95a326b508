#include "MenuFiles.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <span>
#include <stdexcept>
#include <utility>

#include "FindingsText.h"
#include "HostFile.h"
#include "Progress.h"
#include "WideText.h"
#include "menudoc/MenuTree.h"
#include "menudoc/NamesInText.h"
#include "support/Text.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

std::string TextOf(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::unique_ptr<HostWindows> WindowsFor(const MenuOptions& options) {
  return options.driveC.empty() ? FindWindows() : nullptr;
}

std::array<wchar_t, 256> CharactersFor(const MenuOptions& options, HostWindows* windows,
                                       memory::Desktop& desktop) {
  if (options.codePage == 0)
    return windows ? windows->System().AnsiCharacters() : desktop.system.AnsiCharacters();
  if (const auto characters = CodePageCharacters(options.codePage)) return *characters;
  throw std::runtime_error("--code-page " + std::to_string(options.codePage) +
                           ": is no code page of single bytes that this machine knows");
}

std::map<std::wstring, std::wstring> ValuesOf(const std::vector<std::string>& settings) {
  std::map<std::wstring, std::wstring> values;
  for (const std::string& setting : settings) {
    const std::size_t sign = setting.find('=');
    if (sign == 0 || sign == std::string::npos)
      throw std::runtime_error("--set \"" + setting + "\" is not NAME=VALUE");
    values[LowerCase(WideText(setting.substr(0, sign)))] = WideText(setting.substr(sign + 1));
  }
  return values;
}

/// A definition file begins with the tag of a text, which no document does.
bool IsDefinition(const std::string& content, const std::string& path) {
  return content.starts_with('\b') || LowerCase(WideText(path)).ends_with(L".cfg");
}

Finding ErrorOfFile(std::string text) {
  Finding finding;
  finding.text = std::move(text);
  finding.remedy = "Make the file anew.";
  return finding;
}

}  // namespace

void AddMenuOptions(CLI::App& command, MenuOptions& options) {
  command.add_option("--code-page", options.codePage,
                     "Number of the code page of the machine that the menu is for");
  command.add_option("--set", options.set, "NAME=VALUE: what %NAME% stands for in the document")
      ->expected(1)
      ->take_all();
}

MenuFiles::MenuFiles(const MenuOptions& options)
    : m_windows(WindowsFor(options)),
      m_hasFiles(m_windows || !options.driveC.empty()),
      m_codePage(CharactersFor(options, m_windows.get(), m_desktop)),
      m_tools(m_options, m_codePage, m_scrambler, m_windows ? m_windows->Names() : m_desktop.shell),
      m_values(ValuesOf(options.set)) {
  if (options.driveC.empty()) return;
  if (!fs::is_directory(PathOf(options.driveC)))
    throw std::runtime_error(options.driveC + ": is no directory");
  m_desktop.files.Mount(L"C:", PathOf(options.driveC));
}

ParsedMenu MenuFiles::Read(const std::string& path) {
  return Read(path, m_hasFiles ? &Files() : nullptr);
}

ParsedMenu MenuFiles::Read(const std::string& path, FileReader* locations) {
  const std::string content = ReadInput(path);
  Progress progress(m_size);
  progress.Reach("reading", 0, 1);
  const MenuSurroundings surroundings{m_codePage, locations, [&](auto done, auto total) {
                                        progress.Reach("checking", done, total);
                                      }};
  if (!IsDefinition(content, path)) {
    ParsedMenu parsed = ParseMenu(content, Sources(path));
    CheckParsed(parsed, surroundings);
    return parsed;
  }
  ParsedMenu parsed;
  try {
    parsed.menu = Decode(content);
    parsed.findings = CheckMenu(parsed.menu, surroundings);
  } catch (const Error& error) {
    parsed.findings.push_back(ErrorOfFile(ToUtf8(error.Description())));
  } catch (const DocumentError& error) {
    parsed.findings.push_back(ErrorOfFile(error.what()));
  }
  return parsed;
}

MenuDocument MenuFiles::ReadSound(const std::string& path) {
  // A location that is not there is no error, and looking for thousands of them takes its time.
  ParsedMenu parsed = Read(path, nullptr);
  std::string errors;
  for (const Finding& finding : parsed.findings) {
    if (finding.severity != Finding::Severity::Error) continue;
    errors += (errors.empty() ? "" : "\norvane: ") + path + ": " +
              OnOneLine((finding.place.empty() ? "" : finding.place + ": ") + finding.text);
  }
  if (!errors.empty()) throw std::runtime_error(errors);
  return std::move(parsed.menu);
}

MenuDocument MenuFiles::ReadDefinitionFile(const std::string& path) {
  const std::string content = ReadInput(path);
  Progress progress(m_size);
  progress.Reach("reading", 0, 1);
  try {
    return Decode(content);
  } catch (const Error& error) {
    throw std::runtime_error(path + ": " + ToUtf8(error.Description()));
  } catch (const DocumentError& error) {
    throw std::runtime_error(path + ": " + error.what());
  }
}

void MenuFiles::WriteDefinitionFile(const MenuDocument& menu, const std::string& path) {
  Progress progress(m_size);
  progress.Reach("writing", 0, 1);
  Write(path, WriteDefinition(menu, m_codePage, m_scrambler));
}

void MenuFiles::WriteText(const std::string& text, const std::string& path) {
  Write(path, std::as_bytes(std::span(text)));
}

std::string MenuFiles::ReadInput(const std::string& path) {
  m_inputs.push_back(path);
  std::string content = ReadHostFile(path);
  m_size += content.size();
  return content;
}

void MenuFiles::Write(const std::string& path, std::span<const std::byte> bytes) {
  for (const std::string& input : m_inputs) {
    if (path != StandardStream && input != StandardStream && IsSameHostFile(path, input))
      throw std::runtime_error(path + ": is what is read, and is left as it is");
  }
  WriteHostFile(path, bytes);
}

MenuDocument MenuFiles::Decode(const std::string& content) {
  const auto bytes = std::as_bytes(std::span(content));
  DefinitionFile file({bytes.begin(), bytes.end()}, m_codePage);
  return InTreeOrder(ReadDefinition(file, m_tools));
}

/// A document is named as seen from the one that names it.
DocumentSources MenuFiles::Sources(const std::string& path) {
  const auto read = [this, path](
                        const std::string& name,
                        const std::string& from) -> std::optional<DocumentSources::Document> {
    const std::string base = !from.empty() ? from : path == StandardStream ? "" : path;
    std::error_code error;
    const fs::path file = fs::weakly_canonical(PathOf(base).parent_path() / PathOf(name), error);
    if (error) return std::nullopt;
    try {
      return DocumentSources::Document{TextOf(file), ReadInput(TextOf(file))};
    } catch (const std::runtime_error&) {
      return std::nullopt;
    }
  };
  return {.value = [this](std::wstring_view name) { return ValueOf(name); }, .document = read};
}

std::optional<std::wstring> MenuFiles::ValueOf(std::wstring_view name) {
  if (const auto set = m_values.find(LowerCase(name)); set != m_values.end()) return set->second;
  if (!m_windows) return std::nullopt;
  if (auto path = SpecialFolderPath(m_windows->Names(), name)) return path;
  std::wstring value = m_windows->System().Environment(std::wstring(name));
  if (value.empty()) return std::nullopt;
  return value;
}

}  // namespace orvane::tool
