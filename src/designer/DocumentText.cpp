#include "designer/DocumentText.h"

#include <utility>

namespace orvane::designer {
namespace {

const Finding* FirstError(const ParsedMenu& parsed) {
  for (const Finding& finding : parsed.findings)
    if (finding.severity == Finding::Severity::Error) return &finding;
  return nullptr;
}

Definition Checked(ParsedMenu parsed) {
  if (const Finding* error = FirstError(parsed))
    throw DocumentError(error->place + (error->place.empty() ? "" : ": ") + error->text);
  return std::move(parsed.menu);
}

}  // namespace

Definition MenuOfText(std::string_view text) {
  return Checked(ParseMenu(text));
}

Definition ItemsOfText(std::string_view text) {
  ParsedMenu items = ParseItems(text);
  return Checked(FirstError(items) ? ParseMenu(text) : std::move(items));
}

}  // namespace orvane::designer
