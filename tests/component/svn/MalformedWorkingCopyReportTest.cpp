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

const std::string kWorkingCopyReport = Report({{.Path = "sub/a", .Revision = "7"},
                                               LockedElsewhere("b", {"t", "ben", "line 1\nline <2>"}),
                                               NotHeld("c", "unversioned")});
const std::string kWarning = "svn: warning: W155010: The node 'x' was not found.\r\n";

// Nothing when the report is none.
std::optional<ReportedFiles> ReadWhole(const std::string& report) {
  ReportedFiles files;
  const bool complete = ReadWorkingCopyReport(report.c_str(), Repository::Asked, "", files);
  EXPECT_TRUE(complete || files.empty()) << "a report that is refused adds nothing";
  if (!complete) return std::nullopt;
  return files;
}

void ExpectWhole(const std::string& report) {
  const auto files = ReadWhole(report);
  ASSERT_TRUE(files) << report;
  EXPECT_EQ(files->size(), 3U);
  EXPECT_EQ(files->at("sub\\a").Revision, "7");
  EXPECT_STREQ(files->at("b").LockOwner.ConvertToChar(), "ben");
}

TEST(MalformedWorkingCopyReport, IsRefusedWhereverItIsCutOff) {
  const std::size_t complete = kWorkingCopyReport.rfind('>') + 1;
  for (std::size_t length = 0; length < complete; ++length) {
    EXPECT_FALSE(ReadWhole(kWorkingCopyReport.substr(0, length))) << length;
    EXPECT_FALSE(ReadWhole(kWorkingCopyReport.substr(0, length) + kWarning)) << length;
  }
  ExpectWhole(kWorkingCopyReport.substr(0, complete));
}

TEST(MalformedWorkingCopyReport, IsRefusedWhereverItsBeginningIsMissing) {
  for (std::size_t start = 1; start < kWorkingCopyReport.size(); ++start)
    EXPECT_FALSE(ReadWhole(kWorkingCopyReport.substr(start)));
}

TEST(MalformedWorkingCopyReport, LeavesWhatIsKnownAsItWas) {
  ReportedFiles files;
  files["sub\\a"].Revision = "1";
  EXPECT_FALSE(
      ReadWorkingCopyReport((kWorkingCopyReport + "</status>").c_str(), Repository::Asked, "", files));
  ASSERT_EQ(files.size(), 1U);
  EXPECT_EQ(files.at("sub\\a").Revision, "1");
}

TEST(MalformedWorkingCopyReport, MayHaveWarningsAroundIt) {
  ExpectWhole(kWarning + kWorkingCopyReport);
  ExpectWhole(kWorkingCopyReport + kWarning);
  ExpectWhole("<x> & </" + kWarning + kWorkingCopyReport + "<status> & " + kWarning);
}

TEST(MalformedWorkingCopyReport, MayHaveAWarningBetweenItsElements) {
  ExpectWhole(kHead + kWarning + kWorkingCopyReport.substr(kHead.size()));
}

TEST(MalformedWorkingCopyReport, IsRefusedWithAWarningInsideATag) {
  std::string report = kWorkingCopyReport;
  report.insert(report.find("item="), kWarning);
  EXPECT_FALSE(ReadWhole(report));
}

TEST(MalformedWorkingCopyReport, OfTwoRunsIsRefused) {
  EXPECT_FALSE(ReadWhole(kWorkingCopyReport + kWorkingCopyReport));
}

TEST(MalformedWorkingCopyReport, MayHaveAByteOrderMark) {
  ExpectWhole("\xEF\xBB\xBF" + kWorkingCopyReport);
}

TEST(MalformedWorkingCopyReport, IsReadInTheEncodingThatItDeclares) {
  const auto files = ReadWhole(
      "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><status><entry path=\"a\"><wc-status item=\"normal\">"
      "<commit revision=\"7\"/></wc-status></entry></status>");
  ASSERT_TRUE(files);
  EXPECT_EQ(files->at("a").Revision, "7");
  std::string report = kWorkingCopyReport;
  report.replace(report.find("UTF-8"), 5, "x-unknown");
  EXPECT_FALSE(ReadWhole(report));
  report = kWorkingCopyReport;
  report.replace(report.find("UTF-8"), 5, "UTF-16");
  EXPECT_FALSE(ReadWhole(report));
}

TEST(MalformedWorkingCopyReport, IsRefusedWithBytesThatAreNoCharacters) {
  EXPECT_FALSE(ReadWhole(Report({{.Path = "\xFC"}})));
  EXPECT_FALSE(ReadWhole(Report({{.Path = "\x01"}})));
  EXPECT_FALSE(ReadWhole(Report({LockedElsewhere("a", {"t", "\xC3"})})));
}

TEST(MalformedWorkingCopyReport, IsRefusedInTwoByteCharacters) {
  std::string wide = "\xFF\xFE";
  for (const char character : kWorkingCopyReport) wide += std::string(1, character) + '\1';
  EXPECT_FALSE(ReadWhole(wide));
}

TEST(MalformedWorkingCopyReport, OfAnotherKindHoldsNothing) {
  EXPECT_FALSE(ReadWhole(""));
  EXPECT_FALSE(ReadWhole("\r\n"));
  EXPECT_FALSE(ReadWhole(kWarning));
  EXPECT_FALSE(ReadWhole("</status><?xml"));
  EXPECT_FALSE(ReadWhole("<status></status>"));
  EXPECT_FALSE(ReadWhole("<?xml version=\"1.0\"?><html><body>502</body></html>"));
  const auto files = ReadWhole("<?xml version=\"1.0\"?><status/><status></status>");
  EXPECT_FALSE(files);
}

// Well-formed as they are, but nothing that the client ends a report with.
TEST(MalformedWorkingCopyReport, IsRefusedWithoutItsEnd) {
  EXPECT_FALSE(ReadWhole(kWarning + "<?xml version=\"1.0\"?><status/>"));
  EXPECT_FALSE(ReadWhole("</status>" + kWarning + "<?xml version=\"1.0\"?><status/>"));
}

TEST(MalformedWorkingCopyReport, OfNoEntriesIsOneAllTheSame) {
  const auto files = ReadWhole(Report({}));
  ASSERT_TRUE(files);
  EXPECT_TRUE(files->empty());
}

TEST(LargeWorkingCopyReport, IsReadToItsEnd) {
  std::vector<Entry> entries;
  for (int i = 0; i < 10'000; ++i) entries.push_back({.Path = "sub/a" + std::to_string(i), .Revision = "7"});
  entries.push_back(LockedElsewhere("last", {"t", "ben"}));
  const std::string report = Report(entries);
  const auto files = ReadWhole(report);
  ASSERT_TRUE(files);
  EXPECT_EQ(files->size(), entries.size());
  EXPECT_EQ(files->at("sub\\a9999").Revision, "7");
  EXPECT_TRUE(files->at("last").IsLockedByOther);
  EXPECT_FALSE(ReadWhole(report.substr(0, report.size() - 5)));
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
  const auto files = ReadWhole(kHead + opening + closing + Text(Entry{.Path = "a"}) + kTail);
  ASSERT_TRUE(files);
  EXPECT_EQ(files->size(), 1U);
  EXPECT_EQ(files->count("a"), 1U);
}

TEST(LargeWorkingCopyReport, MayHoldOneLongValue) {
  const std::string comment(3'000'000, 'c');
  const auto files = ReadWhole(Report({LockedElsewhere("a", {"t", "ben", comment})}));
  ASSERT_TRUE(files);
  EXPECT_EQ(files->at("a").LockComment, CATUnicodeString(comment.c_str()));
}

}  // namespace
