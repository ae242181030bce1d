// Status reports that are cut off, mixed with other text, in other encodings, or very large.

#include <gtest/gtest.h>

#include <algorithm>

#include "support/ClientReports.h"
#include "svn/WorkingCopyReport.h"

namespace {

using namespace reports;
using zrk::svn::ReadWorkingCopyReport;
using zrk::svn::ReportedFiles;
using zrk::svn::Repository;

const std::string kReport = Report({{.Path = "sub/a", .Revision = "7"},
                                    LockedElsewhere("b", {"t", "ben", "line 1\nline <2>"}),
                                    NotHeld("c", "unversioned")});
const std::string kWarning = "svn: warning: W155010: The node 'x' was not found.\r\n";

// Nothing when the report is none.
std::optional<ReportedFiles> Read(const std::string& report) {
  ReportedFiles files;
  const bool complete = ReadWorkingCopyReport(report.c_str(), Repository::Asked, "", files);
  EXPECT_TRUE(complete || files.empty()) << "a report that is refused adds nothing";
  if (!complete) return std::nullopt;
  return files;
}

void ExpectWhole(const std::string& report) {
  const auto files = Read(report);
  ASSERT_TRUE(files) << report;
  EXPECT_EQ(files->size(), 3U);
  EXPECT_EQ(files->at("sub\\a").Revision, "7");
  EXPECT_STREQ(files->at("b").LockOwner.ConvertToChar(), "ben");
}

TEST(MalformedWorkingCopyReport, IsRefusedWhereverItIsCutOff) {
  const std::size_t complete = kReport.rfind('>') + 1;
  for (std::size_t length = 0; length < complete; ++length) {
    EXPECT_FALSE(Read(kReport.substr(0, length))) << length;
    EXPECT_FALSE(Read(kReport.substr(0, length) + kWarning)) << length;
  }
  ExpectWhole(kReport.substr(0, complete));
}

TEST(MalformedWorkingCopyReport, IsRefusedWhereverItsBeginningIsMissing) {
  for (std::size_t start = 1; start < kReport.size(); ++start) EXPECT_FALSE(Read(kReport.substr(start)));
}

TEST(MalformedWorkingCopyReport, LeavesWhatIsKnownAsItWas) {
  ReportedFiles files;
  files["sub\\a"].Revision = "1";
  EXPECT_FALSE(ReadWorkingCopyReport((kReport + "</status>").c_str(), Repository::Asked, "", files));
  ASSERT_EQ(files.size(), 1U);
  EXPECT_EQ(files.at("sub\\a").Revision, "1");
}

TEST(MalformedWorkingCopyReport, MayHaveWarningsAroundIt) {
  ExpectWhole(kWarning + kReport);
  ExpectWhole(kReport + kWarning);
  ExpectWhole("<x> & </" + kWarning + kReport + "<status> & " + kWarning);
}

TEST(MalformedWorkingCopyReport, MayHaveAWarningBetweenItsElements) {
  ExpectWhole(kHead + kWarning + kReport.substr(kHead.size()));
}

TEST(MalformedWorkingCopyReport, IsRefusedWithAWarningInsideATag) {
  std::string report = kReport;
  report.insert(report.find("item="), kWarning);
  EXPECT_FALSE(Read(report));
}

TEST(MalformedWorkingCopyReport, OfTwoRunsIsRefused) {
  EXPECT_FALSE(Read(kReport + kReport));
}

TEST(MalformedWorkingCopyReport, MayHaveAByteOrderMark) {
  ExpectWhole("\xEF\xBB\xBF" + kReport);
}

TEST(MalformedWorkingCopyReport, IsReadInTheEncodingThatItDeclares) {
  const auto files = Read(
      "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><status><entry path=\"a\"><wc-status item=\"normal\">"
      "<commit revision=\"7\"/></wc-status></entry></status>");
  ASSERT_TRUE(files);
  EXPECT_EQ(files->at("a").Revision, "7");
  std::string report = kReport;
  report.replace(report.find("UTF-8"), 5, "x-unknown");
  EXPECT_FALSE(Read(report));
  report = kReport;
  report.replace(report.find("UTF-8"), 5, "UTF-16");
  EXPECT_FALSE(Read(report));
}

TEST(MalformedWorkingCopyReport, IsRefusedWithBytesThatAreNoCharacters) {
  EXPECT_FALSE(Read(Report({{.Path = "\xFC"}})));
  EXPECT_FALSE(Read(Report({{.Path = "\x01"}})));
  EXPECT_FALSE(Read(Report({LockedElsewhere("a", {"t", "\xC3"})})));
}

TEST(MalformedWorkingCopyReport, IsRefusedInTwoByteCharacters) {
  std::string wide = "\xFF\xFE";
  for (const char character : kReport) wide += std::string(1, character) + '\1';
  EXPECT_FALSE(Read(wide));
}

TEST(MalformedWorkingCopyReport, OfAnotherKindHoldsNothing) {
  EXPECT_FALSE(Read(""));
  EXPECT_FALSE(Read("\r\n"));
  EXPECT_FALSE(Read(kWarning));
  EXPECT_FALSE(Read("</status><?xml"));
  EXPECT_FALSE(Read("<status></status>"));
  EXPECT_FALSE(Read("<?xml version=\"1.0\"?><html><body>502</body></html>"));
  const auto files = Read("<?xml version=\"1.0\"?><status/><status></status>");
  EXPECT_FALSE(files);
}

TEST(MalformedWorkingCopyReport, OfNoEntriesIsOneAllTheSame) {
  const auto files = Read(Report({}));
  ASSERT_TRUE(files);
  EXPECT_TRUE(files->empty());
}

TEST(LargeWorkingCopyReport, IsReadToItsEnd) {
  std::vector<Entry> entries;
  for (int i = 0; i < 10'000; ++i) entries.push_back({.Path = "sub/a" + std::to_string(i), .Revision = "7"});
  entries.push_back(LockedElsewhere("last", {"t", "ben"}));
  const std::string report = Report(entries);
  const auto files = Read(report);
  ASSERT_TRUE(files);
  EXPECT_EQ(files->size(), entries.size());
  EXPECT_EQ(files->at("sub\\a9999").Revision, "7");
  EXPECT_TRUE(files->at("last").IsLockedByOther);
  EXPECT_FALSE(Read(report.substr(0, report.size() - 5)));
}

// Entries that stand in one another, tens of thousands of them: what looks below each of them does not end
// in good time.
TEST(LargeWorkingCopyReport, OfManyLevelsIsReadToItsEnd) {
  constexpr int kLevels = 30'000;
  std::string opening;
  std::string closing;
  for (int level = 0; level < kLevels; ++level) {
    opening += "<entry path=\"e\"><wc-status item=\"normal\"><lock>";
    closing += "</lock></wc-status></entry>";
  }
  const auto files = Read(kHead + opening + closing + Text(Entry{.Path = "a"}) + kTail);
  ASSERT_TRUE(files);
  EXPECT_EQ(files->size(), 1U);
  EXPECT_EQ(files->count("a"), 1U);
}

TEST(LargeWorkingCopyReport, MayHoldOneLongValue) {
  const std::string comment(3'000'000, 'c');
  const auto files = Read(Report({LockedElsewhere("a", {"t", "ben", comment})}));
  ASSERT_TRUE(files);
  EXPECT_EQ(files->at("a").LockComment, CATUnicodeString(comment.c_str()));
}

}  // namespace
