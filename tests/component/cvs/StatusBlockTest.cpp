#include <gtest/gtest.h>

#include "cvs/StatusBlock.h"
#include "support/ClientReports.h"
#include "support/HostText.h"

using zrk::cvs::ParseCVSStatusBlock;

namespace {

ZRKCVSStatus Parsed(const std::string& block) {
  ZRKCVSStatus record;
  EXPECT_EQ(ParseCVSStatusBlock(block, record), 0);
  return record;
}

std::string FirstTag(const std::string& block) {
  return Text(Parsed(block).ExistingTags);
}

}  // namespace

TEST(CVSStatusBlock, EveryLineOfTheReportIsRead) {
  const ZRKCVSStatus record = Parsed(zrk::sample::StatusBlock("proj/a b.CATPart", "1.5", "Needs Patch"));
  EXPECT_EQ(Text(record.File), "ab.CATPart\t");
  EXPECT_EQ(Text(record.Status), "Needs Patch\r");
  EXPECT_EQ(Text(record.WorkingRevision), "1.5");
  EXPECT_EQ(Text(record.RepositoryRevision), "1.5/cvs/root/proj/a b.CATPart,v");
  EXPECT_EQ(Text(record.ExpansionOption), "");
  EXPECT_EQ(Text(record.CommitIdentifier), "kOGeDSplZWuXm2gG");
  EXPECT_EQ(Text(record.StickyTag), "(none)");
  EXPECT_EQ(Text(record.StickyDate), "(none)");
  EXPECT_EQ(Text(record.StickyOptions), "-kb");
  EXPECT_EQ(Text(record.MergeFrom), "");
  EXPECT_EQ(Text(record.ExistingTags), "release-2                (revision: 1.4)");
}

TEST(CVSStatusBlock, NothingButTheReportsFieldsIsTouched) {
  ZRKCVSStatus record;
  record.AuxText = "aux";
  record.LockOwner = "anna";
  record.RevisionNumber = 7;
  ParseCVSStatusBlock(zrk::sample::StatusBlock("proj/a", "1.5"), record);
  EXPECT_EQ(Text(record.AuxText), "aux");
  EXPECT_EQ(Text(record.LockOwner), "anna");
  EXPECT_EQ(record.RevisionNumber, 7);
  EXPECT_EQ(record.IsVersioned, 0);
}

TEST(CVSStatusBlock, LinesMayStandInAnyOrder) {
  const ZRKCVSStatus record =
      Parsed("Sticky Date:\t2026\r\nWorking revision:\t1.1\r\nFile: a\tStatus: b\r\n");
  EXPECT_EQ(Text(record.StickyDate), "2026");
  EXPECT_EQ(Text(record.WorkingRevision), "1.1");
  EXPECT_EQ(Text(record.File), "a\t");
}

TEST(CVSStatusBlock, TheLastLineNeedsNoLineEnd) {
  EXPECT_EQ(Text(Parsed("\n\nWorking revision:\t1.1\r").WorkingRevision), "1.1");
}

TEST(CVSStatusBlock, OfTwoLinesWithOneLabelTheLastHolds) {
  EXPECT_EQ(Text(Parsed("Sticky Tag:\tone\r\nSticky Tag:\ttwo\r\n").StickyTag), "two");
}

TEST(CVSStatusBlock, AnEmptyReportLeavesTheRecordAsItWas) {
  ZRKCVSStatus record;
  record.Status = "kept";
  record.ExistingTags = "kept too";
  EXPECT_EQ(ParseCVSStatusBlock("", record), 0);
  EXPECT_EQ(ParseCVSStatusBlock("\n\n\n", record), 0);
  EXPECT_EQ(Text(record.Status), "kept");
  EXPECT_EQ(Text(record.ExistingTags), "kept too");
}

TEST(CVSStatusTags, OnlyTheFirstTagIsTaken) {
  EXPECT_EQ(FirstTag("Existing Tags:\r\n\tone\t(revision: 1.1)\r\n\ttwo\t(revision: 1.2)\r\n"),
            "one(revision: 1.1)");
}

TEST(CVSStatusTags, ALineThatSaysThereAreNoneIsTakenAsATag) {
  EXPECT_EQ(FirstTag("Existing Tags:\r\n\tNo Tags Exist\r\n"), "No Tags Exist");
}

TEST(CVSStatusTags, WithoutTheLabelTheTagsStayAsTheyWere) {
  ZRKCVSStatus record;
  record.ExistingTags = "old";
  ParseCVSStatusBlock("File: a\tStatus: b\r\n\trelease\t(revision: 1.1)\r\n", record);
  EXPECT_EQ(Text(record.ExistingTags), "old");
}

TEST(CVSStatusTags, ReadingABlockTwiceAppendsItsTagTwice) {
  ZRKCVSStatus record;
  const std::string block = "Existing Tags:\r\n\tone\r\n\ttwo\r\n";
  ParseCVSStatusBlock(block, record);
  ParseCVSStatusBlock(block, record);
  EXPECT_EQ(Text(record.ExistingTags), "oneone");
}

TEST(CVSStatusTags, ALabelWithoutALineEndHasNoTags) {
  EXPECT_EQ(FirstTag("Existing Tags: one"), "");
}

TEST(CVSStatusTags, ALabelAtTheVeryEndHasNoTags) {
  EXPECT_EQ(FirstTag("Existing Tags:\r\n"), "");
  EXPECT_EQ(FirstTag("Existing Tags:\n\n\n"), "");
}

TEST(CVSStatusTags, ATagLosesItsLastCharacterWhateverItIs) {
  EXPECT_EQ(FirstTag("Existing Tags:\n\tone"), "on");
}

TEST(CVSStatusTags, EmptyLinesBeforeTheTagAreSkipped) {
  EXPECT_EQ(FirstTag("Existing Tags:\n\n\n\tone\r\n"), "one");
}

TEST(CVSStatusTags, LinesOfOneCharacterBeforeTheTagAreSkipped) {
  EXPECT_EQ(FirstTag("Existing Tags:\r\n\r\nx\n\tone\r\n\ttwo\r\n"), "one");
}

TEST(CVSStatusTags, LinesOfOneCharacterAloneAreNoTag) {
  EXPECT_EQ(FirstTag("Existing Tags:\r\n\r\n\r\n\r"), "");
}

TEST(CVSStatusTags, ALineOfTabsIsTakenAsAnEmptyTag) {
  EXPECT_EQ(FirstTag("Existing Tags:\r\n\t\t\r\n\ttwo\r\n"), "");
}

TEST(CVSStatusTags, BlanksOfATagStay) {
  EXPECT_EQ(FirstTag("Existing Tags:\r\n one \t two\r\n"), " one  two");
}

TEST(CVSStatusTags, OfTwoLabelsTheFirstCounts) {
  EXPECT_EQ(FirstTag("Existing Tags:\r\n\tone\r\nExisting Tags:\r\n\ttwo\r\n"), "one");
}

TEST(CVSStatusTags, ACarriageReturnAtTheStartOfATagStays) {
  EXPECT_EQ(FirstTag("Existing Tags:\n\r\tone\r\n\ttwo\r\n"), "\rone");
}
