#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "memory/RegFileChange.h"
#include "memory/Registry.h"

namespace orvane::memory {

/// Reads what the registry editor exports (version 5.00; UTF-16LE, or UTF-8 with or without its
/// mark), with deletions of keys and values. Throws an Error that names the line when the file is
/// not like that.
/// Windows: "How to add, modify, or delete registry subkeys and values by using a .reg file".
std::vector<RegFileChange> ReadRegFile(std::span<const std::byte> bytes);

/// The changes as the registry editor writes them: UTF-16LE with its mark.
std::vector<std::byte> FormatRegFile(std::span<const RegFileChange> changes);

void ApplyRegFile(std::span<const RegFileChange> changes, Registry& registry);

/// Reads and applies; the registry is as it was when the file is none.
void ImportRegFile(std::span<const std::byte> bytes, Registry& registry);

}  // namespace orvane::memory
