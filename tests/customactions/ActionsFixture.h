#pragma once

#include <gtest/gtest.h>

#include "customactions/clsCustomActions.h"
#include "customactions/clsProcess.h"
#include "memory/Desktop.h"
#include "support/CodePage.h"

namespace orvane::test {

/// Files that count how often one is read.
class CountingFiles : public memory::FileSystem {
 public:
  using memory::FileSystem::FileSystem;

  std::optional<std::vector<std::byte>> Read(const std::wstring& path, std::size_t limit,
                                             const Patience& patience) override {
    ++reads;
    return memory::FileSystem::Read(path, limit, patience);
  }

  int reads = 0;
};

/// A memory desktop with a file of custom actions.
class ActionsFixture : public testing::Test {
 protected:
  void GiveFile(std::string_view text) { files.AddFile(Path, text); }

  const std::wstring Path = L"C:\\Actions\\CustomActions.ini";
  memory::Desktop desktop;
  CountingFiles files{desktop.clock, desktop.effects, desktop.faults};
  memory::ProfileFiles profiles{files};
  CodePage codePage{desktop.system.AnsiCharacters()};
  clsProcess process{desktop.processes, desktop.system};
  clsCustomActions actions{{files, profiles, desktop.windows, process, desktop.keyboard,
                            desktop.clock, desktop.locale, desktop.boxes, codePage}};
};

}  // namespace orvane::test
