#include "SVNEntriesText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Key;
using testing::SizeIs;

SVNEntry Folder(const std::string& path) {
  SVNEntry entry;
  entry.Path = path;
  entry.Kind = "dir";
  entry.Revision = "7";
  entry.URL = "file:///r";
  entry.RepositoryRoot = "file:///r";
  entry.RepositoryUUID = "6f1c";
  entry.Schedule = "normal";
  entry.CommitDate = "2026-11-19T16:40:11.123456Z";
  entry.CommitRevision = "6";
  entry.CommitAuthor = "anna";
  return entry;
}

SVNEntry File(const std::string& path) {
  SVNEntry entry = Folder(path);
  entry.Kind = "file";
  entry.Checksum = "0cc1";
  return entry;
}

SVNEntry LockedFile(const std::string& path) {
  SVNEntry entry = File(path);
  entry.LockToken = "opaquelocktoken:5f4dd5d0";
  entry.LockOwner = "ben";
  entry.LockComment = "mine";
  entry.LockDate = "2026-11-20T16:40:11.123456Z";
  return entry;
}

// As of `svn add`: the client tells neither a commit nor a checksum.
SVNEntry AddedFile(const std::string& path) {
  SVNEntry entry;
  entry.Path = path;
  entry.Kind = "file";
  entry.Revision = "-1";
  entry.Schedule = "add";
  return entry;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// The lines of the entry behind the folder's own in a folder that holds nothing else.
std::vector<std::string> EntryLines(const SVNEntry& entry) {
  std::vector<std::string> lines = Lines(BuildSVNEntriesTexts({Folder("/w"), entry}).at("/w"));
  lines.erase(lines.begin(), std::find(lines.begin(), lines.end(), "\f") + 1);
  return lines;
}

TEST(SVNInfo, ReadsAllThatIsToldOfAFile) {
  const std::vector<SVNEntry> entries = ParseSVNInfo(R"(<?xml version="1.0" encoding="UTF-8"?>
<info>
<entry path="/w/ä &amp; b.CATPart" revision="7" kind="file">
<url>file:///r/%C3%A4</url>
<relative-url>^/%C3%A4</relative-url>
<repository><root>file:///r</root><uuid>6f1c</uuid></repository>
<wc-info><wcroot-abspath>/w</wcroot-abspath><schedule>normal</schedule><depth>infinity</depth>
<text-updated>2026-11-21T09:27:34.000000Z</text-updated><checksum>0cc1</checksum></wc-info>
<commit revision="6"><author>anna lena</author><date>2026-11-19T16:40:11.123456Z</date></commit>
<lock><token>opaquelocktoken:5f4d</token><owner>ben</owner><comment>line 1
line 2</comment><created>2026-11-20T16:40:11.123456Z</created></lock>
</entry>
</info>
)");
  ASSERT_THAT(entries, SizeIs(1));
  const SVNEntry& entry = entries[0];
  EXPECT_EQ(entry.Path, "/w/ä & b.CATPart");
  EXPECT_EQ(entry.Kind, "file");
  EXPECT_EQ(entry.Revision, "7");
  EXPECT_EQ(entry.URL, "file:///r/%C3%A4");
  EXPECT_EQ(entry.RepositoryRoot, "file:///r");
  EXPECT_EQ(entry.RepositoryUUID, "6f1c");
  EXPECT_EQ(entry.Schedule, "normal");
  EXPECT_EQ(entry.Checksum, "0cc1");
  EXPECT_EQ(entry.CommitDate, "2026-11-19T16:40:11.123456Z");
  EXPECT_EQ(entry.CommitRevision, "6");
  EXPECT_EQ(entry.CommitAuthor, "anna lena");
  EXPECT_EQ(entry.LockToken, "opaquelocktoken:5f4d");
  EXPECT_EQ(entry.LockOwner, "ben");
  EXPECT_EQ(entry.LockComment, "line 1\nline 2");
  EXPECT_EQ(entry.LockDate, "2026-11-20T16:40:11.123456Z");
}

TEST(SVNInfo, KeepsWhatIsNotToldEmptyAndTheOrder) {
  const auto entries = ParseSVNInfo(
      "<info><entry kind=\"dir\" path=\"b\"><lock><owner>ben</owner></lock></entry>"
      "<entry kind=\"file\" path=\"a\"/></info>");
  ASSERT_THAT(entries, SizeIs(2));
  EXPECT_EQ(entries[0].Path, "b");
  EXPECT_EQ(entries[0].LockOwner, "ben");
  EXPECT_EQ(entries[1].Path, "a");
  EXPECT_EQ(entries[1].LockOwner, "");
  EXPECT_EQ(entries[1].CommitRevision, "");
}

TEST(SVNInfo, HasNoEntriesWhereItIsNotWellFormed) {
  EXPECT_THAT(ParseSVNInfo(""), IsEmpty());
  EXPECT_THAT(ParseSVNInfo("<info><entry kind=\"file\" path=\"a\"></entry>"), IsEmpty());
  EXPECT_THAT(ParseSVNInfo("<info><entry path=\"a\"></entry></info>svn: E155007: no working copy"),
              IsEmpty());
}

TEST(SVNEntriesText, HasOneTextForEachFolder) {
  const auto texts = BuildSVNEntriesTexts(
      {Folder("/w"), File("/w/a.CATPart"), Folder("/w/sub ü"), File("/w/sub ü/b.CATPart")});
  EXPECT_THAT(texts, ElementsAre(Key("/w"), Key("/w/sub ü")));
  EXPECT_THAT(Lines(texts.at("/w")), testing::Contains("a.CATPart"));
  EXPECT_THAT(Lines(texts.at("/w/sub ü")), testing::Contains("b.CATPart"));
  EXPECT_THAT(Lines(texts.at("/w/sub ü")), testing::Not(testing::Contains("a.CATPart")));
}

TEST(SVNEntriesText, LeavesOutFilesOfFoldersThatAreNotTold) {
  EXPECT_THAT(BuildSVNEntriesTexts({File("/w/a.CATPart")}), IsEmpty());
}

TEST(SVNEntriesText, BeginsWithTheFolderItself) {
  const auto lines = Lines(BuildSVNEntriesTexts({Folder("/w")}).at("/w"));
  ASSERT_THAT(lines, SizeIs(27));
  EXPECT_EQ(lines[0], "");
  EXPECT_EQ(lines[1], "dir");
  EXPECT_EQ(lines[2], "7");
  EXPECT_EQ(lines[3], "file:///r");
  EXPECT_EQ(lines[9], "6");
  EXPECT_EQ(lines[25], "6f1c");
  EXPECT_EQ(lines[26], "\f");
}

TEST(SVNEntriesText, TellsTheCommittedRevisionNineLinesBelowTheName) {
  const auto lines = EntryLines(File("/w/ä b.CATPart"));
  ASSERT_THAT(lines, SizeIs(34));
  EXPECT_EQ(lines[0], "ä b.CATPart");
  EXPECT_EQ(lines[1], "file");
  EXPECT_EQ(lines[7], "0cc1");
  EXPECT_EQ(lines[9], "6");
  EXPECT_EQ(lines[10], "anna");
  EXPECT_EQ(lines[26], "");
  EXPECT_EQ(lines[27], "");
  EXPECT_EQ(lines[33], "\f");
}

TEST(SVNEntriesText, TellsTheLockTwentySixLinesBelowTheName) {
  const auto lines = EntryLines(LockedFile("/w/a.CATPart"));
  ASSERT_THAT(lines, SizeIs(34));
  EXPECT_EQ(lines[26], "opaquelocktoken:5f4dd5d0");
  EXPECT_EQ(lines[27], "ben");
  EXPECT_EQ(lines[28], "mine");
  EXPECT_EQ(lines[29], "2026-11-20T16:40:11.123456Z");
}

TEST(SVNEntriesText, EndsAnAddedFileAtItsSchedule) {
  EXPECT_THAT(EntryLines(AddedFile("/w/a.CATPart")),
              ElementsAre("a.CATPart", "file", "-1", "", "", "add", "\f"));
}

TEST(SVNEntriesText, NamesASubfolderInItsParent) {
  EXPECT_THAT(EntryLines(Folder("/w/sub")), ElementsAre("sub", "dir", "\f"));
}

TEST(SVNEntriesText, KeepsEveryValueOnItsLine) {
  SVNEntry entry = LockedFile("/w/a.CATPart");
  entry.LockComment = "one\ntwo \\ three";
  const auto lines = EntryLines(entry);
  ASSERT_THAT(lines, SizeIs(34));
  EXPECT_EQ(lines[28], "one\\x0atwo \\x5c three");
}

TEST(SVNEntriesText, TellsFoldersByPathsThatWereGivenWithoutASlash) {
  const auto texts = BuildSVNEntriesTexts({Folder("."), Folder("sub"), File("sub/a.CATPart")});
  EXPECT_THAT(Lines(texts.at("sub")), testing::Contains("a.CATPart"));
}

}  // namespace
