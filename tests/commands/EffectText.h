#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "platform/memory/Effects.h"

namespace orvane::test {

/// A text that may be printed: characters beyond ASCII as their number.
inline std::string Printable(const std::wstring& text) {
  std::string printable;
  for (const wchar_t character : text) {
    if (character >= 32 && character < 127)
      printable += static_cast<char>(character);
    else
      printable.append("<")
          .append(std::to_string(static_cast<std::uint32_t>(character)))
          .append(">");
  }
  return printable;
}

inline std::string ValueText(const memory::Effect::Value& value) {
  struct Writer {
    std::string operator()(const std::wstring& text) const { return Printable(text); }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(const std::vector<std::wstring>& names) const {
      std::string list;
      for (const auto& name : names) list.append(list.empty() ? "" : "|").append(Printable(name));
      return list;
    }
  };
  return std::visit(Writer(), value);
}

/// The effects, a line each: the call and those of its fields that say something.
inline std::vector<std::string> EffectLines(const memory::Effects& effects) {
  std::vector<std::string> lines;
  for (const memory::Effect& effect : effects.All()) {
    std::string line = effect.call;
    for (const auto& [name, value] : effect.fields) {
      const std::string text = ValueText(value);
      if (!text.empty()) line.append(" ").append(name).append("=").append(text);
    }
    lines.push_back(line);
  }
  return lines;
}

}  // namespace orvane::test
