#include <gtest/gtest.h>

#include "cvs/StatusBlock.h"
#include "support/ClientReports.h"

using zrk::cvs::GetRepositoryPath;

TEST(RepositoryPath, IsWhatFollowsTheRootFolderWithBackslashes) {
  EXPECT_EQ(GetRepositoryPath(zrk::sample::StatusBlock("proj/sub/a b.CATPart", "1.5"), zrk::sample::kCVSRoot),
            "proj\\sub\\a b.CATPart");
}

TEST(RepositoryPath, TheRootFolderStartsAtTheFirstSlashOfTheRoot) {
  const char* const block = "Repository revision:\t1.5\t/cvs/root/a.CATPart,v\r\n";
  EXPECT_EQ(GetRepositoryPath(block, "/cvs/root"), "a.CATPart");
  EXPECT_EQ(GetRepositoryPath(block, ":fork:/cvs/root"), "a.CATPart");
  EXPECT_EQ(GetRepositoryPath(block, "C:/cvs/root"), "a.CATPart");
  EXPECT_EQ(GetRepositoryPath(block, "host:2401/cvs/root"), "a.CATPart");
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/other/root/a,v\r\n", "/cvs/root"), "");
}

TEST(RepositoryPath, IsEmptyWhenTheRootHasNoFolder) {
  const std::string block = zrk::sample::StatusBlock("proj/a", "1.5");
  EXPECT_EQ(GetRepositoryPath(block, "host:"), "");
  EXPECT_EQ(GetRepositoryPath(block, ""), "");
}

TEST(RepositoryPath, IsEmptyWithoutARepositoryRevision) {
  EXPECT_EQ(GetRepositoryPath("File: a\tStatus: b\r\n/cvs/root/a,v\r\n", "/cvs/root"), "");
  EXPECT_EQ(GetRepositoryPath("File: wheel left.CATPart\tStatus: Unknown\r\n/cvs/root/a,v\r\n", "/cvs/root"),
            "");
  EXPECT_EQ(GetRepositoryPath("", "/cvs/root"), "");
}

TEST(RepositoryPath, IsEmptyWhenTheReportNamesAnotherRootFolder) {
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/other/a,v\r\n", "/cvs/root"), "");
  EXPECT_EQ(GetRepositoryPath("Repository revision:\tNo revision control file\r\n", "/cvs/root"), "");
}

TEST(RepositoryPath, ARootFolderBeforeTheLabelDoesNotCount) {
  EXPECT_EQ(GetRepositoryPath("/cvs/root/x,v Repository revision:\t1.5\t/cvs/root/y,v\r\n", "/cvs/root"),
            "y");
}

TEST(RepositoryPath, OfTwoLabelsTheFirstCounts) {
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t/r/one,v\r\nRepository revision:\t/r/two,v\r\n", "/r"),
            "one");
}

TEST(RepositoryPath, TheCharacterBehindTheLabelIsNotSearched) {
  EXPECT_EQ(GetRepositoryPath("Repository revision:/r/one,v\t/r/two,v", "/r"), "two");
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t/r/one,v\t/r/two,v", "/r"), "one");
}

TEST(RepositoryPath, RunsToTheEndOfTheReportWithoutTheRepositoryFilesEnding) {
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/cvs/root/a/b\r\nrest/x", "/cvs/root"),
            "a\\b\r\nrest\\x");
}

TEST(RepositoryPath, EndsAtTheFirstRepositoryFileEnding) {
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/cvs/root/a,version,v\r\n", "/cvs/root"), "a");
}

TEST(RepositoryPath, AnEndingThatStandsInTheRootFolderLeavesEverythingBehindIt) {
  // The ending lies before the path's start, so that the length is below 0.
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/cvs,v/a.CATPart,v", "/cvs,v"), "a.CATPart,v");
}

TEST(RepositoryPath, IsEmptyWhenNothingFollowsTheRootFolder) {
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/cvs/root", "/cvs/root"), "");
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/cvs/root/", "/cvs/root"), "");
}

TEST(RepositoryPath, TheRootFolderIsTheWholeOfItNotItsEnd) {
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/other/root/x/cvs/root/a,v\r\n", "/cvs/root"), "a");
}

TEST(RepositoryPath, TheCharacterBehindTheRootFolderIsSkippedWhateverItIs) {
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/cvs/root2/a,v\r\n", "/cvs/root"), "\\a");
  EXPECT_EQ(GetRepositoryPath("Repository revision:\t1.5\t/cvs/root//a,v\r\n", "/cvs/root"), "\\a");
}
