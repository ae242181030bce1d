// Reading `.svn\entries` beside a document.

#include <gtest/gtest.h>

#include <string>

#include "SampleEntries.h"
#include "ZRKCVSStatus.h"
#include "support/BinaryFiles.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"
#include "svn/EntriesFile.h"

namespace {

using namespace entries;
using zrk::svn::ReadSVNEntry;

const LockLines kOwnLock{kToken, "anna", "", ""};

class SVNEntriesFile : public testing::Test {
protected:
  void Write(const std::string& bytes) const { WriteFile(Folder / "wc" / ".svn" / "entries", bytes); }
  HRESULT Read(const std::string& path) { return ReadSVNEntry(path.c_str(), Record); }
  HRESULT ReadFile(const std::string& name) { return Read(Folder.Host("wc") + "\\" + name); }

  const TemporaryFolder Folder;
  ZRKCVSStatus Record;
};

TEST_F(SVNEntriesFile, IsReadFromTheFolderOfTheFile) {
  Write(Format(10) + entries::Folder("12") + File(10, "wheel left.CATPart", "9", "bert", kOwnLock));
  EXPECT_EQ(ReadFile("wheel left.CATPart"), S_OK);
  EXPECT_TRUE(Record.IsInEntries);
  EXPECT_TRUE(Record.IsVersioned);
  EXPECT_EQ(Record.WorkingRevision, "9");
  EXPECT_EQ(Record.RevisionNumber, 9);
  EXPECT_TRUE(Record.IsLockedHere);
  EXPECT_EQ(Record.LockOwner, "anna");
}

TEST_F(SVNEntriesFile, IsReadAsTextWhateverTheProcessOpensFilesAs) {
  Write("10\r\na.CATPart\r\n" + Text(Lines(8), "\r\n") + "9\r\n");
  const BinaryFiles binary;
  EXPECT_EQ(ReadFile("a.CATPart"), S_OK);
  EXPECT_EQ(Record.WorkingRevision, "9");
}

TEST_F(SVNEntriesFile, WithoutAnEntriesFileIsAFailureThatLeavesTheRecord) {
  Record.WorkingRevision = "7";
  EXPECT_EQ(ReadFile("a.CATPart"), E_FAIL);
  EXPECT_FALSE(Record.IsInEntries);
  EXPECT_EQ(Record.WorkingRevision, "7");
}

TEST_F(SVNEntriesFile, AFolderInPlaceOfTheEntriesFileIsAFailure) {
  WriteFile(Folder / "wc" / ".svn" / "entries" / "x", "");
  EXPECT_EQ(ReadFile("a.CATPart"), E_FAIL);
}

TEST_F(SVNEntriesFile, AFileThatIsNotListedIsASuccessThatLeavesTheRecord) {
  Write(Format(10) + entries::Folder("12"));
  Record.WorkingRevision = "7";
  EXPECT_EQ(ReadFile("a.CATPart"), S_OK);
  EXPECT_FALSE(Record.IsInEntries);
  EXPECT_EQ(Record.WorkingRevision, "7");
}

TEST_F(SVNEntriesFile, AnEmptyEntriesFileListsNothing) {
  Write("");
  EXPECT_EQ(ReadFile("a.CATPart"), S_OK);
  EXPECT_FALSE(Record.IsInEntries);
}

TEST_F(SVNEntriesFile, TheDocumentItselfNeedNotBeThere) {
  Write(Format(10) + File(10, "gone.CATPart", "9", "bert"));
  EXPECT_EQ(ReadFile("gone.CATPart"), S_OK);
  EXPECT_EQ(Record.WorkingRevision, "9");
}

TEST_F(SVNEntriesFile, IsReadAnewEachTime) {
  Write(Format(10) + File(10, "a.CATPart", "9", "bert"));
  ReadFile("a.CATPart");
  Write(Format(10) + File(10, "a.CATPart", "10", "bert"));
  ReadFile("a.CATPart");
  EXPECT_EQ(Record.WorkingRevision, "10");
}

TEST_F(SVNEntriesFile, LinesMayEndInCarriageReturnAndLineFeed) {
  Write(Text({"10"}, "\r\n") + Text(FileLines(10, "a.CATPart", "9", "bert", kOwnLock), "\r\n"));
  ReadFile("a.CATPart");
  EXPECT_TRUE(Record.IsInEntries);
  EXPECT_EQ(Record.WorkingRevision, "9");
  EXPECT_EQ(Record.LockOwner, "anna");
}

TEST_F(SVNEntriesFile, ALastLineWithoutEndDoesNotCount) {
  Write(Format(10) + Text(NameAndLines("a.CATPart", 8)) + "9");
  ReadFile("a.CATPart");
  EXPECT_TRUE(Record.IsInEntries);
  EXPECT_EQ(Record.WorkingRevision, "");
}

TEST_F(SVNEntriesFile, AControlZEndsTheText) {
  Write(Format(10) + "\x1A\n" + File(10, "a.CATPart", "9", "bert"));
  EXPECT_EQ(ReadFile("a.CATPart"), S_OK);
  EXPECT_FALSE(Record.IsInEntries);
}

TEST_F(SVNEntriesFile, NamesOfAnyBytesAreFound) {
  const std::string name = "Tr\xC3\xA4gerplatte.CATPart";
  Write(Format(10) + File(10, name, "9", "J\xC3\xBCrgen", {kToken, "J\xC3\xBCrgen", "", ""}));
  ReadFile(name);
  EXPECT_EQ(Record.WorkingRevision, "9");
  EXPECT_EQ(Record.LockOwner, "J\xC3\xBCrgen");
}

TEST_F(SVNEntriesFile, ThePathOfAFolderLeadsToTheEntryWithTheEmptyName) {
  Write(Format(10) + entries::Folder("12"));
  EXPECT_EQ(ReadFile(""), S_OK);
  EXPECT_EQ(Record.RevisionNumber, 12);
}

TEST_F(SVNEntriesFile, WithoutABackslashTheWholePathIsFolderAndName) {
  const std::string path = (Folder / "wc").generic_string();
  ASSERT_EQ(path.find('\\'), std::string::npos);
  Write(Format(10) + Text(NameAndLines("wc", 9, {{9, "1"}})) + Text(NameAndLines(path, 9, {{9, "2"}})));
  EXPECT_EQ(Read(path), S_OK);
  EXPECT_EQ(Record.WorkingRevision, "2");
}

TEST_F(SVNEntriesFile, ASlashDoesNotSeparate) {
  Write(Format(10) + Text(NameAndLines("a.CATPart", 9, {{9, "1"}})));
  EXPECT_EQ(Read((Folder / "wc" / "a.CATPart").generic_string()), E_FAIL);

  // Folder up to the only backslash, name with a slash behind it.
  Write(Format(10) + Text(NameAndLines("sub/a.CATPart", 9, {{9, "2"}})));
  EXPECT_EQ(Read((Folder / "wc").generic_string() + "\\sub/a.CATPart"), S_OK);
  EXPECT_EQ(Record.WorkingRevision, "2");
}

}  // namespace
