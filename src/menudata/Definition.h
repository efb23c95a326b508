#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "menudata/clsFileHeader.h"
#include "menudata/clsOrvaneData.h"
#include "menudata/clsOrvaneDataTools.h"
#include "support/CodePage.h"
#include "support/Scrambler.h"

namespace orvane {

/// A menu definition file as a whole: its header and its items in file order. The header's item
/// count is not kept up; it is what it was in the file.
struct Definition {
  struct Item {
    std::int32_t parent = 0;  // 1-based place of an earlier item, 0 for none; as it is in the file
    clsOrvaneData data;
  };

  clsFileHeader header;
  std::vector<Item> items;
};

/// A text of a definition that the file cannot hold.
class UnwritableText : public Error {
 public:
  UnwritableText(std::size_t item, FieldText clsOrvaneData::*field, std::wstring reason)
      : Error(InvalidArgument, std::move(reason)), m_item(item), m_field(field) {}

  std::size_t Item() const { return m_item; }  // 0-based
  FieldText clsOrvaneData::*Field() const { return m_field; }

 private:
  std::size_t m_item;
  FieldText clsOrvaneData::*m_field;
};

/// Reads a whole file. Error, with the place in its description, for what is none
/// (CorruptFile::ErrorNumber), for another version and for a number that is none. Parents are not
/// looked at.
Definition ReadDefinition(DefinitionFile& file, const clsOrvaneDataTools& tools);

/// The file's bytes. UnwritableText for a text that is too long or has a character that the code
/// page does not have.
std::vector<std::byte> WriteDefinition(const Definition& definition, const CodePage& codePage,
                                       Scrambler& scrambler);

}  // namespace orvane
