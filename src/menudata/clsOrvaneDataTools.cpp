#include "menudata/clsOrvaneDataTools.h"

#include <array>
#include <charconv>
#include <concepts>
#include <optional>
#include <span>
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

/// Three plain numbers with commas between them, as nearly every item header is: splitting texts
/// for each of thousands of items takes longer than everything else that is done with them.
std::optional<std::array<std::int32_t, 3>> PlainNumbers(std::span<const std::byte> bytes) {
  const char* place = reinterpret_cast<const char*>(bytes.data());
  const char* const end = place + bytes.size();
  std::array<std::int32_t, 3> numbers{};
  for (std::int32_t& number : numbers) {
    if (&number != &numbers.front() && (place == end || *place++ != ',')) return std::nullopt;
    const auto [next, error] = std::from_chars(place, end, number);
    if (error != std::errc()) return std::nullopt;
    place = next;
  }
  if (place != end) return std::nullopt;
  return numbers;
}

/// The numbers of an item header however they are written; none unless they are three.
std::optional<std::array<std::int32_t, 3>> HeaderNumbers(const std::wstring& text) {
  const std::vector<std::wstring> fields = HeaderFields(text);
  if (fields.size() != 3) return std::nullopt;
  return {{ParseNumber(fields[0]), ParseNumber(fields[1]), ParseNumber(fields[2])}};
}

}  // namespace

std::wstring clsOrvaneDataTools::File_ReadString(DefinitionFile& file) const {
  const std::span<std::byte> bytes = file.Next();
  m_scrambler.Scramble(bytes);
  return file.Page().Decode(bytes);
}

// Without a text in between: a large menu has thousands of them.
FieldText clsOrvaneDataTools::ReadField(DefinitionFile& file) const {
  const std::span<std::byte> bytes = file.Next();
  m_scrambler.Scramble(bytes);
  const auto write = [&](wchar_t* characters) { file.Page().Decode(bytes, characters); };
  if (const Arena* arena = file.TextArena()) return {bytes.size(), write, *arena};
  return {bytes.size(), write};
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
  const std::span<std::byte> bytes = file.Next();
  m_scrambler.Scramble(bytes);
  auto numbers = PlainNumbers(bytes);
  if (!numbers) numbers = HeaderNumbers(file.Page().Decode(bytes));
  if (!numbers) return false;
  parentIndex = (*numbers)[0];
  item.m_lType = (*numbers)[1];
  item.m_lOptions = (*numbers)[2];
  return true;
}

void clsOrvaneDataTools::ReadData(DefinitionFile& file, clsOrvaneData& item) const {
  const auto read = [&](auto member) {
    if constexpr (std::same_as<decltype(member), std::int32_t clsOrvaneData::*>)
      item.*member = ParseNumber(File_ReadString(file));
    else
      item.*member = ReadField(file);
  };
  for (const DataField& field : DataValuesOf(item.m_lType)) std::visit(read, field);
}

std::wstring clsOrvaneDataTools::CreateHistoryMRU(const clsOrvaneData& item) const {
  TraceScope scope(L"CreateHistoryMRU");
  const FieldText& place = item.IsTypeCustomAction() ? item.m_szAction_Actions : item.Location();
  std::wstring entry =
      m_scrambler.Scramble(std::to_wstring(item.m_lType) + L"," + std::to_wstring(item.m_lOptions) +
                               L",\"" + place + L"\",\"" + item.Caption() + L"\"",
                           m_codePage);
  Log(L"rv=", entry);
  return entry;
}

void clsOrvaneDataTools::BreakdownHistoryMRU(const std::wstring& text, clsOrvaneData& item) const {
  TraceScope scope(L"BreakdownHistoryMRU");
  Log(L"szString=", text);
  clsTokenizer tokenizer;
  tokenizer.QuoteChars(L"\"");
  tokenizer.SeparatorChars(L",");
  tokenizer.Text(m_scrambler.Scramble(text, m_codePage));
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
