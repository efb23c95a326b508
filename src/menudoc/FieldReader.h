#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <string>

#include "menudoc/DocumentSources.h"
#include "menudoc/ItemKinds.h"

namespace orvane {

/// Reads the values of an item's fields out of a document, and says what is wrong with them.
class FieldReader {
 public:
  /// Place, what is wrong, what to do about it.
  using Report = std::function<void(std::string place, std::string text, std::string remedy)>;

  FieldReader(const DocumentSources& sources, Report report)
      : m_sources(sources), m_report(std::move(report)) {}

  void Read(const nlohmann::json& json, const ItemField& field, clsOrvaneData& data,
            const std::string& place) const;
  /// Turns the names of special folders that stand for whole paths into these, or into numbers for
  /// an item that wants one. For an item that has all its fields.
  void ResolveFolders(clsOrvaneData& data, const std::string& place) const;
  /// A number, or the bit of a name; 0 for what is neither.
  std::int32_t NumberOf(const nlohmann::json& value, std::span<const NamedBit> names,
                        const std::string& place) const;

 private:
  std::int32_t BitsOf(const nlohmann::json& value, std::span<const NamedBit> names,
                      const std::string& place) const;
  std::wstring TextOf(const nlohmann::json& json, FieldUse use, const std::string& place) const;
  void ResolveFolder(FieldText& text, bool asNumber, const std::string& place) const;
  void ReportUnknown(const std::string& name, const std::string& place) const;

  const DocumentSources& m_sources;
  Report m_report;
};

/// A whole number of 32 bits.
bool IsNumber(const nlohmann::json& value);

/// The names of the rows of a table, with commas between them.
template <class Rows>
std::string Names(const Rows& rows) {
  std::string names;
  for (const auto& row : rows) names.append(names.empty() ? "" : ", ").append(row.name);
  return names;
}

}  // namespace orvane
