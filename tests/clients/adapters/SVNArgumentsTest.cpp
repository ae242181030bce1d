#include "SVNArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

std::vector<std::string> Translated(const std::vector<std::string>& arguments) {
  return TranslateSVNArguments(arguments);
}

TEST(SVNArguments, AskForNothingInteractively) {
  EXPECT_THAT(Translated({}), ElementsAre("--non-interactive"));
}

TEST(SVNArguments, TurnBackslashesOfPathsIntoSlashes) {
  EXPECT_THAT(Translated({"status", "-v", "-u", "--xml", "\\w\\c d.CATPart"}),
              ElementsAre("--non-interactive", "status", "-v", "-u", "--xml", "/w/c d.CATPart"));
}

TEST(SVNArguments, CloseAPathThatHoldsAnAtSign) {
  EXPECT_THAT(Translated({"lock", "\\w\\a@b.CATPart"}),
              ElementsAre("--non-interactive", "lock", "/w/a@b.CATPart@"));
}

TEST(SVNArguments, LeaveURLsAsTheyAre) {
  EXPECT_THAT(Translated({"delete", "-mzq", "https://x@host/a\\b@7"}),
              ElementsAre("--non-interactive", "delete", "-mzq", "https://x@host/a\\b@7"));
}

TEST(SVNArguments, TakeAPathWithAColonAndSlashesForAPath) {
  EXPECT_THAT(Translated({"status", "\\w\\a://b"}), ElementsAre("--non-interactive", "status", "/w/a://b"));
}

TEST(SVNArguments, LeaveMessagesAsTheyAre) {
  EXPECT_THAT(Translated({"lock", "-m", "a\\b@c", "--message=d\\e", "p\\q"}),
              ElementsAre("--non-interactive", "lock", "-m", "a\\b@c", "--message=d\\e", "p/q"));
}

TEST(SVNArguments, LeaveValuesOfOptionsInFrontOfTheCommandAsTheyAre) {
  EXPECT_THAT(Translated({"--config-dir", "a\\b", "update", "c\\d"}),
              ElementsAre("--non-interactive", "--config-dir", "a\\b", "update", "c/d"));
}

TEST(SVNArguments, DropTheMessageOfADeletionOfPaths) {
  EXPECT_THAT(Translated({"delete", "-mzq", "--force", "\\w\\a"}),
              ElementsAre("--non-interactive", "delete", "--force", "/w/a"));
  EXPECT_THAT(Translated({"rm", "-m", "zq", "\\w\\a"}), ElementsAre("--non-interactive", "rm", "/w/a"));
  EXPECT_THAT(Translated({"del", "--file=x", "\\w\\a"}), ElementsAre("--non-interactive", "del", "/w/a"));
}

TEST(SVNArguments, KeepTheMessageOfADeletionInTheRepository) {
  EXPECT_THAT(Translated({"delete", "-m", "zq", "svn://host/a"}),
              ElementsAre("--non-interactive", "delete", "-m", "zq", "svn://host/a"));
}

TEST(SVNArguments, TakeEverythingBehindTwoHyphensForPaths) {
  EXPECT_THAT(Translated({"delete", "--", "-m\\x"}),
              ElementsAre("--non-interactive", "delete", "--", "-m/x"));
}

TEST(SVNArguments, OnlyTurnBackslashesRoundForACallThatNeverAsks) {
  EXPECT_THAT(Translated({"lock", "--non-interactive", "\\w\\a@b.CATPart@"}),
              ElementsAre("lock", "--non-interactive", "/w/a@b.CATPart@"));
  EXPECT_THAT(Translated({"update", "--non-interactive", "\\w\\a@b"}),
              ElementsAre("update", "--non-interactive", "/w/a@b"));
  EXPECT_THAT(Translated({"delete", "--force", "--non-interactive", "-mx", "a\\b"}),
              ElementsAre("delete", "--force", "--non-interactive", "-mx", "a/b"));
}

TEST(SVNArguments, TakeTheNameOfThatOptionForAPathBehindTwoHyphens) {
  EXPECT_THAT(Translated({"lock", "--", "--non-interactive"}),
              ElementsAre("--non-interactive", "lock", "--", "--non-interactive"));
}

TEST(SVNArguments, StandAnOptionWithoutItsValue) {
  EXPECT_THAT(Translated({"lock", "-m"}), ElementsAre("--non-interactive", "lock", "-m"));
}

}  // namespace
