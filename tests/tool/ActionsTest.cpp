#include <nlohmann/json.hpp>

#include "RunTool.h"

namespace orvane::tool {
namespace {

using Json = nlohmann::json;

TEST_F(ToolTest, ActionsAreListedAndChecked) {
  const std::string good =
      "[z]\nType=1\nOrder=2\nDescription=d\nClass=#32770\nClassMatch=2\n"
      "Actions=%n[orv_item]~\nOptions=1\n";
  EXPECT_EQ(Run({"actions", "list", "-"}, good).output,
            "z: window action, order 2\n  d\n  Class is \"#32770\"\n  %n[orv_item]~\n");
  const std::string two = good + "[a/b]\nType=x\nDescription=d\nActions={NOKEY}\n";
  const Json listed = Json::parse(Run({"actions", "list", "-", "--json"}, two).output);
  EXPECT_EQ(listed[0]["id"], "a/b");
  EXPECT_EQ(listed[1]["classMatch"], 2);

  EXPECT_EQ(Run({"actions", "check", "-"}, good).status, 0);
  EXPECT_EQ(Run({"actions", "check", "-"}, "").status, 1);
  const Answer checked = Run({"actions", "check", "-", "--json"}, two);
  EXPECT_EQ(checked.status, 2);
  std::string places;
  for (const Json& finding : Json::parse(checked.output)) {
    EXPECT_EQ(finding.size(), 4u);
    places += finding["severity"].get<std::string>() + finding["place"].get<std::string>() + " ";
  }
  EXPECT_EQ(places, "error/a~1b/Type warning/a~1b/Type warning/a~1b/Actions ");
  ExpectRefusal({"actions", "check", ORVANE_TEST_DATA "/deep.cfg"}, "is no text");
  ExpectRefusal({"actions", "list", Scratch("")}, "cannot be read");
}

}  // namespace
}  // namespace orvane::tool
