#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "menudoc/CheckMenu.h"
#include "menudoc/ItemKinds.h"

namespace orvane {

/// What is wrong with an item by itself, wherever it stands. For one run over a menu: what is
/// waited for on networks is limited for all its items together.
class CheckItem {
 public:
  explicit CheckItem(const MenuSurroundings& surroundings) : m_surroundings(surroundings) {}

  /// Findings without an item or a place.
  std::vector<Finding> Check(const clsOrvaneData& item);

 private:
  void Warn(std::string_view field, std::string text, std::string remedy);
  void Refuse(std::string_view field, std::string text, std::string remedy);

  void CheckText(const ItemField& field, std::wstring_view text);
  void CheckEncoding(const ItemField& field, std::wstring_view text);
  void CheckCaption(std::wstring_view text);
  void CheckAffix(const ItemField& field, std::wstring_view text);
  void CheckFilter(std::wstring_view text);
  void CheckScript(std::wstring_view text);
  void CheckTemplate(std::wstring_view text);
  void CheckFolder(const ItemField& field, std::wstring_view text);
  void CheckSpecialFolder(const clsOrvaneData& item);
  std::optional<std::uint32_t> AttributesOf(const std::wstring& path);
  void CheckThere(const ItemField& field, const std::wstring& path, bool isFolder);
  void CheckTask(const clsOrvaneData& item);
  void CheckSeparation(std::string_view field, std::wstring_view prefix, std::wstring_view suffix);

  const MenuSurroundings& m_surroundings;
  Patience m_patience{3000};                         // milliseconds
  std::unordered_map<std::wstring, bool> m_folders;  // whether they are there
  const clsOrvaneData* m_item = nullptr;
  std::vector<Finding> m_findings;
};

}  // namespace orvane
