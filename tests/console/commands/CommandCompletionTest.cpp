#include "commands/CommandCompletion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "session/SessionFile.h"
#include "support/Platform.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using zrkhost::Completion;

// A car with two axles, each with a wheel, and a product with a blank and one with a quote in their names.
class CommandCompletion : public testing::Test {
protected:
  Completion At(const std::string& line) const { return zrkhost::CompleteCommand(line, session_); }
  // The line with the word put in.
  std::string Completed(const std::string& line) const {
    const auto completion = At(line);
    return completion.Choices.empty() ? line : line.substr(0, completion.From) + completion.Word;
  }

private:
  const zrkhost::HostSession session_{zrkhost::ParseSession(
      R"({"root": "car", "products": {
          "car": {"children": [{"name": "axle.1", "reference": "axle"}, {"name": "axle.2", "reference": "axle"},
                               {"name": "my door", "reference": "axle"}, {"name": "T\u00fcr", "reference": null},
                               {"name": "T\u00f6pfe", "reference": null}, {"name": "a \"b\"", "reference": null}]},
          "axle": {"children": [{"name": "wheel", "reference": null}]}}})",
      "session.json", ExecutableFolder())};
};

TEST_F(CommandCompletion, FindsTheNameOfACommand) {
  EXPECT_EQ(Completed("ref"), "refresh ");
  EXPECT_EQ(Completed(" \tst"), " \tst");
  EXPECT_THAT(At("st").Choices, ElementsAre("status", "storage"));
  EXPECT_EQ(Completed("sta"), "status ");
  EXPECT_THAT(At("").Choices, Contains("tree"));
  EXPECT_THAT(At("nonsense").Choices, IsEmpty());
}

TEST_F(CommandCompletion, FindsTheOptionsOfTheCommandThatAreNotThereYet) {
  EXPECT_EQ(Completed("refresh -"), "refresh --by-root ");
  EXPECT_THAT(At("status --").Choices, ElementsAre("--by-root", "--instance"));
  EXPECT_EQ(Completed("status --by-root -"), "status --by-root --instance ");
  EXPECT_EQ(Completed("status car --b"), "status car --by-root ");
  EXPECT_THAT(At("edit -").Choices, IsEmpty());
}

TEST_F(CommandCompletion, FindsProductPathsLevelByLevel) {
  EXPECT_EQ(Completed("edit "), "edit car");
  EXPECT_EQ(Completed("edit c"), "edit car");
  EXPECT_EQ(Completed("edit car/ax"), "edit car/axle.");
  EXPECT_THAT(At("edit car/axle.").Choices, ElementsAre("car/axle.1", "car/axle.2"));
  EXPECT_EQ(Completed("edit car/axle.1"), "edit car/axle.1/wheel");
  EXPECT_EQ(Completed("edit car/axle.1/"), "edit car/axle.1/wheel");
  EXPECT_THAT(At("edit car/x").Choices, IsEmpty());
}

TEST_F(CommandCompletion, GoesOnBelowAPathThatIsWhole) {
  EXPECT_THAT(At("edit car").Choices, testing::SizeIs(6));
  EXPECT_THAT(At("edit car/axle.1/wheel").Choices, ElementsAre("car/axle.1/wheel"));
}

TEST_F(CommandCompletion, PutsInQuotesWhatHoldsBlanks) {
  EXPECT_EQ(Completed("edit car/m"), "edit \"car/my door\"");
  EXPECT_EQ(Completed("edit \"car/m"), "edit \"car/my door\"");
  EXPECT_EQ(Completed("edit \"car/my d"), "edit \"car/my door\"");
  EXPECT_EQ(Completed("edit \"car/my door\""), "edit \"car/my door/wheel\"");
  // What can go on without a blank or with one.
  EXPECT_EQ(Completed("edit car/a"), "edit car/a");
  EXPECT_EQ(Completed("edit \"car/a"), "edit \"car/a");
  EXPECT_EQ(Completed("edit \"car/a "), "edit \"car/a \"\"b\"\"\"");
}

TEST_F(CommandCompletion, DoesNotCutACharacterInTwo) {
  EXPECT_EQ(Completed("edit car/T"), "edit car/T");
  EXPECT_THAT(At("edit car/T").Choices, testing::SizeIs(2));
}

TEST_F(CommandCompletion, OffersNothingWhereNothingFits) {
  for (const char* line :
       {"tree ", "remove c", "edit car c", "edit \"car\"c", "edit # c", "nonsense c", "\"ed"}) {
    EXPECT_THAT(At(line).Choices, IsEmpty()) << line;
  }
}

TEST_F(CommandCompletion, CompletesAPathBehindOptions) {
  EXPECT_EQ(Completed("status --by-root ca"), "status --by-root car");
}

}  // namespace
