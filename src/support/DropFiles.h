#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>

#include "platform/DataObject.h"

namespace orvane {

/// The names in a block of the clipboard format CF_HDROP (Windows: DROPFILES), as wide or ANSI
/// texts; `decodeAnsi` is asked only for the latter. The block comes from any program: none when
/// the list's place lies outside it or its last name has no end. A list whose closing zero is
/// missing ends with the block.
std::optional<FileNames> ReadDropFiles(
    std::span<const std::byte> block,
    const std::function<std::wstring(std::span<const std::byte>)>& decodeAnsi);

}  // namespace orvane
