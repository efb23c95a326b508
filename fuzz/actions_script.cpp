// Action scripts, against a plain second reading of their grammar that cuts and copies texts.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "customactions/ActionScript.h"
#include "support/Error.h"
#include "support/Number.h"
#include "support/Text.h"

namespace {

struct Step {
  std::wstring key, text;
  std::int32_t number = 0;
};

/// The literal or token step of one bracketed text; throws for a bad pause.
Step TokenStep(const std::wstring& token) {
  std::wstring name = token.substr(1, token.size() - 2), argument;
  if (const std::size_t blank = name.find(L' '); blank != name.npos) {
    argument = name.substr(blank + 1);
    name.resize(blank);
  }
  if (name == L"orv_item" || name == L"orv_selection") return {name, L"", 0};
  if (name == L"orv_date") return {name, argument.empty() ? L"long date" : argument, 0};
  if (name == L"orv_pause")
    return {name, L"", orvane::ParseNumber(argument.empty() ? L"100" : argument)};
  return {L"", token, 0};
}

bool Read(std::wstring script, std::vector<Step>& steps) {
  for (;;) {
    const std::size_t open = orvane::LowerCase(script).find(L"[orv_");
    if (open == script.npos) {
      steps.push_back({L"", script, 0});
      return true;
    }
    if (open > 0) steps.push_back({L"", script.substr(0, open), 0});
    script.erase(0, open);
    const std::size_t close = script.find(L']', 5);
    if (close == script.npos) {
      steps.push_back({});
      return false;
    }
    if (const std::size_t nested = script.find(L'[', 5); nested < close) {
      steps.push_back({L"", script.substr(0, nested), 0});
      script.erase(0, nested);
      continue;
    }
    try {
      steps.push_back(TokenStep(script.substr(0, close + 1)));
    } catch (const orvane::Error&) {
      return false;
    }
    script.erase(0, close + 1);
    if (script.empty()) return true;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring script(data, data + size);
  orvane::clsCollection steps;
  const bool whole = orvane::ParseActionScript(script, steps).whole;

  std::vector<Step> expected;
  if (whole != Read(script, expected)) std::abort();
  if (steps.Count() != static_cast<std::int32_t>(expected.size())) std::abort();
  auto step = steps.begin();
  for (const Step& e : expected) {
    const orvane::clsCollection& s = **step++;
    if (s.m_szKey != e.key || s.m_szData != e.text || s.m_lData != e.number) std::abort();
  }
  return 0;
}
