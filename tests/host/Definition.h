#pragma once

#include <string>
#include <vector>

namespace orvane::host {

/// One item of a menu definition file: its header's three numbers and its values in file order.
struct DefinitionItem {
  int parent;
  int type;
  int options;
  std::vector<std::wstring> values;
};

/// Writes a menu definition file as the designer would.
void WriteDefinition(const std::wstring& path, const std::vector<DefinitionItem>& items);

/// A definition file of `count` file items below the root.
void WriteFileItems(const std::wstring& path, int count);

}  // namespace orvane::host
