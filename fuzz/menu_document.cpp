// Menu documents that include each other: what is no document is told in findings and never thrown;
// what is one is written and read again as the same menu.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "memory/Desktop.h"
#include "menudoc/CheckMenu.h"
#include "menudoc/MenuDocument.h"

namespace {

using namespace orvane;

/// The input's texts, zeros between them; a document's name is the number of its text.
std::vector<std::string> Texts(std::string_view input) {
  std::vector<std::string> texts;
  for (std::size_t end = input.find('\0'); end != input.npos; end = input.find('\0')) {
    texts.emplace_back(input.substr(0, end));
    input.remove_prefix(end + 1);
  }
  texts.emplace_back(input);
  return texts;
}

bool Same(const MenuDocument& left, const MenuDocument& right) {
  return FormatMenu(left) == FormatMenu(right);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::vector<std::string> texts = Texts({reinterpret_cast<const char*>(data), size});
  const DocumentSources sources = {
      .value = [](std::wstring_view name) -> std::optional<std::wstring> {
        return name.size() % 2 ? std::optional(std::wstring(name)) : std::nullopt;
      },
      .document = [&](const std::string& name,
                      const std::string&) -> std::optional<DocumentSources::Document> {
        const std::size_t number = static_cast<unsigned char>(name.empty() ? 0 : name.back()) % 16;
        if (number >= texts.size()) return std::nullopt;
        return DocumentSources::Document{std::to_string(number), texts[number]};
      }};
  ParsedMenu parsed = ParseMenu(texts.front(), sources);
  memory::Desktop desktop;
  const CodePage codePage(desktop.system.AnsiCharacters());
  if (!HasErrors(parsed.findings)) {
    const ParsedMenu again = ParseMenu(FormatMenu(parsed.menu));
    if (HasErrors(again.findings) || !Same(parsed.menu, again.menu)) std::abort();
  }
  CheckParsed(parsed, {.codePage = codePage, .files = &desktop.files});
  for (const Finding& finding : parsed.findings)
    if (finding.text.empty()) std::abort();
  return 0;
}
