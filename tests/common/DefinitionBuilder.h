#pragma once

#include <string>
#include <utility>

#include "menudata/Definition.h"

namespace orvane::test {

/// Puts a menu definition together; each call answers the new item's place, for its children.
class DefinitionBuilder {
 public:
  explicit DefinitionBuilder(const std::wstring& rootCaption = L"Orvane") {
    Add(0, clsOrvaneData::TypeRoot).m_szRoot_Caption = rootCaption;
  }

  std::int32_t Popup(std::int32_t parent, const std::wstring& caption) {
    return Captioned(parent, clsOrvaneData::TypePopupMenu, {}, caption);
  }
  std::int32_t File(std::int32_t parent, const std::wstring& location,
                    const std::wstring& caption) {
    return Captioned(parent, clsOrvaneData::TypeFile, location, caption);
  }
  std::int32_t Folder(std::int32_t parent, const std::wstring& location,
                      const std::wstring& caption, std::int32_t options = 0) {
    const std::int32_t place = Captioned(parent, clsOrvaneData::TypeFolder, location, caption);
    definition.items.back().data.m_lOptions = options;
    return place;
  }
  std::int32_t DynamicFolder(std::int32_t parent, const std::wstring& location,
                             const std::wstring& caption, const std::wstring& filter = {}) {
    const std::int32_t place =
        Captioned(parent, clsOrvaneData::TypeDynamicFolder, location, caption);
    definition.items.back().data.m_szDFolder_Filter = filter;
    return place;
  }
  std::int32_t Task(std::int32_t parent, const std::wstring& caption, std::int32_t options) {
    const std::int32_t place = Captioned(parent, clsOrvaneData::TypeSelectionTask, {}, caption);
    definition.items.back().data.m_lSelection_Options = options;
    return place;
  }
  std::int32_t Separator(std::int32_t parent) {
    Add(parent, clsOrvaneData::TypeSeparator);
    return Count();
  }

  clsOrvaneData& Add(std::int32_t parent, std::int32_t type) {
    definition.items.push_back({parent, {}});
    definition.items.back().data.m_lType = type;
    definition.header.ItemCount = Count();
    return definition.items.back().data;
  }

  Definition definition;

 private:
  std::int32_t Count() const { return static_cast<std::int32_t>(definition.items.size()); }

  std::int32_t Captioned(std::int32_t parent, std::int32_t type, const std::wstring& location,
                         const std::wstring& caption) {
    clsOrvaneData& data = Add(parent, type);
    data.Location(location);
    data.Caption(caption);
    return Count();
  }
};

}  // namespace orvane::test
