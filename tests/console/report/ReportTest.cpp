#include "console/ConsoleTest.h"
#include "support/Files.h"

namespace {

using testing::ElementsAre;

class Report : public ConsoleTest {};

std::vector<std::string> Keys(const Json& object) {
  std::vector<std::string> keys;
  for (const auto& [key, value] : object.items()) keys.push_back(key);
  return keys;
}

TEST_F(Report, HoldsEveryCommandThatWasRunAsItWasGiven) {
  const auto report = ConsoleTest::Report(
      {CarSession(), "-c", " tree  # now", "-c", "help", "-c", "", "-c", "quit", "-c", "tree"});
  std::vector<std::string> commands;
  for (const auto& command : report["commands"]) commands.push_back(command["command"]);
  EXPECT_THAT(commands, ElementsAre(" tree  # now", "help", "quit"));
}

TEST_F(Report, HasTheSameKeysForEveryCommandWithoutMore) {
  const auto report = ConsoleTest::Report({CarSession(), "-c", "tree"});
  EXPECT_THAT(Keys(report), ElementsAre("commands", "products"));
  const auto& command = CommandOf(report, 0);
  EXPECT_THAT(Keys(command), ElementsAre("command", "events", "output", "result", "seconds"));
  EXPECT_EQ(command["result"], nullptr);
  EXPECT_EQ(command["output"], "");
  EXPECT_EQ(command["events"], Json::array());
  EXPECT_TRUE(command["seconds"].is_number());
  EXPECT_GE(command["seconds"].get<double>(), 0);
}

TEST_F(Report, AddsATextOnlyToStorageAndARecordOnlyToStatus) {
  const auto report = ConsoleTest::Report({CarSession(), "-c", "storage", "-c", "status", "-c", "cvsable"});
  EXPECT_TRUE(CommandOf(report, 0).contains("text"));
  EXPECT_FALSE(CommandOf(report, 0).contains("record"));
  EXPECT_TRUE(CommandOf(report, 1).contains("record"));
  EXPECT_FALSE(CommandOf(report, 1).contains("text"));
  EXPECT_FALSE(CommandOf(report, 2).contains("text") || CommandOf(report, 2).contains("record"));
}

TEST_F(Report, GivesResultsAsSignedNumbers) {
  const auto report = ConsoleTest::Report({CarSession(), "-c", "edit"}, 1);
  EXPECT_EQ(CommandOf(report, 0)["result"], -2147467259);
}

TEST_F(Report, ListsTheTreeDepthFirst) {
  const auto report = ConsoleTest::Report({AxlesSession()});
  EXPECT_EQ(report["commands"], Json::array());
  const auto car = Host("car.CATProduct");
  const auto axle = Host("sub/axle.CATPart");
  const Json edit = {{"Revision", ""}, {"Status", "Edit"}, {"Release", ""}, {"Comment", ""}};
  const auto product = [](const std::string& path, const Json& reference, const Json& document,
                          const Json& attributes) {
    return Json{{"path", path}, {"reference", reference}, {"document", document}, {"attributes", attributes}};
  };
  EXPECT_EQ(report["products"],
            Json::array({product("car", "car", car, nullptr), product("car/axle.1", "axle", axle, nullptr),
                         product("car/axle.1/wheel.1", "wheel", nullptr, nullptr),
                         product("car/axle.2", "axle", axle, edit),
                         product("car/axle.2/wheel.1", "wheel", nullptr, nullptr)}));
}

TEST_F(Report, ShowsAReferencesOwnAttributesOnlyAtTheRoot) {
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"attributes": {"Status": "Locked", "Comment": "anna"},
              "children": [{"name": "a", "reference": "axle"}]},
      "axle": {"attributes": {"Status": "Edit"}}}})");
  const auto report = ConsoleTest::Report({session});
  EXPECT_EQ(report["products"][0]["attributes"]["Status"], "Locked");
  EXPECT_EQ(report["products"][0]["attributes"]["Comment"], "anna");
  EXPECT_EQ(report["products"][1]["attributes"], nullptr);
}

TEST_F(Report, ShowsAnInstancesAttributesInEveryPlaceOfIt) {
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"children": [{"name": "a", "reference": "axle"}, {"name": "b", "reference": "axle"}]},
      "axle": {"children": [{"name": "w", "reference": null, "attributes": {"Status": "Edit"}}]}}})");
  const auto report = ConsoleTest::Report({session});
  EXPECT_EQ(report["products"][2]["path"], "car/a/w");
  EXPECT_EQ(report["products"][2]["attributes"]["Status"], "Edit");
  EXPECT_EQ(report["products"][2]["reference"], nullptr);
  EXPECT_EQ(report["products"][4]["attributes"]["Status"], "Edit");
}

TEST_F(Report, ShowsEveryParameterOfTheClass) {
  const auto session = Session(R"({"attributeClass": {"parameters": ["Status", "Colour"]}, "root": "car",
      "products": {"car": {"attributes": {"Colour": "red"}}}})");
  EXPECT_EQ(ConsoleTest::Report({session})["products"][0]["attributes"],
            Json({{"Status", ""}, {"Colour", "red"}}));
}

TEST_F(Report, ShowsNoAttributesOfAProductThatCannotCarryThem) {
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"extendable": false, "attributes": {"Status": "Edit"},
              "children": [{"name": "a", "reference": "axle", "attributes": {"Status": "Edit"}}]},
      "axle": {"extendable": false}}})");
  const auto report = ConsoleTest::Report({session});
  EXPECT_EQ(report["products"][0]["attributes"], nullptr);
  EXPECT_EQ(report["products"][1]["attributes"], nullptr);
}

TEST_F(Report, IsWrittenWhenACommandGaveAnotherResult) {
  EXPECT_EQ(ConsoleTest::Report({CarSession(), "-c", "edit"}, 1)["products"].size(), 1u);
}

TEST_F(Report, TakesNamesWithSeparatorsAndBlanks) {
  const auto session = Session(R"({"root": "my car", "products": {
      "my car": {"children": [{"name": "a", "reference": "x"}, {"name": "a/b c", "reference": "x"}]},
      "x": {"children": [{"name": "b", "reference": "y"}]}, "y": {"document": "y.CATPart"}}})");
  const auto report = ConsoleTest::Report({session, "-c", "cvsable \"my car/a/b\"", "-c",
                                           "cvsable \"my car/a/b c\"", "-c", "cvsable \"my car/a/b c/b\""});
  EXPECT_EQ(CommandOf(report, 0)["result"], 1);
  EXPECT_EQ(CommandOf(report, 1)["result"], 0);
  EXPECT_EQ(CommandOf(report, 2)["result"], 1);
  EXPECT_EQ(report["products"][3]["path"], "my car/a/b c");
}

}  // namespace
