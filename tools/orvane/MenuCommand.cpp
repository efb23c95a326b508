#include "MenuCommand.h"

#include <CLI/CLI.hpp>

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
    WriteHostFile(cfg, WriteDefinition(parsed.menu, tools.codePage, tools.debug));
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

}  // namespace

void AddMenuCommand(CLI::App& app) {
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
  write->callback([=] { WriteMenu(arguments->json, arguments->cfg); });

  CLI::App* read = menu->add_subcommand("read", "Prints the JSON document of a definition file");
  read->add_option("FILE.cfg", arguments->cfg, "The definition file")->required();
  read->callback([=] { ReadMenu(arguments->cfg); });
}

}  // namespace orvane::tool
