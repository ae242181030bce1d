#include "svn/EntriesText.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "SampleEntries.h"
#include "ZRKCVSStatus.h"

namespace {

using entries::kToken;
using entries::NameAndLines;
using zrk::svn::ReadEntry;

constexpr const char* kWheel = "wheel left.CATPart";

ZRKCVSStatus Read(const std::string& text, const std::string& name = kWheel) {
  ZRKCVSStatus record;
  ReadEntry(text, name, record);
  return record;
}

// The name, and `count` lines behind it: revision, lock token and owner at their distances.
ZRKCVSStatus ReadWithLinesBehindName(std::size_t count) {
  return Read("10\n" + entries::Text(NameAndLines(kWheel, count, {{9, "1234"}, {26, kToken}, {27, "anna"}})));
}

TEST(EntriesText, ListedFilesAreInEntriesAndVersioned) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(33);
  EXPECT_TRUE(record.IsInEntries);
  EXPECT_TRUE(record.IsVersioned);
}

TEST(EntriesText, TheLineNineBehindTheNameIsTheRevisionAsTextAndAsNumber) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(33);
  EXPECT_EQ(record.WorkingRevision, "1234");
  EXPECT_EQ(record.RevisionNumber, 1234);
}

TEST(EntriesText, TheNumberOfARevisionIsDecimalWhateverItStartsWith) {
  for (const auto& [text, number] : {std::pair{"0010", 10}, {"0x1F", 0}, {"12 r", 12}}) {
    const ZRKCVSStatus record = Read("10\n" + entries::Text(NameAndLines(kWheel, 33, {{9, text}})));
    EXPECT_EQ(record.RevisionNumber, number) << text;
    EXPECT_EQ(record.WorkingRevision, text);
  }
}

TEST(EntriesText, TheLine26BehindTheNameTellsTheLockAndTheNextItsOwner) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(33);
  EXPECT_TRUE(record.IsLockedHere);
  EXPECT_EQ(record.LockOwner, "anna");
}

TEST(EntriesText, ReadsNothingElse) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(33);
  EXPECT_EQ(record.File, "");
  EXPECT_EQ(record.Status, "");
  EXPECT_EQ(record.RepositoryRevision, "");
  EXPECT_EQ(record.ExpansionOption, "");
  EXPECT_EQ(record.CommitIdentifier, "");
  EXPECT_EQ(record.StickyTag, "");
  EXPECT_EQ(record.StickyDate, "");
  EXPECT_EQ(record.StickyOptions, "");
  EXPECT_EQ(record.MergeFrom, "");
  EXPECT_EQ(record.ExistingTags, "");
  EXPECT_EQ(record.AuxText, "");
  EXPECT_FALSE(record.IsLockedByOther);
  EXPECT_FALSE(record.Flag2);
}

TEST(EntriesText, AFileThatIsNotListedLeavesTheRecordUntouched) {
  ZRKCVSStatus record;
  record.WorkingRevision = "7";
  record.RevisionNumber = 7;
  record.LockOwner = "bert";
  record.IsLockedHere = 1;
  ReadEntry("10\n" + entries::Text(NameAndLines("axle.CATPart", 33, {{9, "1234"}})), kWheel, record);
  EXPECT_FALSE(record.IsInEntries);
  EXPECT_FALSE(record.IsVersioned);
  EXPECT_EQ(record.WorkingRevision, "7");
  EXPECT_EQ(record.RevisionNumber, 7);
  EXPECT_EQ(record.LockOwner, "bert");
  EXPECT_TRUE(record.IsLockedHere);
}

TEST(EntriesText, AnEmptyTextListsNothing) {
  EXPECT_FALSE(Read("").IsInEntries);
  EXPECT_FALSE(Read("", "").IsInEntries);
}

TEST(EntriesText, ANameWithNothingBehindItIsListedAndNoMore) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(0);
  EXPECT_TRUE(record.IsInEntries);
  EXPECT_TRUE(record.IsVersioned);
  EXPECT_EQ(record.WorkingRevision, "");
  EXPECT_EQ(record.RevisionNumber, 0);
  EXPECT_FALSE(record.IsLockedHere);
}

TEST(EntriesText, EightLinesBehindTheNameGiveNoRevision) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(8);
  EXPECT_TRUE(record.IsInEntries);
  EXPECT_EQ(record.WorkingRevision, "");
  EXPECT_EQ(record.RevisionNumber, 0);
}

TEST(EntriesText, NineLinesBehindTheNameGiveTheRevision) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(9);
  EXPECT_EQ(record.WorkingRevision, "1234");
  EXPECT_EQ(record.RevisionNumber, 1234);
  EXPECT_FALSE(record.IsLockedHere);
}

TEST(EntriesText, TenLinesBehindTheNameGiveTheRevisionAndNoLock) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(10);
  EXPECT_EQ(record.WorkingRevision, "1234");
  EXPECT_FALSE(record.IsLockedHere);
}

TEST(EntriesText, TwentyFiveLinesBehindTheNameGiveNoLock) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(25);
  EXPECT_EQ(record.WorkingRevision, "1234");
  EXPECT_FALSE(record.IsLockedHere);
  EXPECT_EQ(record.LockOwner, "");
}

TEST(EntriesText, TwentySixLinesBehindTheNameGiveALockWithoutOwner) {
  ZRKCVSStatus record;
  record.LockOwner = "bert";
  ReadEntry("10\n" + entries::Text(NameAndLines(kWheel, 26, {{9, "1234"}, {26, kToken}})), kWheel, record);
  EXPECT_TRUE(record.IsLockedHere);
  EXPECT_EQ(record.LockOwner, "");
}

TEST(EntriesText, TwentySevenLinesBehindTheNameGiveTheOwner) {
  const ZRKCVSStatus record = ReadWithLinesBehindName(27);
  EXPECT_TRUE(record.IsLockedHere);
  EXPECT_EQ(record.LockOwner, "anna");
}

TEST(EntriesText, ALineWithoutTokenIsNoLockAndHasNoOwner) {
  ZRKCVSStatus record;
  record.LockOwner = "bert";
  ReadEntry("10\n" + entries::Text(NameAndLines(kWheel, 33, {{9, "1234"}, {26, "token"}, {27, "anna"}})),
            kWheel, record);
  EXPECT_FALSE(record.IsLockedHere);
  EXPECT_EQ(record.LockOwner, "bert");
}

TEST(EntriesText, ATokenBesideItsLineIsNoLock) {
  for (const std::size_t distance : {25U, 27U}) {
    EXPECT_FALSE(Read("10\n" + entries::Text(NameAndLines(kWheel, 33, {{distance, kToken}}))).IsLockedHere)
        << distance;
  }
}

TEST(EntriesText, TheTokenMayStandAnywhereInItsLine) {
  const std::string lines =
      entries::Text(NameAndLines(kWheel, 33, {{26, "x opaquelocktoken"}, {27, "anna b. c."}}));
  const ZRKCVSStatus record = Read("10\n" + lines);
  EXPECT_TRUE(record.IsLockedHere);
  EXPECT_EQ(record.LockOwner, "anna b. c.");
}

TEST(EntriesText, TheTokenIsCaseSensitive) {
  EXPECT_FALSE(
      Read("10\n" + entries::Text(NameAndLines(kWheel, 33, {{26, "OpaqueLockToken:1"}}))).IsLockedHere);
}

TEST(EntriesText, AnEmptyRevisionLineIsAnEmptyTextAndZero) {
  ZRKCVSStatus record;
  record.WorkingRevision = "7";
  record.RevisionNumber = 7;
  ReadEntry("10\n" + entries::Text(NameAndLines(kWheel, 10, {{9, ""}})), kWheel, record);
  EXPECT_EQ(record.WorkingRevision, "");
  EXPECT_EQ(record.RevisionNumber, 0);
}

TEST(EntriesText, TheRevisionNumberIsThatOfTheLeadingDigits) {
  const auto revision = [](const std::string& line) {
    return Read("10\n" + entries::Text(NameAndLines(kWheel, 10, {{9, line}})));
  };
  EXPECT_EQ(revision("12M").RevisionNumber, 12);
  EXPECT_EQ(revision("12M").WorkingRevision, "12M");
  EXPECT_EQ(revision(" 12").RevisionNumber, 12);
  EXPECT_EQ(revision("-3").RevisionNumber, -3);
  EXPECT_EQ(revision("file").RevisionNumber, 0);
}

TEST(EntriesText, TheNameMayStandOnTheVeryFirstLine) {
  const ZRKCVSStatus record = Read(entries::Text(NameAndLines(kWheel, 9, {{9, "1234"}})));
  EXPECT_TRUE(record.IsInEntries);
  EXPECT_EQ(record.WorkingRevision, "1234");
}

TEST(EntriesText, TheNameMustBeTheWholeLine) {
  for (const std::string line : {"my wheel left.CATPart", "wheel left.CATPart2", "wheel left.CATPart ",
                                 " wheel left.CATPart", "wheel left.CATPar"}) {
    EXPECT_FALSE(Read("10\n" + line + "\nfile\n").IsInEntries) << line;
    EXPECT_FALSE(Read(line + "\nfile\n").IsInEntries) << line;
  }
}

TEST(EntriesText, ALineThatOnlyStartsWithTheNameDoesNotHideTheNameBehind) {
  const ZRKCVSStatus record =
      Read("10\nwheel left.CATPart.bak\n" + entries::Text(NameAndLines(kWheel, 9, {{9, "5"}})));
  EXPECT_EQ(record.WorkingRevision, "5");
}

TEST(EntriesText, TheNameIsCaseSensitive) {
  EXPECT_FALSE(Read("10\nWheel Left.CATPart\nfile\n").IsInEntries);
}

TEST(EntriesText, TheFirstLineThatIsTheNameCounts) {
  const std::string twice =
      entries::Text(NameAndLines(kWheel, 9, {{9, "1"}})) + entries::Text(NameAndLines(kWheel, 9, {{9, "2"}}));
  EXPECT_EQ(Read("10\n" + twice).WorkingRevision, "1");
}

TEST(EntriesText, ALastLineWithoutLineFeedDoesNotCount) {
  const std::string cutName = std::string("10\n") + kWheel;
  EXPECT_FALSE(Read(cutName).IsInEntries);
  EXPECT_FALSE(Read(kWheel).IsInEntries);

  std::string cutRevision = entries::Text(NameAndLines(kWheel, 9, {{9, "1234"}}));
  cutRevision.pop_back();
  EXPECT_TRUE(Read(cutRevision).IsInEntries);
  EXPECT_EQ(Read(cutRevision).WorkingRevision, "");

  std::string cutToken = entries::Text(NameAndLines(kWheel, 26, {{9, "1234"}, {26, kToken}}));
  cutToken.pop_back();
  EXPECT_EQ(Read(cutToken).WorkingRevision, "1234");
  EXPECT_FALSE(Read(cutToken).IsLockedHere);

  std::string cutOwner = entries::Text(NameAndLines(kWheel, 27, {{26, kToken}, {27, "anna"}}));
  cutOwner.pop_back();
  EXPECT_TRUE(Read(cutOwner).IsLockedHere);
  EXPECT_EQ(Read(cutOwner).LockOwner, "");
}

TEST(EntriesText, AnEmptyNameIsFoundAtTheFirstEmptyLine) {
  const ZRKCVSStatus record = Read("10\n" + entries::Text(NameAndLines("", 9, {{9, "88"}})), "");
  EXPECT_TRUE(record.IsInEntries);
  EXPECT_EQ(record.RevisionNumber, 88);
}

TEST(EntriesText, NamesOfAnyBytesAreComparedByteByByte) {
  const std::string utf8 = "Trägerplatte größer.CATPart";
  const std::string latin1 =
      "Tr\xE4gerplatte gr\xF6\xDF"
      "er.CATPart";
  const std::string text = "10\n" + entries::Text(NameAndLines(utf8, 9, {{9, "5"}}));
  EXPECT_EQ(Read(text, utf8).WorkingRevision, "5");
  EXPECT_FALSE(Read(text, latin1).IsInEntries);
  EXPECT_TRUE(Read("10\n" + latin1 + "\n", latin1).IsInEntries);
}

TEST(EntriesText, TheOwnerKeepsItsBytes) {
  const std::string owner = "J\xC3\xBCrgen M\xC3\xBCller";
  EXPECT_EQ(Read(entries::Text(NameAndLines(kWheel, 27, {{26, kToken}, {27, owner}}))).LockOwner,
            owner.c_str());
}

TEST(EntriesText, CarriageReturnsThatStayedBelongToTheirLine) {
  EXPECT_FALSE(Read("10\nwheel left.CATPart\r\nfile\r\n").IsInEntries);
  EXPECT_EQ(Read(entries::Text(NameAndLines(kWheel, 9, {{9, "12\r"}}))).WorkingRevision, "12\r");
}

TEST(EntriesText, ANameThatHoldsALineFeedIsNoLine) {
  EXPECT_FALSE(Read("10\nwheel\nleft.CATPart\nfile\n", "wheel\nleft.CATPart").IsInEntries);
}

TEST(EntriesText, ALargeFolderIsReadToItsEnd) {
  std::string text = "10\n";
  for (int number = 0; number < 20'000; ++number) {
    text += entries::File(10, "part " + std::to_string(number) + ".CATPart", std::to_string(number), "anna");
  }
  EXPECT_EQ(Read(text, "part 0.CATPart").WorkingRevision, "0");
  EXPECT_EQ(Read(text, "part 19999.CATPart").WorkingRevision, "19999");
  EXPECT_FALSE(Read(text, "part 20000.CATPart").IsInEntries);
}

}  // namespace
