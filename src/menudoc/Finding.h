#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

/// Something that is wrong with a menu. An error makes the menu unusable or impossible to write; a
/// warning is about an item that will not do what it seems to. Texts are UTF-8.
struct Finding {
  enum class Severity { Warning, Error };
  static constexpr std::size_t NoItem = static_cast<std::size_t>(-1);

  Severity severity = Severity::Error;
  std::size_t item = NoItem;  // 0-based index into the menu's items
  std::string field{};        // the field's name in the document, empty for the item as a whole
  std::string place{};        // JSON pointer into the document
  std::string text{};         // what is wrong
  std::string remedy{};       // what to do about it
};

}  // namespace orvane
