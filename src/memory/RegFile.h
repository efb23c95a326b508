#pragma once

#include <cstddef>
#include <span>

#include "memory/Registry.h"

namespace orvane::memory {

/// Imports what the registry editor exports (version 5.00; UTF-16LE, or UTF-8 with or without its
/// mark), with deletions of keys and values. Throws an Error that names the line when the file is
/// not like that; the registry is then as it was.
/// Windows: "How to add, modify, or delete registry subkeys and values by using a .reg file".
void ImportRegFile(std::span<const std::byte> bytes, Registry& registry);

}  // namespace orvane::memory
