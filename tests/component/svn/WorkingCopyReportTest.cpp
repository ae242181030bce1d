// Reading the status report of a working copy with a database: what each entry says.

#include "svn/WorkingCopyReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "framework/FrameworkControl.h"
#include "support/ClientReports.h"
#include "support/HostText.h"

namespace {

using namespace reports;
using zrk::svn::FillRecord;
using zrk::svn::ReadWorkingCopyReport;
using zrk::svn::ReportedFile;
using zrk::svn::ReportedFiles;
using zrk::svn::Repository;

ReportedFiles ReadReport(const std::string& report, Repository repository = Repository::Asked) {
  ReportedFiles files;
  EXPECT_TRUE(ReadWorkingCopyReport(report.c_str(), repository, "", files));
  return files;
}

ReportedFile ReadOne(const Entry& entry, Repository repository = Repository::Asked) {
  const ReportedFiles files = ReadReport(Report({entry}), repository);
  EXPECT_EQ(files.size(), 1U);
  return files.empty() ? ReportedFile{} : files.begin()->second;
}

std::vector<std::string> PathsOf(const ReportedFiles& files) {
  std::vector<std::string> paths;
  for (const auto& [path, file] : files) paths.push_back(path);
  std::sort(paths.begin(), paths.end());
  return paths;
}

using Names = std::vector<std::string>;

TEST(WorkingCopyReport, NamesEachFileByItsPathSeparatedByBackslashesBehindTheFolder) {
  ReportedFiles files;
  EXPECT_TRUE(ReadWorkingCopyReport(
      Report({{.Path = "sub/deep/a.CATPart"}, {.Path = "sub\\b.CATPart"}, {.Path = "c"}}).c_str(),
      Repository::Asked, "C:\\wc\\", files));
  EXPECT_EQ(PathsOf(files), (Names{"C:\\wc\\c", "C:\\wc\\sub\\b.CATPart", "C:\\wc\\sub\\deep\\a.CATPart"}));
}

TEST(WorkingCopyReport, AddsToWhatIsThereAndTheFirstEntryOfAPathHolds) {
  ReportedFiles files;
  const auto add = [&](const std::vector<Entry>& entries) {
    EXPECT_TRUE(ReadWorkingCopyReport(Report(entries).c_str(), Repository::Asked, "", files));
  };
  add({{.Path = "a", .Revision = "3"}, {.Path = "a", .Revision = "4"}});
  add({{.Path = "a", .Revision = "5"}, {.Path = "b", .Revision = "6"}});
  EXPECT_EQ(PathsOf(files), (Names{"a", "b"}));
  EXPECT_EQ(files.at("a").Revision, "3");
  EXPECT_EQ(files.at("b").Revision, "6");
}

TEST(WorkingCopyReport, SaysTheLastCommittedRevisionAndNotThatOfTheWorkingCopy) {
  EXPECT_EQ(ReadOne({.Path = "a", .Revision = "9"}).Revision, "9");
}

TEST(WorkingCopyReport, OfAFileThatWasNeverCommittedHasNoRevision) {
  const ReportedFile file = ReadOne({.Path = "a", .Item = "added", .Revision = ""});
  EXPECT_EQ(file.Revision, "");
  EXPECT_TRUE(file.IsVersioned());
}

TEST(WorkingCopyReport, TellsWhatTheWorkingCopyHolds) {
  for (const char* word : {"normal", "added", "deleted", "replaced", "modified", "merged", "conflicted",
                           "missing", "incomplete", "obstructed"}) {
    const ReportedFile file = ReadOne({.Path = "a", .Item = word});
    EXPECT_EQ(file.Item, word);
    EXPECT_TRUE(file.IsVersioned()) << word;
  }
  for (const char* word : {"unversioned", "ignored", "external", "none", ""}) {
    const ReportedFile file = ReadOne(NotHeld("a", word));
    EXPECT_EQ(file.Item, word);
    EXPECT_FALSE(file.IsVersioned()) << word;
  }
}

TEST(WorkingCopyReport, HoldsTheEntriesOfChangelistsBesideTheTarget) {
  const std::string report = kHead + reports::Text(Entry{.Path = "a"}) +
                             "<against\r\n   revision=\"2\"/>\r\n</target>\r\n<changelist\r\n   "
                             "name=\"mine\">\r\n" +
                             reports::Text(LockedHere("sub/b", {"t", "anna"})) +
                             "</changelist>\r\n<changelist\r\n   name=\"other\">\r\n" +
                             reports::Text(Entry{.Path = "c"}) + "</changelist>\r\n</status>\r\n";
  const ReportedFiles files = ReadReport(report);
  EXPECT_EQ(PathsOf(files), (Names{"a", "c", "sub\\b"}));
  EXPECT_TRUE(files.at("sub\\b").IsLockedHere);
}

TEST(WorkingCopyReport, TakesAFileExternalForAFile) {
  const ReportedFiles files =
      ReadReport(kHead +
                 "<entry path=\"e.CATPart\"><wc-status item=\"normal\" file-external=\"true\" revision=\"2\">"
                 "<commit revision=\"1\"/></wc-status></entry>" +
                 kTail);
  EXPECT_TRUE(files.at("e.CATPart").IsVersioned());
  EXPECT_EQ(files.at("e.CATPart").Revision, "1");
}

TEST(WorkingCopyReport, HoldsOwnersAndCommentsOfAnyCharactersAndLines) {
  const Lock lock{"t", "anna <a&b>", "line 1\nline \"2\" > 1\n\n"};
  for (const Entry& entry : {LockedHere("a", lock), LockedElsewhere("a", lock)}) {
    const ReportedFile file = ReadOne(entry);
    EXPECT_EQ(Text(file.LockOwner), lock.Owner);
    EXPECT_EQ(Text(file.LockComment), lock.Comment);
  }
}

TEST(WorkingCopyReport, HoldsPathsWithCharactersThatXMLEscapes) {
  EXPECT_EQ(PathsOf(ReadReport(Report({{.Path = "Rad <&> \"x\" @1 'y'/-a.CATPart"}}))),
            Names{"Rad <&> \"x\" @1 'y'\\-a.CATPart"});
}

TEST(WorkingCopyReport, LeavesOutAnEntryWithoutAPath) {
  const std::string status = "<wc-status item=\"normal\"><commit revision=\"1\"/></wc-status>";
  const std::string report =
      kHead + "<entry>" + status + "</entry><entry path=\"\">" + status + "</entry>" + kTail;
  EXPECT_TRUE(ReadReport(report).empty());
}

TEST(WorkingCopyReport, LeavesOutAnEntryWithoutAStatus) {
  EXPECT_TRUE(ReadReport(kHead + "<entry path=\"a\"></entry><entry path=\"b\"><repos-status item=\"none\">" +
                         reports::Text(Lock{"t", "ben"}) + "</repos-status></entry>" + kTail)
                  .empty());
}

TEST(WorkingCopyReport, OfAStatusWithoutAWordHoldsNothing) {
  EXPECT_FALSE(ReadReport(kHead + "<entry path=\"a\"><wc-status/></entry>" + kTail).at("a").IsVersioned());
}

TEST(WorkingCopyReport, TakesARevisionThatIsNoNumberAsItStands) {
  ZRKCVSStatus record;
  FillRecord(ReadOne({.Path = "a", .Revision = "r1 &amp; x"}), record);
  EXPECT_EQ(Text(record.WorkingRevision), "r1 & x");
  EXPECT_EQ(record.RevisionNumber, 0);
}

TEST(WorkingCopyReport, LeavesOutEntriesWithinEntriesAndThoseAroundThem) {
  const std::string inner = reports::Text(LockedElsewhere("inner", {"t", "ben"}));
  const std::string outer = "<entry path=\"outer\"><wc-status item=\"normal\"/>" + inner + inner + "</entry>";
  EXPECT_EQ(PathsOf(ReadReport(kHead + reports::Text(Entry{.Path = "a"}) + outer + "<x>" + outer + "</x>" +
                               reports::Text(Entry{.Path = "b"}) + kTail)),
            (Names{"a", "b"}));
}

TEST(WorkingCopyReport, GivesALockOfOneEntryToNoOther) {
  const ReportedFiles files =
      ReadReport(Report({{.Path = "a"}, LockedElsewhere("b", {"t", "ben"}), {.Path = "c"}}));
  for (const char* path : {"a", "c"}) {
    EXPECT_FALSE(files.at(path).IsLockedByOther) << path;
    EXPECT_EQ(Text(files.at(path).LockOwner), "") << path;
  }
}

// The fields of a record that stand for what is unknown.
TEST(WorkingCopyReport, FillsARecordAsTheTextFormDoes) {
  ZRKCVSStatus record;
  record.ExistingTags = "tag";
  FillRecord(ReadOne(LockedHere("sub/a", {"t", "anna", "mine"})), record);
  EXPECT_EQ(Text(record.WorkingRevision), "9");
  EXPECT_EQ(record.RevisionNumber, 9);
  EXPECT_TRUE(record.IsVersioned);
  EXPECT_TRUE(record.IsInEntries);
  EXPECT_TRUE(record.IsLockedHere);
  EXPECT_FALSE(record.IsLockedByOther);
  EXPECT_EQ(Text(record.LockOwner), "anna");
  EXPECT_EQ(Text(record.AuxText), "mine");
  EXPECT_EQ(Text(record.ExistingTags), "tag");

  FillRecord(ReadOne({.Path = "a", .Item = "added", .Revision = ""}), record);
  EXPECT_EQ(Text(record.WorkingRevision), "");
  EXPECT_EQ(record.RevisionNumber, 0);
  EXPECT_FALSE(record.IsLockedHere);
  EXPECT_EQ(Text(record.LockOwner), "");
  EXPECT_EQ(Text(record.AuxText), "");

  FillRecord(ReadOne(LockedElsewhere("a", {"t", "ben"})), record);
  EXPECT_FALSE(record.IsLockedHere);
  EXPECT_TRUE(record.IsLockedByOther);
}

// When the host cannot make one of its objects. It makes them in this order.
enum class ReportObject { Document, Root, ListOfEntries, FirstEntry };

// Nothing when the report of "a" and "b" is refused.
std::optional<Names> PathsWithout(ReportObject object) {
  const std::string report = Report({{.Path = "a"}, {.Path = "b"}});
  ReportedFiles files;
  standin::FailObjectAllocation(static_cast<int>(object));
  const bool complete = ReadWorkingCopyReport(report.c_str(), Repository::Asked, "", files);
  standin::FailObjectAllocation(-1);
  EXPECT_TRUE(complete || files.empty());
  return complete ? std::optional(PathsOf(files)) : std::nullopt;
}

TEST(WorkingCopyReport, WithoutItsDocumentOrRootIsRefused) {
  EXPECT_EQ(PathsWithout(ReportObject::Document), std::nullopt);
  EXPECT_EQ(PathsWithout(ReportObject::Root), std::nullopt);
}

TEST(WorkingCopyReport, WithoutTheListOfItsEntriesHoldsNone) {
  EXPECT_EQ(PathsWithout(ReportObject::ListOfEntries), Names{});
}

TEST(WorkingCopyReport, WithoutOneEntryHoldsTheOthers) {
  EXPECT_EQ(PathsWithout(ReportObject::FirstEntry), Names{"b"});
}

// Which lock counts.
const Lock kOwn{"opaquelocktoken:1", "anna", "own"};
const Lock kOthers{"opaquelocktoken:2", "ben", "other's"};

struct LockCase {
  const char* Name;
  std::optional<Lock> Own;
  std::optional<Lock> InRepository;
  Repository Asked;
  bool Here;
  bool Elsewhere;
  std::string Owner;
  std::string Comment;
};

void PrintTo(const LockCase& lockCase, std::ostream* stream) {
  *stream << lockCase.Name;
}

class LocksOfAReport : public testing::TestWithParam<LockCase> {};

TEST_P(LocksOfAReport, ShowTheOneThatCounts) {
  const LockCase& expected = GetParam();
  const ReportedFile file =
      ReadOne({.Path = "a", .Own = expected.Own, .InRepository = expected.InRepository}, expected.Asked);
  EXPECT_EQ(file.IsLockedHere, expected.Here);
  EXPECT_EQ(file.IsLockedByOther, expected.Elsewhere);
  EXPECT_EQ(Text(file.LockOwner), expected.Owner);
  EXPECT_EQ(Text(file.LockComment), expected.Comment);
}

std::string CaseName(const testing::TestParamInfo<LockCase>& info) {
  return info.param.Name;
}

INSTANTIATE_TEST_SUITE_P(
    , LocksOfAReport,
    testing::Values(
        LockCase{"NoLock", {}, {}, Repository::Asked, false, false, "", ""},
        LockCase{"SomebodyElses", {}, kOthers, Repository::Asked, false, true, "ben", "other's"},
        LockCase{"TheSame", kOwn, kOwn, Repository::Asked, true, false, "anna", "own"},
        // The token alone decides, and the working copy's own words are shown.
        LockCase{"TheSameTokenOfAnotherOwner", kOwn, Lock{kOwn.Token, "ben", "other's"}, Repository::Asked,
                 true, false, "anna", "own"},
        LockCase{"Stolen", kOwn, kOthers, Repository::Asked, false, true, "ben", "other's"},
        LockCase{"StolenByTheSameUser", kOwn, Lock{kOthers.Token, "anna", "again"}, Repository::Asked, false,
                 true, "anna", "again"},
        LockCase{"NeitherHasAToken", Lock{"", "anna", "own"}, Lock{"", "ben", "other's"}, Repository::Asked,
                 false, true, "ben", "other's"},
        LockCase{"Broken", kOwn, {}, Repository::Asked, false, false, "", ""},
        LockCase{"RepositoryNotAsked", kOwn, {}, Repository::NotAsked, true, false, "anna", "own"},
        LockCase{"NoneAndRepositoryNotAsked", {}, {}, Repository::NotAsked, false, false, "", ""}),
    CaseName);

}  // namespace
