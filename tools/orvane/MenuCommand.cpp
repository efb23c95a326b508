#include "MenuCommand.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <span>

#include "HostFile.h"
#include "memory/Desktop.h"
#include "menudoc/CheckMenu.h"
#include "menudoc/ItemKinds.h"
#include "menudoc/MenuTree.h"
#include "support/Utf8.h"

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;

/// A name beside the file that nothing bears yet.
fs::path FreeName(const fs::path& path) {
  fs::path name;
  for (int i = 1; name.empty() || fs::exists(fs::symlink_status(name)); ++i)
    name = path.string() + ".new" + std::to_string(i);
  return name;
}

bool Write(const fs::path& path, std::span<const std::byte> bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.close();
  return static_cast<bool>(file);
}

/// Writes beside the file and moves the new one over it, so that a failure leaves the old one. A
/// link stays one, and what is no file, such as a device, is written as it is.
void ReplaceFile(const std::string& path, std::span<const std::byte> bytes) {
  std::error_code error;
  fs::path target = fs::weakly_canonical(path, error);
  if (error) target = path;
  bool written = false;
  if (fs::exists(target, error) && !fs::is_regular_file(target, error)) {
    written = Write(target, bytes);
  } else {
    const fs::path beside = FreeName(target);
    written = Write(beside, bytes);
    if (written) fs::rename(beside, target, error);
    written = written && !error;
    if (!written) fs::remove(beside, error);
  }
  if (!written) throw std::runtime_error(path + ": cannot be written");
}

/// What reading and writing the file takes of the core.
struct Tools {
  memory::Desktop desktop;
  CodePage codePage{desktop.system.AnsiCharacters()};
  clsTrace debug{desktop.files,  desktop.boxes, desktop.clock,
                 desktop.locale, desktop.tcp,   codePage};
  clsOptions options;
  clsOrvaneDataTools data{options, debug, desktop.shell};
};

void RefuseErrors(const std::vector<Finding>& findings, const std::string& json) {
  for (const Finding& finding : findings) {
    if (finding.severity == Finding::Severity::Error)
      throw std::runtime_error(json + ": " +
                               (finding.place.empty() ? "the document" : finding.place) + ": " +
                               finding.text);
  }
}

void WriteMenu(const std::string& json, const std::string& cfg) {
  Tools tools;
  const ParsedMenu parsed = ParseMenu(ReadHostFile(json));
  RefuseErrors(parsed.findings, json);
  RefuseErrors(CheckMenu(parsed.menu, {tools.codePage}), json);
  try {
    ReplaceFile(cfg, WriteDefinition(parsed.menu, tools.codePage, tools.debug));
  } catch (const UnwritableText& error) {
    const std::int32_t type = parsed.menu.items[error.Item()].data.m_lType;
    throw std::runtime_error(json + ": " + parsed.places[error.Item()] + "/" +
                             std::string(FindField(type, error.Field())->name) + ": " +
                             ToUtf8(error.Description()));
  }
}

void ReadMenu(const std::string& cfg) {
  Tools tools;
  const std::string content = ReadHostFile(cfg);
  const auto bytes = std::as_bytes(std::span(content));
  DefinitionFile file({bytes.begin(), bytes.end()}, tools.codePage);
  try {
    std::cout << FormatMenu(InTreeOrder(ReadDefinition(file, tools.data))) << std::flush;
  } catch (const Error& error) {
    throw std::runtime_error(cfg + ": " + ToUtf8(error.Description()));
  } catch (const DocumentError& error) {
    throw std::runtime_error(cfg + ": " + error.what());
  }
  if (!std::cout) throw std::runtime_error("standard output: cannot be written");
}

template <class Action>
void Run(int& exitCode, Action action) {
  try {
    action();
    exitCode = 0;
  } catch (const std::exception& error) {
    std::cerr << "orvane: " << error.what() << '\n';
    exitCode = 2;
  }
}

}  // namespace

void AddMenuCommand(CLI::App& app, int& exitCode) {
  struct Arguments {
    std::string json;
    std::string cfg;
  };
  const auto arguments = std::make_shared<Arguments>();
  CLI::App* menu =
      app.add_subcommand("menu", "Turns a readable menu into a definition file, and back");
  menu->require_subcommand(1);

  CLI::App* write = menu->add_subcommand("write", "Writes the definition file of a JSON document");
  write->add_option("MENU.json", arguments->json, "The document")->required();
  write->add_option("FILE.cfg", arguments->cfg, "The definition file to write")->required();
  write->callback(
      [=, &exitCode] { Run(exitCode, [&] { WriteMenu(arguments->json, arguments->cfg); }); });

  CLI::App* read = menu->add_subcommand("read", "Prints the JSON document of a definition file");
  read->add_option("FILE.cfg", arguments->cfg, "The definition file")->required();
  read->callback([=, &exitCode] { Run(exitCode, [&] { ReadMenu(arguments->cfg); }); });
}

}  // namespace orvane::tool
