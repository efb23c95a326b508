#include "menudoc/FieldReader.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <variant>

#include "menudoc/NamesInText.h"
#include "menudoc/SpecialFolders.h"
#include "support/Utf8.h"

namespace orvane {
using Json = nlohmann::json;

bool IsNumber(const Json& value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return value.is_number_unsigned()
             ? value.get<std::uint64_t>() <= std::uint64_t{Limits::max()}
             : value.is_number_integer() && value.get<std::int64_t>() >= Limits::min();
}

void FieldReader::Read(const Json& json, const ItemField& field, clsOrvaneData& data,
                       const std::string& place) const {
  if (const auto* number = std::get_if<std::int32_t clsOrvaneData::*>(&field.value))
    data.** number = BitsOf(json, field.bits, place);
  else if (json.is_string())
    data.*std::get<FieldText clsOrvaneData::*>(field.value) = TextOf(json, field.use, place);
  else
    m_report(place, "is no text", "Put it in double quotes.");
}

std::wstring FieldReader::TextOf(const Json& json, FieldUse use, const std::string& place) const {
  // The reader of the text has checked it.
  std::wstring text = FromUtf8(json.get_ref<const std::string&>()).value();
  if (!IsPath(use)) return text;
  ExpandedText expanded = ExpandNames(text, m_sources);
  if (!expanded.unknown.empty()) ReportUnknown(ToUtf8(expanded.unknown), place);
  return std::move(expanded.text);
}

void FieldReader::ReportUnknown(const std::string& name, const std::string& place) const {
  m_report(place, "nothing is known for the name " + name,
           "Say what it stands for (--set " + name + "=VALUE), or write %% for a percent sign.");
}

void FieldReader::ResolveFolders(clsOrvaneData& data, const std::string& place) const {
  const ItemKind* kind = FindKind(data.m_lType);
  if (!kind) return;
  for (const ItemField& field : kind->fields) {
    if (field.use != FieldUse::Folder) continue;
    const bool asNumber = data.IsTypeFolder() && data.OptionsIsCSIDL();
    ResolveFolder(data.*std::get<FieldText clsOrvaneData::*>(field.value), asNumber,
                  place + "/" + std::string(field.name));
  }
}

void FieldReader::ResolveFolder(FieldText& text, bool asNumber, const std::string& place) const {
  const SpecialFolder* folder = FindSpecialFolder(text);
  if (!folder) return;
  if (asNumber && folder->number != SpecialFolder::NoNumber) {
    text = std::to_wstring(folder->number);
    return;
  }
  const std::string name = ToUtf8(folder->name);
  if (asNumber)
    return m_report(place, "the special folder " + name + " has no number",
                    "Leave the option csidl out: its path stands in the menu then.");
  if (const auto path = m_sources.value ? m_sources.value(folder->name) : std::nullopt)
    text = *path;
  else
    ReportUnknown(name, place);
}

std::int32_t FieldReader::BitsOf(const Json& value, std::span<const NamedBit> names,
                                 const std::string& place) const {
  if (!value.is_array()) return NumberOf(value, names, place);
  std::int32_t bits = 0;
  for (std::size_t i = 0; i < value.size(); ++i)
    bits |= NumberOf(value[i], names, place + "/" + std::to_string(i));
  return bits;
}

std::int32_t FieldReader::NumberOf(const Json& value, std::span<const NamedBit> names,
                                   const std::string& place) const {
  if (IsNumber(value)) return value.get<std::int32_t>();
  const auto bit = std::ranges::find_if(names, [&](const NamedBit& name) {
    return value.is_string() && value.get_ref<const std::string&>() == name.name;
  });
  if (bit != names.end()) return bit->bit;
  m_report(place, names.empty() ? "is no number" : "is neither a name nor a number",
           "Use " + (names.empty() ? "" : "one of " + Names(names) + ", or ") +
               "a whole number of 32 bits.");
  return 0;
}

}  // namespace orvane
