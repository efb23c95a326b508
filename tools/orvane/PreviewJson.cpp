#include "PreviewJson.h"

#include <nlohmann/json.hpp>

#include "support/Utf8.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::ordered_json;

Json ValueJson(const memory::Effect::Value& value) {
  if (const auto* text = std::get_if<std::wstring>(&value)) return ToUtf8(*text);
  if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
  if (const auto* flag = std::get_if<bool>(&value)) return *flag;
  Json list = Json::array();
  for (const std::wstring& text : std::get<std::vector<std::wstring>>(value))
    list.push_back(ToUtf8(text));
  return list;
}

Json EntryJson(const PreviewSession& session, const MenuEntry& entry, bool helpTexts) {
  if (entry.separator) return {{"type", "separator"}};
  const bool popup = entry.submenu != MenuHandle::None;
  Json json = {{"type", popup ? "popup" : "command"},
               {"caption", ToUtf8(entry.caption)},
               {"id", static_cast<std::int32_t>(entry.id)},
               {"disabled", entry.state != MenuEntry::State::Enabled},
               {"ownerDraw", entry.ownerDraw},
               {"picture", entry.bitmap != BitmapHandle::None}};
  if (helpTexts) json["help"] = ToUtf8(session.HelpText(entry));
  if (popup) json["items"] = MenuJson(session, entry.submenu, helpTexts);
  return json;
}

}  // namespace

Json MenuJson(const PreviewSession& session, MenuHandle menu, bool helpTexts) {
  Json entries = Json::array();
  for (const MenuEntry& entry : session.desktop.menus.Entries(menu))
    entries.push_back(EntryJson(session, entry, helpTexts));
  return entries;
}

Json EffectsJson(const memory::Effects& effects) {
  Json list = Json::array();
  for (const memory::Effect& effect : effects.All()) {
    Json json = {{"call", effect.call}};
    for (const auto& [name, value] : effect.fields) json[name] = ValueJson(value);
    list.push_back(std::move(json));
  }
  return list;
}

}  // namespace orvane::tool
