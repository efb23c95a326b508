// INI texts. Sections, keys and values against a plain reading of the file line by line, and
// writing one value: it is read back, and nothing else has changed.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>

#include "memory/Windows1252.h"
#include "support/IniText.h"
#include "support/Text.h"

namespace {

using orvane::LowerCase;
using Bytes = std::vector<std::byte>;
using Values = std::map<std::wstring, std::map<std::wstring, std::wstring>>;

std::wstring Bare(std::wstring text) {
  const wchar_t* blanks = L" \t\v\f\x1A";
  text.erase(0, text.find_first_not_of(blanks));
  return text.erase(text.find_last_not_of(blanks) + 1);
}

void ReadLine(const std::wstring& raw, Values& values, std::wstring& section, bool& counts) {
  const std::wstring line = Bare(raw);
  const std::size_t close = line.rfind(L']');
  const std::size_t equals = line.find(L'=');
  if (line.starts_with(L'[')) {
    if (close == line.npos) return;
    section = LowerCase(line.substr(1, close - 1));
    counts = values.try_emplace(section).second;
  } else if (counts && equals != line.npos && !line.starts_with(L';')) {
    std::wstring value = Bare(line.substr(equals + 1));
    if (value.size() > 1 && value.front() == value.back() &&
        (value[0] == L'"' || value[0] == L'\''))
      value = value.substr(1, value.size() - 2);
    values[section].try_emplace(LowerCase(Bare(line.substr(0, equals))), value);
  }
}

Values ReadPlainly(std::wstring text) {
  Values values;
  std::wstring section;
  bool counts = false;
  std::ranges::replace(text, L'\r', L'\n');
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find(L'\n', at), text.size());
    ReadLine(text.substr(at, end - at), values, section, counts);
    at = end + 1;
  }
  return values;
}

void Compare(const orvane::IniText& ini, const Values& expected) {
  if (ini.Sections().size() != expected.size()) std::abort();
  for (const auto& [section, keys] : expected) {
    for (const auto& [key, value] : keys) {
      const std::wstring* found = ini.Value(section, key);
      if (!found || *found != value) std::abort();
    }
  }
}

void CheckWriting(const Bytes& bytes, const orvane::CodePage& page, const std::wstring& section) {
  const std::wstring key = L"Order";
  const orvane::IniText before(bytes, page);
  const Bytes written = orvane::WriteIniText(bytes, page, section, key, L"a value");
  const orvane::IniText after(written, page);
  if (*after.Value(section, key) != L"a value") std::abort();
  for (const std::wstring& name : before.Sections()) {
    for (const wchar_t* other : {L"a", L"k", L"Type", L"Order"}) {
      if (orvane::EqualIgnoringCase(name, section) && orvane::EqualIgnoringCase(other, key))
        continue;
      const std::wstring* old = before.Value(name, other);
      const std::wstring* now = after.Value(name, other);
      if (!old != !now || (old && *old != *now)) std::abort();
    }
  }
  // Removing what was added takes nothing else along.
  const Bytes removed = orvane::WriteIniText(written, page, section, key, std::nullopt);
  if (!before.Value(section, key) && removed.size() < bytes.size()) std::abort();
  orvane::WriteIniText(bytes, page, section, std::nullopt, std::nullopt);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size > 4000) return 0;
  static const orvane::CodePage page(orvane::memory::Windows1252());
  const auto* first = reinterpret_cast<const std::byte*>(data);
  const Bytes bytes(first, first + size);
  const bool marked = size > 1 && (data[0] == 0xFF || data[0] == 0xEF);
  const orvane::IniText ini(bytes, page);
  if (!marked) Compare(ini, ReadPlainly(page.Decode(bytes)));
  CheckWriting(bytes, page, L"A");
  if (!ini.Sections().empty() && ini.Sections()[0].find(L'\0') == std::wstring::npos)
    CheckWriting(bytes, page, ini.Sections()[0]);
  return 0;
}
