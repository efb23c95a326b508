#include <nlohmann/json.hpp>

#include "RunTool.h"

namespace orvane::tool {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

const fs::path Source = fs::path(ORVANE_TEST_DATA) / ".." / "..";

class MenuCommand : public ToolTest {
 protected:
  std::string Write(const std::string& name, const std::string& text) const {
    Put(Path(Scratch(name)), text);
    return Scratch(name);
  }
};

/// What stands for the current user's folders where there is no Windows to ask.
Arguments WithNames(Arguments arguments) {
  for (const std::string name :
       {"documents", "pictures", "downloads", "system", "windows", "commonStartMenu"})
    arguments.insert(arguments.end(), {"--set", name + "=C:\\" + name});
  return arguments;
}

TEST_F(MenuCommand, ExamplesAreCleanAndWritten) {
  std::vector<fs::path> documents = {Source / "resources" / "sample-menu.json"};
  for (const auto& entry : fs::directory_iterator(Source / "examples"))
    documents.push_back(entry.path());
  EXPECT_EQ(documents.size(), 6u);
  for (const fs::path& document : documents) {
    const std::string cfg = Scratch("menu.cfg");
    EXPECT_EQ(Run(WithNames({"menu", "write", Utf8(document), cfg})).errors, "") << document;
    EXPECT_EQ(Run({"menu", "read", cfg}).status, 0) << document;
#ifndef _WIN32  // where the locations are looked for, and are not there
    EXPECT_EQ(Run(WithNames({"menu", "check", Utf8(document)})).output, "") << document;
    EXPECT_EQ(Run({"menu", "check", cfg}).status, 0) << document;
#endif
  }
}

TEST_F(MenuCommand, CheckSaysAllAndItsExitCodeHowBad) {
  const std::string document = Write("menu.json", R"({"caption": "r", "items": [
      {"type": "folder", "caption": "x", "location": "y", "options": ["csidl"]},
      {"type": "popup", "caption": "two\nlines \u4e2d", "items": []}]})");
  const Answer json = Run({"menu", "check", document, "--json"});
  EXPECT_EQ(json.status, 2);
  std::string listed;
  for (const Json& finding : Json::parse(json.output)) {
    EXPECT_EQ(finding.size(), 4u);
    EXPECT_NE(finding["remedy"], "");
    listed += finding["severity"].get<std::string>() + finding["place"].get<std::string>() + "\n";
  }
  EXPECT_EQ(listed,
            "error/items/0/location\nwarning/items/1\nerror/items/1/caption\n"
            "warning/items/1/caption\n");
  const Answer text = Run({"menu", "check", document});
  EXPECT_EQ(std::ranges::count(text.output, '\n'), 4);
  EXPECT_NE(text.output.find("/items/0/location: error: \"y\" is no special"), std::string::npos);

  const Answer refused = Run({"menu", "write", document, Scratch("menu.cfg")});
  EXPECT_EQ(refused.status, 2);
  EXPECT_NE(refused.errors.find("/items/0/location: \"y\""), std::string::npos);
  EXPECT_NE(refused.errors.find("/items/1/caption: has the character \u4e2d at 11"),
            std::string::npos);
  EXPECT_FALSE(fs::exists(Path(Scratch("menu.cfg"))));

  EXPECT_EQ(Run({"menu", "check", Write("w.json", R"({"items": [{"type": "popup"}]})")}).status, 1);
  const Answer clean = Run({"menu", "check", "-", "--json"}, R"({"items": []})");
  EXPECT_EQ(clean.status, 0);
  EXPECT_EQ(clean.output, "[]\n");
}

TEST_F(MenuCommand, CheckLooksForLocationsUnderTheDrive) {
  fs::create_directory(Path(Scratch("Work")));
  const std::string document = Write("menu.json", R"({"items": [
      {"type": "folder", "caption": "x", "location": "C:\\work"},
      {"type": "file", "caption": "y", "location": "C:\\Work\\none.txt"}]})");
  const Answer answer = Run({"menu", "check", document, "--drive-c", Scratch("")});
  EXPECT_EQ(answer.output,
            "/items/1/location: warning: \"C:\\Work\\none.txt\" does not exist. "
            "Correct the path.\n");
  EXPECT_EQ(answer.status, 1);
}

TEST_F(MenuCommand, CheckAndReadSayWhatIsWrongWithADefinitionFile) {
  int files = 0;
  for (const auto& entry : fs::directory_iterator(ORVANE_TEST_DATA)) {
    if (!entry.path().filename().string().starts_with("corrupt-")) continue;
    const Answer check = Run({"menu", "check", Utf8(entry.path()), "--json"});
    EXPECT_EQ(check.status, 2) << entry.path();
    const Json findings = Json::parse(check.output);
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings[0]["place"], "");
    ExpectRefusal({"menu", "read", Utf8(entry.path())}, findings[0]["text"]);
    ++files;
  }
  EXPECT_EQ(files, 6);
}

TEST_F(MenuCommand, BadInputIsNamedInOneLineAndLeavesNothing) {
  const std::pair<std::string, const char*> rows[] = {
      {"", "unexpected end of input"},
      {"{\n  \"items\": [}", "parse error at line 2, column 13"},
      {R"({"options": 1e999})", "number overflow"},
      {std::string(10'000'000, 'x'), "parse error at line 1, column 1"},
      {R"({"caption": ")" + std::string(10'000'000, 'x') + "\"}",
       "is longer than 65535 characters"},
      {std::string(1'000'000, '['), "nested deeper than"},
      {R"({"items": [{"type": "file", "type": "file"}]})", "/items/0/type: stands there twice"},
      {R"({"caption": {}})", "/caption: is no text"},
      {R"({"items": [{"include": "."}]})", "/items/0/include: \".\" cannot be read"},
      {std::string("{\"caption\": \"a\0b\"}", 18), "(NUL)"},
      {"{\"caption\": \"caf\xE9\"}", "ill-formed UTF-8"},
      {"{\"caption\": \"\\ud800\"}", "surrogate"},
      {R"({"a\nb": 1})", "/a b: is not known"},
  };
  for (const auto& [text, part] : rows)
    ExpectRefusal({"menu", "write", Write("menu.json", text), Scratch("menu.cfg")}, part);
  EXPECT_FALSE(fs::exists(Path(Scratch("menu.cfg"))));
}

TEST_F(MenuCommand, StandardStreamsAndWhatIsReadIsNotWrittenOver) {
  const std::string cfg = ORVANE_TEST_DATA "/deep.cfg";
  const Answer document = Run({"menu", "read", cfg});
  EXPECT_EQ(Run({"menu", "write", "-", "-"}, document.output).output, TextOf(cfg));
  EXPECT_NE(Run({"menu", "show", "-"}, TextOf(cfg)).output.find("\n  "), std::string::npos);

  const std::string part = Write("part.json", R"({"items": []})");
  const std::string whole = Write("menu.json", R"({"items": [{"include": "part.json"}]})");
  const std::string copied = Write("copy.cfg", TextOf(cfg));
  const std::string before = TextOf(Path(whole));
  ExpectRefusal({"menu", "write", whole, whole}, "is what is read");
  ExpectRefusal({"menu", "write", whole, part}, "is what is read");
  ExpectRefusal({"menu", "read", copied, copied}, "is what is read");
  EXPECT_EQ(TextOf(Path(whole)), before);
  EXPECT_EQ(TextOf(Path(copied)), TextOf(cfg));
}

TEST_F(MenuCommand, CodePagesOfOtherMachines) {
  const std::string document =
      Write("menu.json",
            "{\"items\": [{\"type\": \"popup\", \"caption\": \"\u041f\u043b\u0430\u043d\"}]}");
  const std::string cfg = Scratch("menu.cfg");
  EXPECT_EQ(Run({"menu", "write", document, cfg, "--code-page", "1251"}).status, 0);
  EXPECT_NE(
      Run({"menu", "read", cfg, "--code-page", "1251"}).output.find("\u041f\u043b\u0430\u043d"),
      std::string::npos);
  ExpectRefusal(
      {"menu", "write", document, cfg, "--code-page", "1252"},
      "/items/0/caption: has the character \u041f at 1, which the code page does not have");
  for (const char* page : {"932", "65001", "4711"})
    ExpectRefusal({"menu", "write", document, cfg, "--code-page", page}, "is no code page");
}

TEST_F(MenuCommand, NamesAndOtherDocuments) {
  fs::create_directory(Path(Scratch("sub")));
  Write("sub/tools.json", R"({"items": [{"include": "../more.json"}]})");
  Write("more.json", R"({"items": [{"type": "file", "caption": "m", "location": "%home%\\a"}]})");
  const std::string document = Write("menu.json", R"({"items": [{"include": "sub/tools.json"}]})");
  const std::string cfg = Scratch("menu.cfg");
  EXPECT_EQ(Run({"menu", "write", document, cfg, "--set", "HOME=C:\\Users\\ann"}).errors, "");
  EXPECT_EQ(Json::parse(Run({"menu", "read", cfg}).output)["items"][0]["location"],
            "C:\\Users\\ann\\a");
  ExpectRefusal({"menu", "write", document, cfg, "--set", "=x"}, "is not NAME=VALUE");

  Write("more.json", R"({"items": [{"include": "sub/tools.json"}]})");
  const Answer circle = Run({"menu", "check", document});
  EXPECT_EQ(circle.status, 2);
  const std::size_t found = circle.output.find("circle: ");
  ASSERT_NE(found, std::string::npos) << circle.output;
  EXPECT_NE(circle.output.find("more.json", found), std::string::npos);
}

}  // namespace
}  // namespace orvane::tool
