#pragma once

#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "memory/Desktop.h"
#include "menudata/Definition.h"
#include "menudata/clsOptions.h"
#include "menudata/clsOrvaneDataTools.h"
#include "support/CodePage.h"
#include "support/ErrorOf.h"
#include "support/ThreadState.h"
#include "support/clsTrace.h"

namespace orvane::test {

inline std::vector<std::byte> Bytes(const std::vector<int>& numbers) {
  std::vector<std::byte> bytes;
  for (const int number : numbers) bytes.push_back(static_cast<std::byte>(number));
  return bytes;
}

inline std::string TextOfFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline std::vector<std::byte> Fixture(const std::string& name) {
  const std::string content = TextOfFile(ORVANE_TEST_DATA "/" + name);
  const auto bytes = std::as_bytes(std::span(content));
  return {bytes.begin(), bytes.end()};
}

/// A memory desktop with the thread's traces and the tools over it.
struct World {
  World() { ThreadState::SetCurrent(&thread); }
  ~World() { ThreadState::SetCurrent(nullptr); }
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  SettingsServices Services() {
    return {desktop.registry, desktop.files, desktop.boxes,
            desktop.system,   desktop.clock, desktop.locale};
  }

  DefinitionFile File(std::vector<std::byte> bytes) { return {std::move(bytes), codePage}; }

  Definition Read(std::vector<std::byte> bytes) {
    DefinitionFile file = File(std::move(bytes));
    return ReadDefinition(file, tools);
  }

  /// The value records of some texts.
  std::vector<std::byte> Records(const std::vector<std::wstring>& texts) {
    std::vector<std::byte> file;
    for (const std::wstring& text : texts) {
      std::vector<std::byte> bytes = codePage.Encode(text);
      scrambler.Scramble(bytes);
      for (const std::size_t number : {std::size_t{8}, bytes.size()}) {
        file.push_back(static_cast<std::byte>(number & 0xFF));
        file.push_back(static_cast<std::byte>(number >> 8));
      }
      file.insert(file.end(), bytes.begin(), bytes.end());
    }
    return file;
  }

  memory::Desktop desktop;
  CodePage codePage{desktop.system.AnsiCharacters()};
  clsTrace debug{desktop.files,  desktop.boxes, desktop.clock,
                 desktop.locale, desktop.tcp,   codePage};
  clsTrace timing{desktop.files,  desktop.boxes, desktop.clock,
                  desktop.locale, desktop.tcp,   codePage};
  ThreadState thread{&debug, &timing, {}};
  clsOptions options;
  Scrambler scrambler;
  clsOrvaneDataTools tools{options, codePage, scrambler, desktop.shell};
};

}  // namespace orvane::test
