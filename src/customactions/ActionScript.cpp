#include "customactions/ActionScript.h"

#include <algorithm>

#include "support/Error.h"
#include "support/Number.h"
#include "support/Text.h"

namespace orvane {
namespace {

constexpr std::wstring_view Opening = L"[orv_";

/// Position of the next "[orv_", in any case, from `start` on.
std::size_t FindOpening(std::wstring_view script, std::size_t start) {
  const auto found = std::search(script.begin() + static_cast<std::ptrdiff_t>(start), script.end(),
                                 Opening.begin(), Opening.end(),
                                 [](wchar_t a, wchar_t b) { return LowerCase(a) == b; });
  return found == script.end() ? std::wstring_view::npos
                               : static_cast<std::size_t>(found - script.begin());
}

/// The step of one token, brackets included in `token`. Throws when a pause is no number.
ActionStep StepOf(std::wstring_view token, std::wstring& argument) {
  const std::wstring_view inner = token.substr(1, token.size() - 2);
  const std::size_t blank = inner.find(L' ');
  const std::wstring_view name = inner.substr(0, blank);
  argument = blank == std::wstring_view::npos ? L"" : inner.substr(blank + 1);

  if (name == ActionToken::Item) return ItemStep();
  if (name == ActionToken::Selection) return SelectionStep();
  if (name == ActionToken::Date) return DateStep{argument.empty() ? L"long date" : argument};
  if (name == ActionToken::Pause)
    return PauseStep{ParseNumber(argument.empty() ? L"100" : argument)};
  return LiteralStep{std::wstring(token)};
}

}  // namespace

ScriptResult ParseActionScript(std::wstring_view script, ActionSteps& steps) {
  constexpr auto None = std::wstring_view::npos;
  steps.clear();
  ScriptResult result;
  const auto addLiteral = [&](std::wstring_view keys, std::size_t place) {
    steps.emplace_back(LiteralStep{std::wstring(keys)});
    result.places.push_back(place);
  };
  std::wstring argument;
  std::size_t close = 0;  // the last "]" looked up; still the next one while it lies ahead
  std::size_t position = 0;
  do {
    const std::size_t open = FindOpening(script, position);
    if (open == None) {
      addLiteral(script.substr(position), position);
      result.whole = true;
      return result;
    }
    if (open > position) addLiteral(script.substr(position, open - position), position);

    const std::size_t start = open + Opening.size();
    if (close < start) close = script.find(L']', start);
    if (close == None) {
      addLiteral({}, open);
      return result;
    }
    const std::size_t nested = script.substr(start, close - start).find(L'[');
    if (nested != None) {
      addLiteral(script.substr(open, Opening.size() + nested), open);
      position = start + nested;
      continue;
    }
    result.places.push_back(open);
    try {
      steps.push_back(StepOf(script.substr(open, close + 1 - open), argument));
    } catch (const Error&) {
      result.badNumber = argument;
      return result;
    }
    position = close + 1;
  } while (position < script.size());
  result.whole = true;
  return result;
}

}  // namespace orvane
