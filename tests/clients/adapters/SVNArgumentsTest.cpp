#include "SVNArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

using Texts = std::vector<std::string>;

Texts SVNArgumentsOf(const Texts& arguments) {
  return TranslateSVNCall(arguments).Arguments;
}

TEST(SVNArguments, AskForNothingInteractively) {
  EXPECT_THAT(SVNArgumentsOf({}), ElementsAre("--non-interactive"));
}

TEST(SVNArguments, TurnBackslashesOfPathsIntoSlashes) {
  EXPECT_THAT(SVNArgumentsOf({"status", "-v", "-u", "--xml", "\\w\\c d.CATPart"}),
              ElementsAre("--non-interactive", "status", "-v", "-u", "--xml", "/w/c d.CATPart"));
}

TEST(SVNArguments, CloseAPathThatHoldsAnAtSign) {
  EXPECT_THAT(SVNArgumentsOf({"lock", "\\w\\a@b.CATPart"}),
              ElementsAre("--non-interactive", "lock", "/w/a@b.CATPart@"));
}

TEST(SVNArguments, LeaveURLsAsTheyAre) {
  EXPECT_THAT(SVNArgumentsOf({"delete", "-mzq", "https://x@host/a\\b@7"}),
              ElementsAre("--non-interactive", "delete", "-mzq", "https://x@host/a\\b@7"));
}

TEST(SVNArguments, TakeAPathWithAColonAndSlashesForAPath) {
  EXPECT_THAT(SVNArgumentsOf({"status", "\\w\\a://b"}),
              ElementsAre("--non-interactive", "status", "/w/a://b"));
}

TEST(SVNArguments, LeaveMessagesAsTheyAre) {
  EXPECT_THAT(SVNArgumentsOf({"lock", "-m", "a\\b@c", "--message=d\\e", "p\\q"}),
              ElementsAre("--non-interactive", "lock", "-m", "a\\b@c", "--message=d\\e", "p/q"));
}

TEST(SVNArguments, LeaveValuesOfOptionsInFrontOfTheCommandAsTheyAre) {
  EXPECT_THAT(SVNArgumentsOf({"--config-dir", "a\\b", "update", "c\\d"}),
              ElementsAre("--non-interactive", "--config-dir", "a\\b", "update", "c/d"));
}

TEST(SVNArguments, DropTheMessageOfADeletionOfPaths) {
  EXPECT_THAT(SVNArgumentsOf({"delete", "-mzq", "--force", "\\w\\a"}),
              ElementsAre("--non-interactive", "delete", "--force", "/w/a"));
  EXPECT_THAT(SVNArgumentsOf({"rm", "-m", "zq", "\\w\\a"}), ElementsAre("--non-interactive", "rm", "/w/a"));
  EXPECT_THAT(SVNArgumentsOf({"del", "--file=x", "\\w\\a"}), ElementsAre("--non-interactive", "del", "/w/a"));
}

TEST(SVNArguments, KeepTheMessageOfADeletionInTheRepository) {
  EXPECT_THAT(SVNArgumentsOf({"delete", "-m", "zq", "svn://host/a"}),
              ElementsAre("--non-interactive", "delete", "-m", "zq", "svn://host/a"));
}

TEST(SVNArguments, TakeEverythingBehindTwoHyphensForPaths) {
  EXPECT_THAT(SVNArgumentsOf({"delete", "--", "-m\\x"}),
              ElementsAre("--non-interactive", "delete", "--", "-m/x"));
}

TEST(SVNArguments, OnlyTurnBackslashesRoundForACallThatNeverAsks) {
  EXPECT_THAT(SVNArgumentsOf({"lock", "--non-interactive", "\\w\\a@b.CATPart@"}),
              ElementsAre("lock", "--non-interactive", "/w/a@b.CATPart@"));
  EXPECT_THAT(SVNArgumentsOf({"update", "--non-interactive", "\\w\\a@b"}),
              ElementsAre("update", "--non-interactive", "/w/a@b"));
  EXPECT_THAT(SVNArgumentsOf({"delete", "--force", "--non-interactive", "-mx", "a\\b"}),
              ElementsAre("delete", "--force", "--non-interactive", "-mx", "a/b"));
}

TEST(SVNArguments, TakeTheNameOfThatOptionForAPathBehindTwoHyphens) {
  EXPECT_THAT(SVNArgumentsOf({"lock", "--", "--non-interactive"}),
              ElementsAre("--non-interactive", "lock", "--", "--non-interactive"));
}

TEST(SVNArguments, StandAnOptionWithoutItsValue) {
  EXPECT_THAT(SVNArgumentsOf({"lock", "-m"}), ElementsAre("--non-interactive", "lock", "-m"));
}

TEST(SVNArguments, SayWhetherTheyWereMadeForTodaysClient) {
  EXPECT_TRUE(TranslateSVNCall({"info", "--xml", "--non-interactive", "a"}).IsForTodaysClient);
  EXPECT_FALSE(TranslateSVNCall({"info", "--xml", "a"}).IsForTodaysClient);
  EXPECT_FALSE(TranslateSVNCall({"info", "--", "--non-interactive"}).IsForTodaysClient);
}

}  // namespace
