#include "menudata/Definition.h"

#include <span>
#include <utility>
#include <variant>

#include "menudata/DataValues.h"

namespace orvane {
namespace {

/// Appends value records to a file's bytes.
class ValueWriter {
 public:
  ValueWriter(const CodePage& codePage, Scrambler& scrambler)
      : m_codePage(codePage), m_scrambler(scrambler) {}

  /// None when it was written, else why it cannot be.
  const wchar_t* Text(std::wstring_view text) {
    if (text.size() > DefinitionFile::MaxLength) return L"is longer than 65535 characters";
    std::vector<std::byte> bytes = m_codePage.Encode(text);
    if (m_codePage.Decode(bytes) != text) return L"has a character that the code page has not";
    m_scrambler.Scramble(bytes);
    Number(DefinitionFile::TextTag);
    Number(bytes.size());
    m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
    return nullptr;
  }

  std::vector<std::byte> Take() { return std::move(m_bytes); }

 private:
  void Number(std::size_t number) {
    m_bytes.push_back(static_cast<std::byte>(number & 0xFF));
    m_bytes.push_back(static_cast<std::byte>(number >> 8));
  }

  const CodePage& m_codePage;
  Scrambler& m_scrambler;
  std::vector<std::byte> m_bytes;
};

std::wstring Commas(std::int32_t first, std::int32_t second, std::int32_t third) {
  return std::to_wstring(first) + L"," + std::to_wstring(second) + L"," + std::to_wstring(third);
}

void WriteValue(ValueWriter& writer, const Definition& definition, std::size_t item,
                const DataField& field) {
  const clsOrvaneData& data = definition.items[item].data;
  if (const auto* number = std::get_if<std::int32_t clsOrvaneData::*>(&field)) {
    writer.Text(std::to_wstring(data.**number));
    return;
  }
  const auto text = std::get<FieldText clsOrvaneData::*>(field);
  if (const wchar_t* reason = writer.Text(data.*text)) throw UnwritableText(item, text, reason);
}

/// Reads one piece of a file; what is wrong with it is said with its place.
template <class Read>
void ReadAt(const std::wstring& place, Read read) {
  try {
    read();
  } catch (const Error& error) {
    const bool isNumber = error.Number() == Error::TypeMismatch;
    throw Error(
        error.Number(),
        place + L": " + (isNumber ? L"What should be a number is none" : error.Description()),
        error.Source());
  }
}

}  // namespace

Definition ReadDefinition(DefinitionFile& file, const clsOrvaneDataTools& tools) {
  Definition definition;
  ReadAt(L"version", [&] {
    const std::int32_t version = tools.File_ReadVersion(file);
    if (version < tools.MinVersion() || version > tools.MaxVersion())
      throw Error(Error::InvalidArgument, L"Invalid file version!");
  });
  ReadAt(L"header", [&] {
    if (!tools.File_ReadHeader(file, definition.header)) throw CorruptFile();
  });
  for (std::int32_t i = 1; i <= definition.header.ItemCount; ++i) {
    Definition::Item item;
    ReadAt(L"item " + std::to_wstring(i), [&] {
      if (!tools.File_ReadItemHeader(file, item.parent, item.data)) throw CorruptFile();
      tools.ReadData(file, item.data);
    });
    definition.items.push_back(std::move(item));
  }
  return definition;
}

std::vector<std::byte> WriteDefinition(const Definition& definition, const CodePage& codePage,
                                       Scrambler& scrambler) {
  ValueWriter writer(codePage, scrambler);
  writer.Text(std::to_wstring(clsOrvaneDataTools::CurrentVersion()));
  writer.Text(Commas(definition.header.HeaderValue1,
                     static_cast<std::int32_t>(definition.items.size()),
                     definition.header.HeaderValue3));
  for (std::size_t i = 0; i < definition.items.size(); ++i) {
    const auto& [parent, data] = definition.items[i];
    writer.Text(Commas(parent, data.m_lType, data.m_lOptions));
    for (const DataField& field : DataValuesOf(data.m_lType))
      WriteValue(writer, definition, i, field);
  }
  return writer.Take();
}

}  // namespace orvane
