#include "SVNArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

TEST(SVNArguments, AskForNothingInteractively) {
  EXPECT_THAT(TranslateSVNArguments({}), ElementsAre("--non-interactive"));
}

TEST(SVNArguments, TurnBackslashesOfPathsIntoSlashes) {
  EXPECT_THAT(TranslateSVNArguments({"status", "-v", "-u", "--xml", "\\w\\c d.CATPart"}),
              ElementsAre("--non-interactive", "status", "-v", "-u", "--xml", "/w/c d.CATPart"));
}

TEST(SVNArguments, CloseAPathThatHoldsAnAtSign) {
  EXPECT_THAT(TranslateSVNArguments({"lock", "\\w\\a@b.CATPart"}),
              ElementsAre("--non-interactive", "lock", "/w/a@b.CATPart@"));
}

TEST(SVNArguments, LeaveURLsAsTheyAre) {
  EXPECT_THAT(TranslateSVNArguments({"delete", "-mzq", "https://x@host/a\\b@7"}),
              ElementsAre("--non-interactive", "delete", "-mzq", "https://x@host/a\\b@7"));
}

TEST(SVNArguments, TakeAPathWithAColonAndSlashesForAPath) {
  EXPECT_THAT(TranslateSVNArguments({"status", "\\w\\a://b"}),
              ElementsAre("--non-interactive", "status", "/w/a://b"));
}

TEST(SVNArguments, LeaveMessagesAsTheyAre) {
  EXPECT_THAT(TranslateSVNArguments({"lock", "-m", "a\\b@c", "--message=d\\e", "p\\q"}),
              ElementsAre("--non-interactive", "lock", "-m", "a\\b@c", "--message=d\\e", "p/q"));
}

TEST(SVNArguments, LeaveValuesOfOptionsInFrontOfTheCommandAsTheyAre) {
  EXPECT_THAT(TranslateSVNArguments({"--config-dir", "a\\b", "update", "c\\d"}),
              ElementsAre("--non-interactive", "--config-dir", "a\\b", "update", "c/d"));
}

TEST(SVNArguments, DropTheMessageOfADeletionOfPaths) {
  EXPECT_THAT(TranslateSVNArguments({"delete", "-mzq", "--force", "\\w\\a"}),
              ElementsAre("--non-interactive", "delete", "--force", "/w/a"));
  EXPECT_THAT(TranslateSVNArguments({"rm", "-m", "zq", "\\w\\a"}),
              ElementsAre("--non-interactive", "rm", "/w/a"));
  EXPECT_THAT(TranslateSVNArguments({"del", "--file=x", "\\w\\a"}),
              ElementsAre("--non-interactive", "del", "/w/a"));
}

TEST(SVNArguments, KeepTheMessageOfADeletionInTheRepository) {
  EXPECT_THAT(TranslateSVNArguments({"delete", "-m", "zq", "svn://host/a"}),
              ElementsAre("--non-interactive", "delete", "-m", "zq", "svn://host/a"));
}

TEST(SVNArguments, TakeEverythingBehindTwoHyphensForPaths) {
  EXPECT_THAT(TranslateSVNArguments({"delete", "--", "-m\\x"}),
              ElementsAre("--non-interactive", "delete", "--", "-m/x"));
}

TEST(SVNArguments, OnlyTurnBackslashesRoundForACallThatNeverAsks) {
  EXPECT_THAT(TranslateSVNArguments({"lock", "--non-interactive", "\\w\\a@b.CATPart@"}),
              ElementsAre("lock", "--non-interactive", "/w/a@b.CATPart@"));
  EXPECT_THAT(TranslateSVNArguments({"update", "--non-interactive", "\\w\\a@b"}),
              ElementsAre("update", "--non-interactive", "/w/a@b"));
  EXPECT_THAT(TranslateSVNArguments({"delete", "--force", "--non-interactive", "-mx", "a\\b"}),
              ElementsAre("delete", "--force", "--non-interactive", "-mx", "a/b"));
}

TEST(SVNArguments, TakeTheNameOfThatOptionForAPathBehindTwoHyphens) {
  EXPECT_THAT(TranslateSVNArguments({"lock", "--", "--non-interactive"}),
              ElementsAre("--non-interactive", "lock", "--", "--non-interactive"));
}

TEST(SVNArguments, StandAnOptionWithoutItsValue) {
  EXPECT_THAT(TranslateSVNArguments({"lock", "-m"}), ElementsAre("--non-interactive", "lock", "-m"));
}

}  // namespace
