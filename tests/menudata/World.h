#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "menudata/Definition.h"
#include "menudata/clsOptions.h"
#include "menudata/clsOrvaneDataTools.h"
#include "platform/memory/Desktop.h"
#include "support/CodePage.h"
#include "support/ThreadState.h"
#include "support/clsTrace.h"

namespace orvane::test {

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

  /// The value records of some texts.
  std::vector<std::byte> Records(const std::vector<std::wstring>& texts) {
    std::vector<std::byte> file;
    for (const std::wstring& text : texts) {
      std::vector<std::byte> bytes = codePage.Encode(text);
      debug.EncryptBytes(bytes);
      for (const std::size_t number : {std::size_t{8}, bytes.size()}) {
        file.push_back(static_cast<std::byte>(number & 0xFF));
        file.push_back(static_cast<std::byte>(number >> 8));
      }
      file.insert(file.end(), bytes.begin(), bytes.end());
    }
    return file;
  }

  /// The number of the error that an action ends in; 0 for none.
  template <class Action>
  static std::int32_t ErrorOf(Action action) {
    try {
      action();
    } catch (const Error& error) {
      return error.Number();
    }
    return 0;
  }

  memory::Desktop desktop;
  CodePage codePage{desktop.system.AnsiCharacters()};
  clsTrace debug{desktop.files,  desktop.boxes, desktop.clock,
                 desktop.locale, desktop.tcp,   codePage};
  clsTrace timing{desktop.files,  desktop.boxes, desktop.clock,
                  desktop.locale, desktop.tcp,   codePage};
  ThreadState thread{&debug, &timing, {}};
  clsOptions options;
  clsOrvaneDataTools tools{options, debug, desktop.shell};
};

}  // namespace orvane::test
