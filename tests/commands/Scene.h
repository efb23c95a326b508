#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "commands/CommandContext.h"
#include "customactions/clsProcess.h"
#include "memory/DataObject.h"
#include "memory/Desktop.h"
#include "support/ThreadState.h"
#include "support/clsTrace.h"

namespace orvane::test {

using Data = clsOrvaneData;
using Lines = std::vector<std::string>;
using Trouble = memory::FileSystem::Trouble;

/// A text that may be printed: characters beyond ASCII as their number.
inline std::string Printable(const std::wstring& text) {
  std::string printable;
  for (const wchar_t character : text) {
    if (character >= 32 && character < 127)
      printable += static_cast<char>(character);
    else
      printable.append("<").append(std::to_string(static_cast<std::uint32_t>(character))) += '>';
  }
  return printable;
}

inline std::string ValueText(const memory::Effect::Value& value) {
  if (const auto* text = std::get_if<std::wstring>(&value)) return Printable(*text);
  if (const auto* number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
  std::string list;
  for (const auto& name : std::get<std::vector<std::wstring>>(value))
    list.append(list.empty() ? "" : "|").append(Printable(name));
  return list;
}

/// A message box as an effect line.
inline std::string Warning(const std::string& text) {
  return "MessageBox title=Orvane - Orvane Shell Extension text=" + text +
         " icon=exclamation buttons=ok";
}

/// A handler's state on a memory desktop, as a command finds it.
class Scene {
 public:
  Scene() {
    ThreadState::SetCurrent(&state);
    options.m_szPath = L"Software\\Tarnwick\\Orvane\\";
    history.Path(options.m_szPath + L"ContextMenu\\HistoryMRU\\");
    quickAccess.Path(options.m_szPath + L"ContextMenu\\QuickAccessMRU\\");
    copyTo.Path(options.m_szPath + L"ContextMenu\\CopyTo\\");
    history.Load(5);
    quickAccess.Load(3);
    copyTo.Load(7);
  }
  ~Scene() { ThreadState::SetCurrent(nullptr); }
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  CommandContext Context() {
    return {platform, codePage, actions, options, history,       quickAccess,
            copyTo,   tools,    items,   First,   windowActions, selection};
  }

  /// A record in the command table, at the next offset.
  std::shared_ptr<Data> Add(std::int32_t type, const std::wstring& location = {}) {
    auto record = std::make_shared<Data>();
    record->m_lType = type;
    record->Location(location);
    items.Add(record).Id(First + items.Count() - 1);
    return record;
  }

  void Select(std::initializer_list<std::wstring_view> names) {
    selected = std::make_shared<memory::DataObject>(names);
    selection.dataObject = selected;
  }

  WindowHandle AddWindow(const std::wstring& className, WindowHandle parent = WindowHandle::None) {
    return desktop.windows.Add({.parent = parent, .className = className});
  }

  /// The effects since the last look, a line each: the call and those of its fields that say
  /// something. Calls of the named kind are left out, and what the lists store.
  Lines Effects(const std::string& without = "SendMessage") {
    Lines lines;
    for (const memory::Effect& effect : desktop.effects.All()) {
      if (effect.call == without || StoresList(effect)) continue;
      std::string line = effect.call;
      for (const auto& [name, value] : effect.fields) {
        const std::string text = ValueText(value);
        if (!text.empty()) line.append(" ").append(name).append("=").append(text);
      }
      lines.push_back(line);
    }
    desktop.effects.Clear();
    return lines;
  }

  /// "type location caption" of each entry, newest first.
  std::vector<std::wstring> ItemsOf(const clsMRU& list) {
    std::vector<std::wstring> entries;
    for (std::int32_t i = 1; i <= list.FileCount(); ++i) {
      Data item;
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
  Scrambler scrambler;
  clsOrvaneDataTools tools{options, codePage, scrambler, desktop.shell};
  clsProcess process{desktop.processes, desktop.system};
  ActionServices actions{desktop.files,  desktop.profiles, desktop.windows,
                         process,        desktop.keyboard, desktop.clock,
                         desktop.locale, desktop.boxes,    codePage};

  CommandTable items;
  Selection selection;
  std::shared_ptr<memory::DataObject> selected;  // what Select made of names
  std::int32_t windowActions = 0;

 private:
  static bool StoresList(const memory::Effect& effect) {
    return effect.call == "RegSet" && ValueText(effect.fields.at(1).second).starts_with("Mru");
  }

  clsTrace MakeTrace() {
    return clsTrace(desktop.files, desktop.boxes, desktop.clock, desktop.locale, desktop.tcp,
                    codePage);
  }
};

}  // namespace orvane::test
