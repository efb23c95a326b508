#pragma once

#include "commands/CommandContext.h"

namespace orvane {

// The built-in entries that are more than one call.

/// Puts the selected file, or else the folder, on the Quick Access list, unless it is there.
void AddToQuickAccess(const CommandContext& context);

/// Starts the designer beside the program, or from its folder in a tree of sources.
void StartDesigner(const CommandContext& context, WindowHandle window);

/// Opens the shell's Run dialog and types the selected item's path into it; nothing when no dialog
/// comes to the front. The characters that mean something in the keystroke notation are not
/// escaped.
void TypeIntoRunDialog(const CommandContext& context);

/// Opens a command prompt in the current folder.
void OpenCommandPrompt(const CommandContext& context);

}  // namespace orvane
