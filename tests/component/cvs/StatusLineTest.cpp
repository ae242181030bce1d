#include <gtest/gtest.h>

#include "cvs/StatusBlock.h"
#include "support/HostText.h"

using zrk::cvs::ParseCVSStatusLine;

namespace {

ZRKCVSStatus Parsed(const char* line) {
  ZRKCVSStatus record;
  ParseCVSStatusLine(line, record);
  return record;
}

}  // namespace

TEST(CVSStatusLine, TheFileNameLosesItsBlanksAndKeepsItsTab) {
  EXPECT_EQ(Text(Parsed("File: wheel left.CATPart   \tStatus: Up-to-date\r").File), "wheelleft.CATPart\t");
}

TEST(CVSStatusLine, TheStatusKeepsItsCarriageReturn) {
  EXPECT_EQ(Text(Parsed("File: a.CATPart \tStatus: Locally Modified\r").Status), "Locally Modified\r");
}

TEST(CVSStatusLine, TheStatusOfALineWithoutCarriageReturnIsWhole) {
  EXPECT_EQ(Text(Parsed("File: a.CATPart \tStatus: Unknown").Status), "Unknown");
}

TEST(CVSStatusLine, TheStatusKeepsItsTabs) {
  EXPECT_EQ(Text(Parsed("File: a\tStatus: one\ttwo\r").Status), "one\ttwo\r");
}

TEST(CVSStatusLine, TheStatusStartsOneCharacterBehindItsLabelWhateverThatIs) {
  EXPECT_EQ(Text(Parsed("File: a\tStatus:Unknown").Status), "nknown");
}

TEST(CVSStatusLine, AStatusLabelAtTheEndGivesAnEmptyStatus) {
  EXPECT_EQ(Text(Parsed("File: a\tStatus:").Status), "");
  EXPECT_EQ(Text(Parsed("File: a\tStatus: ").Status), "");
}

TEST(CVSStatusLine, AStatusBeforeTheFileLabelMakesTheNameRunToTheEnd) {
  const ZRKCVSStatus record = Parsed("Status: old File: a b\tc");
  EXPECT_EQ(Text(record.File), "ab\tc");
  EXPECT_EQ(Text(record.Status), "old File: a b\tc");
}

TEST(CVSStatusLine, AFileLineWithoutStatusChangesNothing) {
  ZRKCVSStatus record;
  record.File = "before";
  record.Status = "as it was";
  record.WorkingRevision = "1.1";
  ParseCVSStatusLine("File: a.CATPart Working revision:\t1.5\r", record);
  EXPECT_EQ(Text(record.File), "before");
  EXPECT_EQ(Text(record.Status), "as it was");
  EXPECT_EQ(Text(record.WorkingRevision), "1.1");
}

TEST(CVSStatusLine, TheWorkingRevisionIsBare) {
  EXPECT_EQ(Text(Parsed("   Working revision:\t1.5\r").WorkingRevision), "1.5");
  EXPECT_EQ(Text(Parsed("   Working revision: \t 1. 5 \t\r").WorkingRevision), "1.5");
}

TEST(CVSStatusLine, TheRepositoryRevisionIsGluedToTheRepositoryFile) {
  EXPECT_EQ(Text(Parsed("   Repository revision:\t1.5\t/cvs/root/proj/a.CATPart,v\r").RepositoryRevision),
            "1.5/cvs/root/proj/a.CATPart,v");
}

TEST(CVSStatusLine, BlanksStayInEveryValueButTheWorkingRevision) {
  EXPECT_EQ(Text(Parsed("Repository revision: 1.5 /a b\r").RepositoryRevision), " 1.5 /a b");
  EXPECT_EQ(Text(Parsed("Expansion option: k b\r").ExpansionOption), " k b");
  EXPECT_EQ(Text(Parsed("Commit Identifier: x y\r").CommitIdentifier), " x y");
  EXPECT_EQ(Text(Parsed("Sticky Tag: a b\r").StickyTag), " a b");
  EXPECT_EQ(Text(Parsed("Sticky Date: 2026 11\r").StickyDate), " 2026 11");
  EXPECT_EQ(Text(Parsed("Sticky Options: -k b\r").StickyOptions), " -k b");
  EXPECT_EQ(Text(Parsed("Merge From: 1.2 b\r").MergeFrom), " 1.2 b");
}

TEST(CVSStatusLine, EveryLabelFillsItsOwnField) {
  EXPECT_EQ(Text(Parsed("   Expansion option:\tkb\r").ExpansionOption), "kb");
  EXPECT_EQ(Text(Parsed("   Commit Identifier:\tkOGeDSplZWuXm2gG\r").CommitIdentifier), "kOGeDSplZWuXm2gG");
  EXPECT_EQ(Text(Parsed("   Sticky Tag:\t\t(none)\r").StickyTag), "(none)");
  EXPECT_EQ(Text(Parsed("   Sticky Date:\t\t(none)\r").StickyDate), "(none)");
  EXPECT_EQ(Text(Parsed("   Sticky Options:\t-kb\r").StickyOptions), "-kb");
  EXPECT_EQ(Text(Parsed("   Merge From:\t\t1.3\r").MergeFrom), "1.3");
}

TEST(CVSStatusLine, ALabelMayStandAnywhereInTheLine) {
  EXPECT_EQ(Text(Parsed("cvs said: Working revision:\t2.1\r").WorkingRevision), "2.1");
}

TEST(CVSStatusLine, TheFileNameStartsRightBehindItsLabel) {
  EXPECT_EQ(Text(Parsed("File:a\tStatus: b").File), "a\t");
}

TEST(CVSStatusLine, OfALabelThatStandsTwiceInTheLineTheFirstCounts) {
  EXPECT_EQ(Text(Parsed("File: a File: b\tStatus: c").File), "aFile:b\t");
  EXPECT_EQ(Text(Parsed("File: a\tStatus: b Status: c").Status), "b Status: c");
  EXPECT_EQ(Text(Parsed("Working revision:1Working revision:2\r").WorkingRevision), "1Workingrevision:2");
  EXPECT_EQ(Text(Parsed("Repository revision:1Repository revision:2\r").RepositoryRevision),
            "1Repository revision:2");
  EXPECT_EQ(Text(Parsed("Expansion option:1Expansion option:2\r").ExpansionOption), "1Expansion option:2");
  EXPECT_EQ(Text(Parsed("Commit Identifier:1Commit Identifier:2\r").CommitIdentifier),
            "1Commit Identifier:2");
  EXPECT_EQ(Text(Parsed("Sticky Tag:1Sticky Tag:2\r").StickyTag), "1Sticky Tag:2");
  EXPECT_EQ(Text(Parsed("Sticky Date:1Sticky Date:2\r").StickyDate), "1Sticky Date:2");
  EXPECT_EQ(Text(Parsed("Sticky Options:1Sticky Options:2\r").StickyOptions), "1Sticky Options:2");
  EXPECT_EQ(Text(Parsed("Merge From:1Merge From:2\r").MergeFrom), "1Merge From:2");
}

TEST(CVSStatusLine, OnlyTheFirstLabelInTheOrderOfTheRecordCounts) {
  // From the last label to the first: each line holds one more that goes before all the others.
  struct Case {
    const char* Label;
    CATUnicodeString ZRKCVSStatus::*Field;
  };
  const Case order[] = {{"Merge From:", &ZRKCVSStatus::MergeFrom},
                        {"Sticky Options:", &ZRKCVSStatus::StickyOptions},
                        {"Sticky Date:", &ZRKCVSStatus::StickyDate},
                        {"Sticky Tag:", &ZRKCVSStatus::StickyTag},
                        {"Commit Identifier:", &ZRKCVSStatus::CommitIdentifier},
                        {"Expansion option:", &ZRKCVSStatus::ExpansionOption},
                        {"Repository revision:", &ZRKCVSStatus::RepositoryRevision},
                        {"Working revision:", &ZRKCVSStatus::WorkingRevision}};
  std::string line;
  const Case* later = nullptr;
  for (const Case& label : order) {
    line += std::string(label.Label) + "x\r";
    const ZRKCVSStatus record = Parsed(line.c_str());
    EXPECT_NE(Text(record.*label.Field), "") << line;
    if (later) {
      EXPECT_EQ(Text(record.*later->Field), "") << line;
    }
    later = &label;
  }
}

TEST(CVSStatusLine, AStickyTagGoesBeforeAMerge) {
  const ZRKCVSStatus record = Parsed("Sticky Tag: one Merge From: two\r");
  EXPECT_EQ(Text(record.StickyTag), " one Merge From: two");
  EXPECT_EQ(Text(record.MergeFrom), "");
}

TEST(CVSStatusLine, EveryValueLosesTheLastCharacterWhateverItIs) {
  EXPECT_EQ(Text(Parsed("Working revision:\t1.5").WorkingRevision), "1.");
  EXPECT_EQ(Text(Parsed("Repository revision:\t1.5").RepositoryRevision), "1.");
  EXPECT_EQ(Text(Parsed("Expansion option:\tkb").ExpansionOption), "k");
  EXPECT_EQ(Text(Parsed("Commit Identifier:\tab").CommitIdentifier), "a");
  EXPECT_EQ(Text(Parsed("Sticky Tag:\tab").StickyTag), "a");
  EXPECT_EQ(Text(Parsed("Sticky Date:\tab").StickyDate), "a");
  EXPECT_EQ(Text(Parsed("Sticky Options:\tab").StickyOptions), "a");
  EXPECT_EQ(Text(Parsed("Merge From:\tab").MergeFrom), "a");
}

TEST(CVSStatusLine, ALabelThatEndsTheLineGivesAnEmptyValueInPlaceOfTheOldOne) {
  for (const char* const line : {"Sticky Tag:", "Sticky Tag:\r"}) {
    ZRKCVSStatus record;
    record.StickyTag = "old";
    ParseCVSStatusLine(line, record);
    EXPECT_EQ(Text(record.StickyTag), "") << line;
  }
}

TEST(CVSStatusLine, LabelsAreCaseSensitive) {
  const ZRKCVSStatus record = Parsed("Working Revision:\t1.5\r");
  EXPECT_EQ(Text(record.WorkingRevision), "");
}

TEST(CVSStatusLine, ALineWithoutALabelIsIgnored) {
  const ZRKCVSStatus record = Parsed("cvs status: Examining proj\r");
  EXPECT_EQ(Text(record.File), "");
  EXPECT_EQ(Text(record.Status), "");
  EXPECT_EQ(Text(record.WorkingRevision), "");
}

TEST(CVSStatusLine, BytesOverAsciiPassUnchanged) {
  EXPECT_EQ(Text(Parsed("File: Stra\xC3\x9F\x65 \xE9.CATPart\tStatus: \xC3\x84\r").File),
            "Stra\xC3\x9F\x65\xE9.CATPart\t");
}
