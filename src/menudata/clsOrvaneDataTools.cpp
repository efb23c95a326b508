#include "menudata/clsOrvaneDataTools.h"

#include <concepts>
#include <utility>
#include <variant>
#include <vector>

#include "menudata/DataValues.h"
#include "support/Number.h"
#include "support/SplitFields.h"
#include "support/Trace.h"
#include "support/clsTokenizer.h"

namespace orvane {
namespace {

/// The comma-separated fields of a header; one in quotes may hold a comma.
std::vector<std::wstring> HeaderFields(const std::wstring& text) {
  std::vector<std::wstring> fields;
  const std::int32_t count = SplitFields(text, fields, true, L",", L"");
  fields.resize(static_cast<std::size_t>(count));
  return fields;
}

}  // namespace

std::wstring clsOrvaneDataTools::File_ReadString(DefinitionFile& file) const {
  const std::span<std::byte> bytes = file.Next();
  m_debug.EncryptBytes(bytes);
  return file.Page().Decode(bytes);
}

std::int32_t clsOrvaneDataTools::File_ReadVersion(DefinitionFile& file) const {
  const std::int32_t version = ParseNumber(File_ReadString(file));
  Log(L"File_ReadVersion: ", version);
  return version;
}

bool clsOrvaneDataTools::File_ReadHeader(DefinitionFile& file, clsFileHeader& header) const {
  const std::vector<std::wstring> fields = HeaderFields(File_ReadString(file));
  const bool complete = fields.size() >= 2;
  if (complete) {
    clsFileHeader read = header;
    read.HeaderValue1 = ParseNumber(fields[0]);
    read.ItemCount = ParseNumber(fields[1]);
    if (fields.size() > 2) read.HeaderValue3 = ParseNumber(fields[2]);
    header = read;
  }
  Log(L"File_ReadHeader: ", complete, L" - ", header.HeaderValue1, L" - ", header.ItemCount, L" - ",
      header.HeaderValue3);
  return complete;
}

bool clsOrvaneDataTools::File_ReadItemHeader(DefinitionFile& file, std::int32_t& parentIndex,
                                             clsOrvaneData& item) const {
  const std::vector<std::wstring> fields = HeaderFields(File_ReadString(file));
  if (fields.size() != 3) return false;
  const std::int32_t parent = ParseNumber(fields[0]);
  const std::int32_t type = ParseNumber(fields[1]);
  const std::int32_t options = ParseNumber(fields[2]);
  parentIndex = parent;
  item.m_lType = type;
  item.m_lOptions = options;
  return true;
}

void clsOrvaneDataTools::ReadData(DefinitionFile& file, clsOrvaneData& item) const {
  const auto read = [&](auto member) {
    if constexpr (std::same_as<decltype(member), std::int32_t clsOrvaneData::*>)
      item.*member = ParseNumber(File_ReadString(file));
    else
      item.*member = File_ReadString(file);
  };
  for (const DataValue& value : DataValuesOf(item.m_lType)) std::visit(read, value.field);
}

std::wstring clsOrvaneDataTools::CreateHistoryMRU(const clsOrvaneData& item) const {
  TraceScope scope(L"CreateHistoryMRU");
  const FieldText& place = item.IsTypeCustomAction() ? item.m_szAction_Actions : item.Location();
  const std::wstring entry = m_debug.EncryptStringAscii(std::to_wstring(item.m_lType) + L"," +
                                                        std::to_wstring(item.m_lOptions) + L",\"" +
                                                        place + L"\",\"" + item.Caption() + L"\"");
  Log(L"rv=", entry);
  return entry;
}

void clsOrvaneDataTools::BreakdownHistoryMRU(const std::wstring& text, clsOrvaneData& item) const {
  TraceScope scope(L"BreakdownHistoryMRU");
  Log(L"szString=", text);
  clsTokenizer tokenizer;
  tokenizer.QuoteChars(L"\"");
  tokenizer.SeparatorChars(L",");
  tokenizer.Text(m_debug.EncryptStringAscii(text));
  const auto next = [&] {
    std::wstring token;
    std::wstring separator;
    bool quoted = false;
    tokenizer.GetNextToken(token, separator, quoted);
    return token;
  };
  item.m_lType = ParseLeadingNumber(next());
  if (!item.IsTypeFolder() && !item.IsTypeFile() && !item.IsTypeCustomAction()) return;
  item.m_lOptions = ParseLeadingNumber(next());
  if (item.IsTypeCustomAction())
    item.m_szAction_Actions = next();
  else
    item.Location(next());
  item.Caption(next());
}

}  // namespace orvane
