#include <algorithm>

#include "memory/RegFile.h"
#include "memory/RegistryText.h"
#include "support/Utf16.h"

namespace orvane::memory {

namespace {

std::wstring Quoted(std::wstring_view text) {
  std::wstring quoted = L"\"";
  for (const wchar_t c : text) {
    if (c == L'"' || c == L'\\') quoted += L'\\';
    quoted += c;
  }
  return quoted + L'"';
}

std::wstring HexText(std::uint32_t number, std::size_t digits) {
  std::wstring text(digits, L'0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, number >>= 4)
    *digit = L"0123456789abcdef"[number & 15];
  return text;
}

std::wstring HexNumber(std::uint32_t number) {
  const std::wstring text = HexText(number, 8);
  return text.substr(std::min(text.find_first_not_of(L'0'), text.size() - 1));
}

/// True for a text that quotes can hold: one zero, at its end, and no line of its own.
bool IsPlainText(const RegistryValue& value) {
  if (value.type != RegistryValue::Text || value.data.size() % 2 != 0) return false;
  const std::wstring text = FromUtf16(value.data);
  return text.find_first_of(std::wstring_view(L"\0\r\n", 3)) + 1 == text.size() &&
         text.ends_with(L'\0');
}

std::wstring Data(const RegistryValue& value) {
  if (IsPlainText(value)) return Quoted(TextOf(value));
  const bool isNumber = value.type == RegistryValue::Number;
  if (const auto number = NumberOf(value); isNumber && number)
    return L"dword:" + HexText(*number, 8);
  std::wstring text = L"hex";
  if (value.type != RegistryValue::Binary) text += L'(' + HexNumber(value.type) + L')';
  wchar_t separator = L':';
  for (const std::byte byte : value.data) {
    text += separator + HexText(std::to_integer<std::uint32_t>(byte), 2);
    separator = L',';
  }
  return value.data.empty() ? text + L':' : text;
}

std::wstring KeyLine(const RegFileChange& change) {
  const auto* hive = std::ranges::find(HiveNames, change.hive, &HiveName::hive);
  std::wstring line = change.kind == RegFileChange::Kind::RemoveKey ? L"[-" : L"[";
  line += hive->name;
  return line + (change.path.empty() ? L"" : L"\\") + change.path + L"]\r\n";
}

std::wstring ValueLine(const RegFileChange& change) {
  const std::wstring name = change.name.empty() ? L"@" : Quoted(change.name);
  const bool removes = change.kind == RegFileChange::Kind::RemoveValue;
  return name + L"=" + (removes ? L"-" : Data(change.value)) + L"\r\n";
}

}  // namespace

std::vector<std::byte> FormatRegFile(std::span<const RegFileChange> changes) {
  std::wstring text = L"\uFEFF";
  text.append(RegFileHeader).append(L"\r\n");
  std::wstring key;
  for (const RegFileChange& change : changes) {
    const std::wstring line = KeyLine(change);
    if (line != key) text += L"\r\n" + line;
    key = line;
    const bool isValue =
        change.kind == RegFileChange::Kind::Set || change.kind == RegFileChange::Kind::RemoveValue;
    if (isValue) text += ValueLine(change);
  }
  return ToUtf16(text);
}

}  // namespace orvane::memory
