#include <gtest/gtest.h>

#include <map>

#include "memory/Desktop.h"
#include "menudoc/CheckMenu.h"
#include "menudoc/MenuTree.h"
#include "menudoc/NamesInText.h"
#include "support/Text.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

const std::map<std::wstring, std::wstring> Values = {{L"home", L"C:\\Users\\ann"},
                                                     {L"documents", L"D:\\Docs"}};

DocumentSources Sources(std::map<std::string, std::string> documents = {}) {
  return {.value = [](std::wstring_view name) -> std::optional<std::wstring> {
            const auto found = Values.find(LowerCase(name));
            if (found == Values.end()) return std::nullopt;
            return found->second;
          },
          .document = [documents = std::move(documents)](
                          const std::string& name,
                          const std::string&) -> std::optional<DocumentSources::Document> {
            const auto found = documents.find(name);
            if (found == documents.end()) return std::nullopt;
            return DocumentSources::Document{name, found->second};
          }};
}

/// Captions and locations of the items, and a line for each finding.
std::string Read(const std::string& text, const DocumentSources& sources) {
  const ParsedMenu parsed = ParseMenu(text, sources);
  std::string result;
  for (const auto& [parent, data] : parsed.menu.items) {
    const std::wstring text_ = data.Caption() + L"|" + data.Location();
    result += std::to_string(parent) + " " + ToUtf8(text_) + "\n";
  }
  for (const Finding& finding : parsed.findings)
    result += finding.place + " " + finding.text + "\n";
  return result;
}

TEST(NamesInText, StandForTheirValuesInPathsAlone) {
  const auto folder = [](const std::string& location, const std::string& options = "0") {
    return R"({"items": [{"type": "folder", "caption": "%home%", "location": ")" + location +
           R"(", "options": )" + options + "}]}";
  };
  const std::pair<std::string, std::string> cases[] = {
      {folder(R"(%HOME%\\x)"), "0 %home%|C:\\Users\\ann\\x\n"},
      {folder(R"(%documents%)"), "0 %home%|D:\\Docs\n"},
      {folder("Documents"), "0 %home%|D:\\Docs\n"},
      {folder("Documents", R"("csidl")"), "0 %home%|5\n"},
      {folder("downloads", R"("csidl")"),
       "0 %home%|downloads\n/items/0/location the special folder downloads has no number\n"},
      {folder("music"), "0 %home%|music\n/items/0/location nothing is known for the name music\n"},
      {folder("C:\\\\50% off%%%home% %"), "0 %home%|C:\\50% off%C:\\Users\\ann %\n"},
      {folder("%nobody%\\\\x"),
       "0 %home%|\\x\n/items/0/location nothing is known for the name nobody\n"},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(Read(text, Sources()), expected) << text;
  for (const wchar_t* text : {L"%home%", L"%%home%%", L"%a%b%", L"%%%", L"% %a %1% 100%"})
    EXPECT_EQ(ExpandNames(EscapeNames(text), Sources()).text, text);
}

TEST(NamesInText, SpecialFoldersOfTheCurrentUser) {
  memory::Desktop desktop;
  EXPECT_EQ(SpecialFolderPath(desktop.shell, L"windows"), L"C:\\Windows");
  EXPECT_EQ(SpecialFolderPath(desktop.shell, L"controlPanel"), std::nullopt);
  EXPECT_EQ(SpecialFolderPath(desktop.shell, L"nothing"), std::nullopt);
}

TEST(Include, PutsTheItemsOfOtherDocumentsInPlace) {
  const DocumentSources sources =
      Sources({{"tools.json", R"({"caption": "Tools", "options": 1, "items": [
           {"type": "popup", "caption": "t", "items": [{"include": "more.json"}]}]})"},
               {"more.json", R"({"items": [{"type": "file", "caption": "m", "location": ""}, 5]})"},
               {"text.json", "{"},
               {"list.json", "[]"},
               {"a.json", R"({"items": [{"type": "separator"}, {"include": "b.json"}]})"},
               {"b.json", R"({"items": [{"include": "a.json"}]})"}});
  const auto including = [](const std::string& item) {
    return R"({"caption": "r", "items": [{"type": "separator"}, )" + item + "]}";
  };
  const std::pair<std::string, std::string> cases[] = {
      {R"({"include": "tools.json"})",
       "0 r|\n1 |\n1 t|\n3 m|\n/items/1/include more.json /items/1: is no object\n"},
      {R"({"include": "none.json"})", "0 r|\n1 |\n/items/1/include \"none.json\" cannot be read\n"},
      {R"({"include": 1, "caption": "x"})",
       "0 r|\n1 |\n/items/1/caption is not known beside an include\n/items/1/include is no text\n"},
      {R"({"include": "list.json"})", "0 r|\n1 |\n/items/1/include list.json: is no object\n"},
      {R"({"include": "a.json"})",
       "0 r|\n1 |\n1 |\n/items/1/include b.json /items/0/include: documents include each other in "
       "a "
       "circle: a.json, b.json, a.json\n"},
  };
  for (const auto& [item, expected] : cases)
    EXPECT_EQ(Read(including(item), sources), expected) << item;

  ParsedMenu parsed = ParseMenu(including(R"({"include": "text.json"})"), sources);
  ASSERT_EQ(parsed.findings.size(), 1u);
  EXPECT_EQ(parsed.findings[0].text.find("text.json: parse error at line 1"), 0u);

  parsed = ParseMenu(including(R"({"include": "tools.json"})"), sources);
  memory::Desktop desktop;
  const CodePage codePage(desktop.system.AnsiCharacters());
  CheckParsed(parsed, {codePage});
  EXPECT_EQ(parsed.findings.back().place, "/items/1/include");
  EXPECT_EQ(parsed.findings.back().text, "more.json /items/0/location: is empty");
}

TEST(Include, DoesNotGrowWithoutBound) {
  std::map<std::string, std::string> documents;
  for (int i = 0; i < 60; ++i) {
    const std::string next = R"({"include": "d)" + std::to_string(i + 1) + R"("})";
    documents["d" + std::to_string(i)] = R"({"items": [)" + next + "," + next + "]}";
  }
  const ParsedMenu parsed = ParseMenu(documents["d0"], Sources(documents));
  EXPECT_NE(parsed.findings.back().text.find("is one include more than 10000"), std::string::npos);
}

}  // namespace
}  // namespace orvane
