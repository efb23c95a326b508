#include "menudoc/CheckMenu.h"

#include <gtest/gtest.h>

#include "menudata/World.h"
#include "menudoc/ItemKinds.h"
#include "support/Utf8.h"

namespace orvane {
namespace {

using test::World;

/// A line for each finding: "e" or "w", place, text.
std::string Listed(const std::vector<Finding>& findings) {
  std::string text;
  for (const Finding& finding : findings) {
    EXPECT_NE(finding.remedy, "") << finding.text;
    text += finding.severity == Finding::Severity::Error ? "e " : "w ";
    text += finding.place + " " + finding.text + "\n";
  }
  return text;
}

std::string InMenu(const std::string& items) {
  return R"({"caption": "Orvane", "items": [)" + items + "]}";
}

/// A menu with a drive to look into.
struct Checked {
  Checked() {
    world.desktop.files.AddFile(L"C:\\a.txt");
    world.desktop.files.AddFolder(L"C:\\Work");
  }

  std::string operator()(const std::string& document) {
    ParsedMenu parsed = ParseMenu(document);
    CheckParsed(parsed, {world.codePage, &world.desktop.files});
    return Listed(parsed.findings);
  }

  World world;
};

TEST(CheckMenu, FindsWhatIsWrongWithAnItem) {
  const auto task = [](const std::string& fields) {
    return R"({"type": "selectionTask", "caption": "t", )" + fields + "}";
  };
  const auto script = [](const std::string& actions) {
    return R"({"type": "customAction", "caption": "a", "actions": ")" + actions + "\"}";
  };
  const auto folder = [](const std::string& fields) {
    return R"({"type": "folder", "caption": "f", )" + fields + "}";
  };
  const auto filter = [](const std::string& text) {
    return R"({"type": "dynamicFolder", "caption": "d", "location": "C:\\Work", "filter": ")" +
           text + "\"}";
  };
  const std::pair<std::string, std::string> cases[] = {
      {R"({"type": 4})", "w /items/0/type 4 is no type of item; the menu shows nothing for it\n"},
      {R"({"type": "separator"})", ""},
      {R"({"type": "popup", "caption": "p"})", "w /items/0 is a popup with nothing in it\n"},
      {R"({"type": "file", "caption": "", "location": "C:\\a.txt"})",
       "w /items/0/caption is empty, and so is the entry in the menu\n"},
      {R"({"type": "file", "caption": "a\tb", "location": "C:\\a.txt"})",
       "w /items/0/caption has a control character (U+0009)\n"},
      {"{\"type\": \"file\", \"caption\": \"caf\u00e9 \u4e2d\u6587\", \"location\": "
       "\"C:\\\\a.txt\"}",
       "e /items/0/caption has the character \u4e2d at 6, which the code page does not have\n"},
      {"{\"type\": \"file\", \"caption\": \"\U0001F600\", \"location\": \"C:\\\\a.txt\"}",
       "e /items/0/caption has the character \U0001F600 at 1, which the code page does not have\n"},
      {R"({"type": "file", "caption": "x", "location": ""})", "w /items/0/location is empty\n"},
      {R"({"type": "file", "caption": "x", "location": "C:\\b.txt"})",
       "w /items/0/location \"C:\\b.txt\" does not exist\n"},
      {R"({"type": "file", "caption": "x", "location": "C:\\Work"})",
       "w /items/0/location \"C:\\Work\" is a folder\n"},
      {R"({"type": "file", "caption": "x", "location": "notepad.exe"})", ""},
      {R"({"type": "copyTo", "caption": "x", "location": "C:\\a.txt"})",
       "w /items/0/location \"C:\\a.txt\" is no folder\n"},
      {folder(R"("location": "Work")"), "w /items/0/location \"Work\" is no full path\n"},
      {folder(R"("location": "5", "options": "csidl")"), ""},
      {folder(R"("location": "99", "options": "csidl")"),
       "w /items/0/location Windows has no special folder 99\n"},
      {folder(R"("location": "C:\\Work", "options": "csidl")"),
       "e /items/0/location \"C:\\Work\" is no special folder's number and costs the menu\n"},
      {filter("*.txt,*.doc"), ""},
      {filter("*.txt;*.doc"),
       "w /items/0/filter has a separator that is none: patterns are separated by commas\n"},
      {filter("*.txt, *.doc"),
       "w /items/0/filter has a blank beside a separator, which counts as part of the pattern\n"},
      {filter(",,"), "w /items/0/filter has no pattern, so that nothing passes it\n"},
      {script("Hello[orv_pause 50]~[orv_date yyyy]^{HOME}"), ""},
      {script(""), "w /items/0/actions plays nothing\n"},
      {script("[orv_pause x]"), "w /items/0/actions is not played: \"x\" is no pause\n"},
      {script("a[orv_item"), "w /items/0/actions is not played: a token has no ]\n"},
      {script("[ORV_ITEM]"),
       "w /items/0/actions \"[ORV_ITEM]\" is no token and is typed as it stands\n"},
      {script("a{NOKEY}[orv_pause]("),
       "w /items/0/actions has keys that are not played, \"a{NOKEY}\": No key is named {NOKEY}\n"
       "w /items/0/actions has keys that are not played, \"(\": The text ends within a group or "
       "after a modifier\n"},
      {task(R"("command": "x.exe")"), "w /items/0/selectionOptions no selection shows the task\n"},
      {task(R"("selectionOptions": "showSingle")"), "w /items/0 does nothing\n"},
      {task(R"("selectionOptions": ["showMultiple", "clipboard"])"),
       "w /items/0/fileSuffix leaves several names unseparated\n"},
      {task(R"("selectionOptions": ["showSingle", "clipboard"], "fileSuffix": "\\n")"), ""},
      {task(R"("selectionOptions": ["showSingle", "clipboard"], "fileSuffix": "\\r\\n")"),
       "w /items/0/fileSuffix has \\r\\n, which is one line end too many: \\n alone is CR LF\n"},
      {task(R"("selectionOptions": ["showAlways", "clipboard"], "filePrefix": "\\t")"), ""},
      {task(
           R"("selectionOptions": "showAlways", "command": "x.exe", "parameters": "[orv_selection]",
               "commandPrefix": "\"", "commandSuffix": "\"")"),
       "w /items/0/commandSuffix leaves several names unseparated\n"},
      {task(R"("selectionOptions": "showAlways", "command": "x.exe", "parameters": "/a")"), ""},
      {task(R"("selectionOptions": "showAlways", "command": "C:\\x.exe", "parameters": "[orv_date",
               "workingDir": "C:\\a.txt")"),
       "w /items/0/workingDir \"C:\\a.txt\" is no folder\n"
       "w /items/0/command \"C:\\x.exe\" does not exist\n"
       "w /items/0/parameters has a token without its ], so that no token counts\n"},
  };
  Checked check;
  for (const auto& [item, findings] : cases) EXPECT_EQ(check(InMenu(item)), findings) << item;
}

TEST(CheckMenu, FindsWhatIsWrongBetweenItems) {
  const auto popup = [](const std::string& caption, const std::string& items) {
    return R"({"type": "popup", "caption": ")" + caption + R"(", "items": [)" + items + "]}";
  };
  Checked check;
  EXPECT_EQ(check(InMenu(popup("R&&D &a", R"({"type": "separator"})") + "," +
                         popup("&A", R"({"type": "separator"})") + "," +
                         popup("b&", popup("&a", R"({"type": "separator"})") + "," +
                                         popup("ab", R"({"type": "separator"})")))),
            "w /items/1/caption has the letter a of \"R&&D &a\" beside it\n");
  EXPECT_EQ(check(InMenu(R"({"type": "separator", "items": [{"type": "separator"}]})")),
            "e /items/0/items is no popup and cannot hold items\n");
}

TEST(CheckMenu, FindsAllAtOnceWhatIsTextAndWhatIsMenu) {
  Checked check;
  EXPECT_EQ(check(InMenu(R"({"type": "fiel", "location": 5},
                            {"type": "file", "caption": 5, "location": "C:\\b.txt", "size": 1},
                            {"type": "popup", "caption": "p", "caption": "q"})")),
            "e /items/2/caption stands there twice\n"
            "e /items/0/type \"fiel\" is no type\n"
            "e /items/1/caption is no text\n"
            "e /items/1/size is not known for this type of item\n"
            "w /items/1/location \"C:\\b.txt\" does not exist\n"
            "w /items/2 is a popup with nothing in it\n");
}

TEST(CheckMenu, LongAndDeepMenus) {
  MenuDocument menu;
  for (std::int32_t i = 0; i < 1003; ++i) {
    menu.items.emplace_back(i).data.m_lType = i == 0 ? 0 : clsOrvaneData::TypePopupMenu;
    menu.items.back().data.Caption(std::wstring(L"x"));
  }
  menu.items[1].data.Caption(std::wstring(65536, L'x'));
  World world;
  const auto findings = CheckMenu(menu, {world.codePage});
  ASSERT_EQ(findings.size(), 3u);
  EXPECT_EQ(findings[0].text, "is longer than 65535 characters");
  EXPECT_EQ(findings[1].item, 1002u);
  EXPECT_EQ(findings[1].text, "is a popup with nothing in it");
  EXPECT_EQ(findings[2].text, "lies in more than 1000 popups");
  EXPECT_TRUE(HasErrors(findings));
}

TEST(ItemKinds, HaveTheFieldsOfTheDefinitionFile) {
  for (const ItemKind& kind : ItemKinds()) {
    const auto values = DataValuesOf(kind.type);
    EXPECT_EQ(kind.fields.size(), values.size()) << kind.name;
    for (const DataField& value : values) EXPECT_TRUE(FindField(kind.type, value)) << kind.name;
  }
}

}  // namespace
}  // namespace orvane
