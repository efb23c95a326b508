#pragma once

#include "commands/CommandContext.h"

namespace orvane {

/// Adds the item to one of the recently-used lists, and saves it. An item that the list's code page
/// cannot spell is not added: it could never be opened again.
void Remember(const CommandContext& context, clsMRU& list, const clsOrvaneData& item);

}  // namespace orvane
