#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "menudata/Definition.h"

namespace orvane::tool {

/// A menu definition as a readable JSON document (docs/menu-definition.md), and back.

/// What is wrong with a document or a definition, and where.
class DocumentError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Popups within popups, so that neither form can exhaust the stack.
inline constexpr int MaxDepth = 1000;

struct ParsedMenu {
  Definition definition;
  std::vector<std::string> places;  // of the items in the document, as JSON pointers
};

/// Parents stand before their children and siblings in their order. DocumentError for what is no
/// menu.
ParsedMenu ParseMenu(std::string_view json);

/// DocumentError for a definition whose items are not a tree of popups.
std::string FormatMenu(const Definition& definition);

}  // namespace orvane::tool
