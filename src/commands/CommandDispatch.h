#pragma once

#include <cstdint>
#include <string>

#include "commands/CommandContext.h"
#include "commands/CommandText.h"

namespace orvane {

/// How the shell names the command that the user chose.
struct InvokeRequest {
  WindowHandle window = WindowHandle::None;  // the one that asked for the menu
  bool byOffset = true;                      // else by its verb
  std::int32_t offset = 0;                   // from the menu's first identifier
  std::wstring verb;
  std::intptr_t siteBrowser = 0;  // the IShellBrowser of the menu's site; 0 without
};

/// What became of it.
struct InvokeOutcome {
  bool isOurs = false;      // the request named something that the handler has
  std::int32_t result = 0;  // 0, whatever happened, but for copying names to the clipboard, which
                            // answers its failure as an HRESULT
};

/// What the shell wants to know of an entry.
struct TextRequest {
  std::int32_t idCmd = 0;    // offset from the menu's first identifier
  std::uint32_t uFlags = 0;  // GCS_*
  std::int32_t pszName = 0;  // the buffer's address and size, for the log
  std::uint32_t cchMax = 0;
};

/// Does what the entry is for.
InvokeOutcome IContextMenu_InvokeCommand(const CommandContext& context,
                                         const InvokeRequest& request);

/// The verb ("Item" and the offset) or the help text of an entry.
CommandText IContextMenu_GetCommandString(const CommandContext& context,
                                          const TextRequest& request);

}  // namespace orvane
