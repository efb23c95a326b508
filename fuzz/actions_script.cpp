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

using namespace orvane;

/// The literal or token step of one bracketed text; throws for a bad pause.
ActionStep TokenStep(const std::wstring& token) {
  std::wstring name = token.substr(1, token.size() - 2), argument;
  if (const std::size_t blank = name.find(L' '); blank != name.npos) {
    argument = name.substr(blank + 1);
    name.resize(blank);
  }
  if (name == L"orv_item") return ItemStep();
  if (name == L"orv_selection") return SelectionStep();
  if (name == L"orv_date") return DateStep{argument.empty() ? L"long date" : argument};
  if (name == L"orv_pause") return PauseStep{ParseNumber(argument.empty() ? L"100" : argument)};
  return LiteralStep{token};
}

bool Read(std::wstring script, ActionSteps& steps) {
  for (;;) {
    const std::size_t open = LowerCase(script).find(L"[orv_");
    if (open == script.npos) {
      steps.push_back(LiteralStep{script});
      return true;
    }
    if (open > 0) steps.push_back(LiteralStep{script.substr(0, open)});
    script.erase(0, open);
    const std::size_t close = script.find(L']', 5);
    if (close == script.npos) {
      steps.push_back(LiteralStep{});
      return false;
    }
    if (const std::size_t nested = script.find(L'[', 5); nested < close) {
      steps.push_back(LiteralStep{script.substr(0, nested)});
      script.erase(0, nested);
      continue;
    }
    try {
      steps.push_back(TokenStep(script.substr(0, close + 1)));
    } catch (const Error&) {
      return false;
    }
    script.erase(0, close + 1);
    if (script.empty()) return true;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring script(data, data + size);
  ActionSteps steps, expected;
  const bool whole = ParseActionScript(script, steps).whole;
  if (whole != Read(script, expected) || steps != expected) std::abort();
  return 0;
}
