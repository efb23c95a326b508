#include "LogPrinter.h"

#include <iostream>
#include <nlohmann/json.hpp>

#include "WideText.h"
#include "support/Text.h"

namespace orvane::tool {
namespace {

std::string Json(const LogLine& line, std::optional<int> sender) {
  nlohmann::ordered_json json;
  if (sender) json["sender"] = *sender;
  if (!line.time.empty()) json["time"] = ToUtf8(line.time);
  json["kind"] = KindName(line.kind);
  json["level"] = line.level;
  json["text"] = ToUtf8(line.text);
  return json.dump();
}

}  // namespace

std::string Printable(std::wstring_view text) {
  constexpr const wchar_t* Digits = L"0123456789ABCDEF";
  std::wstring printable;
  for (const wchar_t c : text) {
    const bool isControl = (c < 0x20 && c != L'\t') || (c >= 0x7F && c < 0xA0);
    if (isControl)
      printable.append(L"\\x").append({Digits[c >> 4 & 15], Digits[c & 15]});
    else
      printable += c;
  }
  return ToUtf8(printable);
}

LogPrinter::LogPrinter(bool json, const std::string& operation)
    : m_json(json), m_operation(LowerCase(WideText(operation))) {}

void LogPrinter::Print(const LogLine& line, std::optional<int> sender) {
  if (!IsWanted(line)) return;
  if (m_json)
    std::cout << Json(line, sender) << '\n';
  else
    std::cout << (sender ? std::to_string(*sender) + " " : "") << Printable(line.Format()) << '\n';
}

/// An operation's lines are those from its entry to its exit, which stands one level deeper.
bool LogPrinter::IsWanted(const LogLine& line) {
  if (m_operation.empty()) return true;
  const bool begins =
      line.kind == LogLine::Kind::Entry && LowerCase(line.text) == m_operation && !m_within;
  if (begins) m_within = line.level;
  const bool wanted = m_within.has_value();
  if (m_within && line.kind == LogLine::Kind::Exit && line.level <= *m_within + 1) m_within.reset();
  return wanted;
}

}  // namespace orvane::tool
