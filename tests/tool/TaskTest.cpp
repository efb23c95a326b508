#include <nlohmann/json.hpp>

#include "RunTool.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::json;

class Task : public ToolTest {
 protected:
  Task() {
    Put(Path(Scratch("menu.json")), R"({"caption": "r", "items": [
      {"type": "popup", "caption": "&More", "items": [
        {"type": "selectionTask", "caption": "&Compare", "command": "C:\\My tools\\c.exe",
         "workingDir": "C:\\Work", "parameters": "/d [orv_selection]", "commandPrefix": "\"",
         "commandSuffix": "\" ", "selectionOptions": "showMultiple"}]},
      {"type": "selectionTask", "caption": "Compare", "file": "C:\\list.txt", "fileSuffix": "\\n",
       "filter": "*.txt", "selectionOptions": ["showSingle", "recurse", "clipboard"]},
      {"type": "customAction", "caption": "Greet", "actions": "Hello[orv_pause 5]~"}]})");
    std::filesystem::create_directories(m_scratch.Path() / "c/Work/Old");
    Put(m_scratch.Path() / "c/Work/Old/a.txt", "");
  }

  Answer Try(Arguments more) const {
    more.insert(more.begin(), {"task", "run", "--dry", Scratch("menu.json")});
    return Run(more);
  }
};

TEST_F(Task, ShowsItsCommandLineAndItsList) {
  const Answer two = Try({"--task", "more/compare", "--folder", "C:\\Work", "a b", "C:\\x"});
  EXPECT_EQ(two.output,
            "task: /items/0/items/0 &Compare\n"
            "command line: \"C:\\My tools\\c.exe\" /d \"C:\\Work\\a b\" \"C:\\x\" \n"
            "working directory: C:\\Work\nlist:\nC:\\Work\\a bC:\\x\n");
  EXPECT_EQ(two.errors, "");
  const Json one = Json::parse(Try({"--task", "/items/1", "--select", "C:\\Work\\Old", "--select",
                                    "C:\\b.doc", "--drive-c", Scratch("c"), "--json"})
                                   .output);
  EXPECT_EQ(one["list"], "C:\\Work\\Old\\a.txt\r\n");
  EXPECT_EQ(one["file"], "C:\\list.txt");
  EXPECT_EQ(one["commandLine"], "");
  EXPECT_EQ(one["offered"], false) << "two are selected";
  const Answer none = Try({"--task", "/items/1", "C:\\b.doc"});
  EXPECT_EQ(none.errors, "orvane: nothing passes the task's filter, so that it does nothing\n");
  EXPECT_EQ(Try({"--task", "greet"}).output, "task: /items/2 Greet\nkeys: Hello[orv_pause 5]~\n");
}

TEST_F(Task, SaysWhichTasksThereAre) {
  const std::string menu = Scratch("menu.json");
  ExpectRefusal({"task", "run", menu, "--task", "Greet"}, "--dry");
  ExpectRefusal({"task", "run", "--dry", menu}, "which of these is meant: /items/0/items/0 \"&Co");
  ExpectRefusal({"task", "run", "--dry", menu, "--task", "x"}, "no action or selection task \"x\"");
  ExpectRefusal({"task", "run", "--dry", menu, "--task", "greet", "a.txt"}, "--folder");
  ExpectRefusal({"task", "run", "--dry", ORVANE_TEST_DATA "/deep.cfg"}, "has no action");
}

}  // namespace
}  // namespace orvane::tool
