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

void AddLiteral(clsCollection& steps, std::wstring_view text) {
  steps.Add({}, 0, {}, text);
}

/// Adds the step of one token, brackets included in `token`. Throws when a pause is no number.
void AddToken(clsCollection& steps, std::wstring_view token, std::wstring& argument) {
  const std::wstring_view inner = token.substr(1, token.size() - 2);
  const std::size_t blank = inner.find(L' ');
  const std::wstring name(inner.substr(0, blank));
  argument = blank == std::wstring_view::npos ? L"" : inner.substr(blank + 1);

  if (name == ActionToken::Item || name == ActionToken::Selection) {
    steps.Add(name);
  } else if (name == ActionToken::Date) {
    steps.Add(name, 0, {}, argument.empty() ? L"long date" : argument);
  } else if (name == ActionToken::Pause) {
    steps.Add(name, 0, {}, {}, ParseNumber(argument.empty() ? L"100" : argument));
  } else {
    AddLiteral(steps, token);
  }
}

}  // namespace

ScriptResult ParseActionScript(std::wstring_view script, clsCollection& steps) {
  constexpr auto None = std::wstring_view::npos;
  steps.Clear();
  std::wstring argument;
  std::size_t close = 0;  // the last "]" looked up; still the next one while it lies ahead
  std::size_t position = 0;
  do {
    const std::size_t open = FindOpening(script, position);
    if (open == None) {
      AddLiteral(steps, script.substr(position));
      return {true, {}};
    }
    if (open > position) AddLiteral(steps, script.substr(position, open - position));

    const std::size_t start = open + Opening.size();
    if (close < start) close = script.find(L']', start);
    if (close == None) {
      AddLiteral(steps, {});
      return {};
    }
    const std::size_t nested = script.substr(start, close - start).find(L'[');
    if (nested != None) {
      AddLiteral(steps, script.substr(open, Opening.size() + nested));
      position = start + nested;
      continue;
    }
    try {
      AddToken(steps, script.substr(open, close + 1 - open), argument);
    } catch (const Error&) {
      return {false, argument};
    }
    position = close + 1;
  } while (position < script.size());
  return {true, {}};
}

}  // namespace orvane
