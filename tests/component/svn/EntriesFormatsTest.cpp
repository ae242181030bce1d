// Entries files as clients from 1.4 to 1.6 write them.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "SampleEntries.h"
#include "ZRKCVSStatus.h"
#include "svn/EntriesText.h"

namespace {

using namespace entries;

ZRKCVSStatus RecordOf(const std::string& text, const std::string& name) {
  ZRKCVSStatus record;
  zrk::svn::ReadEntry(text, name, record);
  return record;
}

const LockLines kCommentedLock{kToken, "anna", "taken for the review", "2026-11-20T10:16:00.000000Z"};

class EntriesFormats : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Formats, EntriesFormats, testing::Values(8, 9, 10));

TEST_P(EntriesFormats, AnUnlockedFileHasItsRevisionAndNoLock) {
  const std::string text = Format(GetParam()) + Folder("12") + File(GetParam(), "a.CATPart", "9", "bert") +
                           File(GetParam(), "b.CATPart", "11", "carl") + Subfolder("sub");
  const ZRKCVSStatus record = RecordOf(text, "a.CATPart");
  EXPECT_TRUE(record.IsVersioned);
  EXPECT_EQ(record.WorkingRevision, "9");
  EXPECT_FALSE(record.IsLockedHere);
  EXPECT_EQ(record.LockOwner, "");
}

TEST_P(EntriesFormats, AFileLockedHereHasItsOwner) {
  const std::string text = Format(GetParam()) + Folder("12") +
                           File(GetParam(), "a.CATPart", "9", "bert", kCommentedLock) +
                           File(GetParam(), "b.CATPart", "11", "carl");
  const ZRKCVSStatus record = RecordOf(text, "a.CATPart");
  EXPECT_EQ(record.WorkingRevision, "9");
  EXPECT_TRUE(record.IsLockedHere);
  EXPECT_EQ(record.LockOwner, "anna");
}

TEST_P(EntriesFormats, TheLockOfTheFileBehindIsNotTakenForItsOwn) {
  const std::string text = Format(GetParam()) + Folder("12") + File(GetParam(), "a.CATPart", "9", "bert") +
                           File(GetParam(), "b.CATPart", "11", "carl", kCommentedLock);
  EXPECT_FALSE(RecordOf(text, "a.CATPart").IsLockedHere);
  EXPECT_TRUE(RecordOf(text, "b.CATPart").IsLockedHere);
}

TEST_P(EntriesFormats, TheLastFileOfTheFolderIsReadToo) {
  const std::string text = Format(GetParam()) + Folder("12") +
                           File(GetParam(), "a.CATPart", "9", "bert", kCommentedLock) +
                           File(GetParam(), "b.CATPart", "11", "carl");
  const ZRKCVSStatus record = RecordOf(text, "b.CATPart");
  EXPECT_EQ(record.RevisionNumber, 11);
  EXPECT_FALSE(record.IsLockedHere);
}

TEST_P(EntriesFormats, TheFolderItselfIsTheEntryWithTheEmptyName) {
  const std::string text = Format(GetParam()) + Folder("12") + File(GetParam(), "a.CATPart", "9", "bert");
  const ZRKCVSStatus record = RecordOf(text, "");
  EXPECT_EQ(record.RevisionNumber, 12);
  EXPECT_FALSE(record.IsLockedHere);
}

TEST(EntriesFormatLengths, AreThoseOfTheClients) {
  const auto lines = [](const std::string& entry) {
    return std::count(entry.begin(), entry.end(), '\n') - 1;
  };
  EXPECT_EQ(lines(File(10, "a", "9", "anna")), 33);
  EXPECT_EQ(lines(File(9, "a", "9", "anna", kCommentedLock)), 33);
  EXPECT_EQ(lines(File(8, "a", "9", "anna")), 11);
  EXPECT_EQ(lines(File(8, "a", "9", "anna", kCommentedLock)), 30);
  EXPECT_EQ(lines(ConflictedFile("a", "9")), 19);
  EXPECT_EQ(lines(CopiedFile("a", "9")), 22);
  EXPECT_EQ(lines(AddedFile("a")), 6);
  EXPECT_EQ(lines(Subfolder("a")), 2);
  EXPECT_EQ(lines(Folder("9")), 26);
}

TEST(EntriesShortEntries, AConflictedFileHasItsOwnRevision) {
  const std::string text =
      Format(9) + Folder("12") + ConflictedFile("a.CATPart", "9") + Subfolder("sub") + AddedFile("n.CATPart");
  EXPECT_EQ(RecordOf(text, "a.CATPart").WorkingRevision, "9");
  EXPECT_FALSE(RecordOf(text, "a.CATPart").IsLockedHere);
}

TEST(EntriesShortEntries, ACopiedFileHasTheRevisionOfItsSource) {
  const std::string text = Format(9) + Folder("12") + CopiedFile("a.CATPart", "9");
  EXPECT_EQ(RecordOf(text, "a.CATPart").WorkingRevision, "9");
}

TEST(EntriesShortEntries, TheRevisionOfAnAddedFileIsReadFromTheEntryBehind) {
  // Six lines and the form feed: the ninth line is the third of the next entry.
  const std::string text = Format(10) + Folder("12") + AddedFile("n.CATPart") +
                           EntryOf({"b.CATPart", "file", "17", "", "", "add"});
  EXPECT_EQ(RecordOf(text, "n.CATPart").WorkingRevision, "17");
}

TEST(EntriesShortEntries, AnAddedFileAtTheEndHasNoRevision) {
  const std::string text = Format(10) + Folder("12") + AddedFile("n.CATPart");
  const ZRKCVSStatus record = RecordOf(text, "n.CATPart");
  EXPECT_TRUE(record.IsVersioned);
  EXPECT_EQ(record.WorkingRevision, "");
  EXPECT_EQ(record.RevisionNumber, 0);
}

TEST(EntriesShortEntries, TheLockIsReadFromTheEntriesBehind) {
  // 11 + 1 and 11 + 1 lines of two unlocked files of format 8, then a folder's 2: the next line is the
  // form feed. One entry of 1 line instead, and the 26th is the name of the last.
  const std::string text = Format(8) + Folder("12") + File(8, "a.CATPart", "9", "bert") +
                           File(8, "b.CATPart", "11", "carl") + EntryOf({"c"}) +
                           EntryOf({"opaquelocktoken.txt", "file"});
  const ZRKCVSStatus record = RecordOf(text, "a.CATPart");
  EXPECT_EQ(record.WorkingRevision, "9");
  EXPECT_TRUE(record.IsLockedHere);
  EXPECT_EQ(record.LockOwner, "file");
}

TEST(EntriesShortEntries, TheOwnerOfALockCanBeThatOfAnotherFile) {
  // The line with the word is the last of its entry, so that the form feed stands for the owner.
  const std::string text = Format(8) + File(8, "a.CATPart", "9", "bert") +
                           File(8, "b.CATPart", "11", "carl") + EntryOf({"c", "d", "opaquelocktoken"});
  EXPECT_EQ(RecordOf(text, "a.CATPart").LockOwner, "\f");
}

TEST(EntriesAmbiguousNames, AnEarlierAuthorOfTheSameNameIsTakenForTheFile) {
  // The author stands at line 10 of the first file, 23 lines before its form feed.
  const std::string text = Format(10) + Folder("12") + File(10, "a.CATPart", "9", "wheel") +
                           File(10, "wheel", "11", "carl", kCommentedLock);
  const ZRKCVSStatus record = RecordOf(text, "wheel");
  EXPECT_TRUE(record.IsInEntries);
  EXPECT_EQ(record.WorkingRevision, "");
  EXPECT_FALSE(record.IsLockedHere);
}

TEST(EntriesAmbiguousNames, AnEarlierLockOwnerOfTheSameNameIsTakenForTheFile) {
  // Behind the owner: comment, date, two empty lines, the size, the form feed, and the file's own lines.
  const std::string text = Format(10) + Folder("12") +
                           File(10, "a.CATPart", "9", "bert", {kToken, "wheel", "", ""}) +
                           EntryOf({"wheel", "file", "third", "", "", "add"});
  const ZRKCVSStatus record = RecordOf(text, "wheel");
  EXPECT_EQ(record.WorkingRevision, "third");
}

TEST(EntriesAmbiguousNames, AFileNamedAsTheFormatIsFoundOnTheFirstLine) {
  const std::string text = "10\n" + Folder("12") + File(10, "10", "9", "bert", kCommentedLock);
  const ZRKCVSStatus record = RecordOf(text, "10");
  EXPECT_TRUE(record.IsInEntries);
  // Nine lines behind the format stands the date of the folder's last commit.
  EXPECT_EQ(record.WorkingRevision, "2026-11-19T16:40:11.123456Z");
  EXPECT_EQ(record.RevisionNumber, 2026);
  EXPECT_FALSE(record.IsLockedHere);
}

TEST(EntriesAmbiguousNames, AFileNamedAsAKindIsFoundAtTheFirstOfThatKind) {
  const std::string text =
      Format(10) + Folder("12") + File(10, "a.CATPart", "9", "bert") + File(10, "file", "11", "carl");
  // The first line "file" is the kind of a.CATPart, one behind its name.
  EXPECT_EQ(RecordOf(text, "file").WorkingRevision, "bert");
}

TEST(EntriesNewerWorkingCopies, AOneLineEntriesFileListsNothing) {
  EXPECT_FALSE(RecordOf("12\n", "a.CATPart").IsInEntries);
}

}  // namespace
