#pragma once

#include <memory>
#include <string>
#include <vector>

#include "EffectText.h"
#include "commands/CommandContext.h"
#include "customactions/clsProcess.h"
#include "platform/memory/DataObject.h"
#include "platform/memory/Desktop.h"
#include "support/ThreadState.h"
#include "support/clsTrace.h"

namespace orvane::test {

/// A handler's state on a memory desktop, as a command finds it.
class Scene {
 public:
  Scene() {
    ThreadState::SetCurrent(&state);
    options.m_szPath = L"Software\\Tarnwick\\Orvane\\";
    history.Path(L"Software\\Tarnwick\\Orvane\\ContextMenu\\HistoryMRU\\");
    quickAccess.Path(L"Software\\Tarnwick\\Orvane\\ContextMenu\\QuickAccessMRU\\");
    copyTo.Path(L"Software\\Tarnwick\\Orvane\\ContextMenu\\CopyTo\\");
    history.Load(5);
    quickAccess.Load(3);
    copyTo.Load(7);
  }
  ~Scene() { ThreadState::SetCurrent(nullptr); }
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  CommandContext Context() {
    return {platform, codePage, actions,   options,      history, quickAccess, copyTo,       tools,
            items,    First,    selection, selectedItem, folder,  file,        windowActions};
  }

  /// A record in the command table, at the next offset.
  std::shared_ptr<clsOrvaneData> Add(std::int32_t type, std::int32_t lOptions = 0) {
    auto record = std::make_shared<clsOrvaneData>();
    record->m_lType = type;
    record->m_lOptions = lOptions;
    items.Add(L"", First + items.Count(), record);
    return record;
  }

  void Select(std::initializer_list<std::wstring_view> names) {
    selection = std::make_shared<memory::DataObject>(names);
  }

  WindowHandle AddWindow(const std::wstring& className, WindowHandle parent = WindowHandle::None) {
    memory::Windows::Window window;
    window.className = className;
    window.parent = parent;
    return desktop.windows.Add(window);
  }

  /// The effects so far, messages to windows only when asked for.
  std::vector<std::string> Effects(bool withMessages = false) {
    std::vector<std::string> lines = EffectLines(desktop.effects);
    if (!withMessages) {
      std::erase_if(lines, [](const std::string& line) { return line.starts_with("SendMessage"); });
    }
    return lines;
  }

  /// "type location caption" of each entry, newest first.
  std::vector<std::wstring> ItemsOf(const clsMRU& list) {
    std::vector<std::wstring> entries;
    for (std::int32_t i = 1; i <= list.FileCount(); ++i) {
      clsOrvaneData item;
      tools.BreakdownHistoryMRU(list.File(i), item);
      entries.push_back(std::to_wstring(item.m_lType) + L" " + item.Location() + L" " +
                        item.Caption());
    }
    return entries;
  }

  static constexpr std::int32_t First = 2000;

  memory::Desktop desktop;
  Platform platform = desktop.Bundle();
  CodePage codePage{desktop.system.AnsiCharacters()};
  clsTrace debug = MakeTrace();
  clsTrace timing = MakeTrace();
  ThreadState state{&debug, &timing, {}};
  clsOptions options;
  clsMRU history{desktop.registry};
  clsMRU quickAccess{desktop.registry};
  clsMRU copyTo{desktop.registry};
  clsOrvaneDataTools tools{options, debug, desktop.shell};
  clsProcess process{desktop.processes, desktop.system};
  ActionServices actions{desktop.files,  desktop.profiles, desktop.windows,
                         process,        desktop.keyboard, desktop.clock,
                         desktop.locale, desktop.boxes,    codePage};

  clsCollection items;
  std::shared_ptr<memory::DataObject> selection;
  std::wstring selectedItem;
  std::wstring folder;
  std::wstring file;
  std::int32_t windowActions = 0;

 private:
  clsTrace MakeTrace() {
    return clsTrace(desktop.files, desktop.boxes, desktop.clock, desktop.locale, desktop.tcp,
                    codePage);
  }
};

/// A message box as an effect line.
inline std::string Warning(const std::string& text) {
  return "MessageBox title=Orvane - Orvane Shell Extension text=" + text +
         " icon=exclamation buttons=ok";
}

}  // namespace orvane::test
