#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cvs/ReportTables.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;
using zrk::cvs::ReportTable;

namespace {

ReportTable FiledLines(const std::string& report, const char* sandboxRoot = "C:\\w\\") {
  ReportTable table;
  zrk::cvs::AddEditReport(report, sandboxRoot, table);
  return table;
}

}  // namespace

TEST(EditReportTable, FilesEachLineUnderItsFullLocalPathWithTabsAsLineFeeds) {
  EXPECT_THAT(FiledLines("proj/a b.CATPart\tanna\thost\r\nproj/sub/c\tbert\r\n"),
              ElementsAre(Pair("C:\\w\\proj\\a b.CATPart", "proj/a b.CATPart\nanna\nhost"),
                          Pair("C:\\w\\proj\\sub\\c", "proj/sub/c\nbert")));
}

TEST(EditReportTable, ALineWithoutATabIsItsOwnName) {
  EXPECT_THAT(FiledLines("proj/a\r\n"), ElementsAre(Pair("C:\\w\\proj\\a", "proj/a")));
}

TEST(EditReportTable, ALineLosesItsLastCharacterWhateverItIs) {
  EXPECT_THAT(FiledLines("proj/ab\n"), ElementsAre(Pair("C:\\w\\proj\\a", "proj/a")));
}

TEST(EditReportTable, TheFirstLineOfAFileHolds) {
  EXPECT_THAT(FiledLines("a\tanna\r\na\tbert\r\n"), ElementsAre(Pair("C:\\w\\a", "a\nanna")));
}

TEST(EditReportTable, WhatIsFiledAlreadyStays) {
  ReportTable table{{"C:\\w\\a", "old"}};
  zrk::cvs::AddEditReport("a\tanna\r\n", "C:\\w\\", table);
  EXPECT_THAT(table, ElementsAre(Pair("C:\\w\\a", "old")));
}

TEST(EditReportTable, TextBehindTheLastLineEndIsNoLine) {
  EXPECT_THAT(FiledLines("a\tanna\r\nb\tbert\r"), ElementsAre(Pair("C:\\w\\a", "a\nanna")));
  EXPECT_THAT(FiledLines("a\tanna"), IsEmpty());
  EXPECT_THAT(FiledLines(""), IsEmpty());
}

TEST(EditReportTable, FurtherEditorsOfAFileStandUnderTheWorkingFolder) {
  EXPECT_THAT(FiledLines("a\tanna\r\n\tbert\thost\r\n"),
              ElementsAre(Pair("C:\\w\\", "\nbert\nhost"), Pair("C:\\w\\a", "a\nanna")));
}

TEST(EditReportTable, AnEmptyLineIsAllTheRestOfTheReport) {
  EXPECT_THAT(FiledLines("a\tanna\r\n\nb\tbert\r\n"),
              UnorderedElementsAre(Pair("C:\\w\\a", "a\nanna"), Pair("C:\\w\\\nb", "\nb\nbert\r\n"),
                                   Pair("C:\\w\\b", "b\nbert")));
}

TEST(EditReportTable, AnEmptyLineAtTheStartIsTheWholeReport) {
  EXPECT_THAT(FiledLines("\nb/c\tbert\r\n"), UnorderedElementsAre(Pair("C:\\w\\\nb\\c", "\nb/c\nbert\r\n"),
                                                                  Pair("C:\\w\\b\\c", "b/c\nbert")));
}

TEST(EditReportTable, ALineFeedAloneIsALineOfItself) {
  EXPECT_THAT(FiledLines("\n"), ElementsAre(Pair("C:\\w\\\n", "\n")));
}

TEST(EditReportTable, EachOfSeveralEmptyLinesIsTheRestFromThereOn) {
  EXPECT_THAT(FiledLines("\n\n\n"),
              UnorderedElementsAre(Pair("C:\\w\\\n\n\n", "\n\n\n"), Pair("C:\\w\\\n\n", "\n\n"),
                                   Pair("C:\\w\\\n", "\n")));
}

TEST(EditReportTable, ALineOfOneCharacterIsEmptyAndStandsUnderTheWorkingFolder) {
  EXPECT_THAT(FiledLines("\r\na\tanna\r\n"), ElementsAre(Pair("C:\\w\\", ""), Pair("C:\\w\\a", "a\nanna")));
}

TEST(EditReportTable, SlashesOfTheWorkingFolderTurnTooButNotThoseOfTheLine) {
  EXPECT_THAT(FiledLines("p/a\t/home/anna\r\n", "C:/w/"),
              ElementsAre(Pair("C:\\w\\p\\a", "p/a\n/home/anna")));
}

TEST(EditReportTable, LettersOfDifferentCaseAreDifferentFiles) {
  EXPECT_EQ(FiledLines("a\tanna\r\nA\tanna\r\n").size(), 2u);
}

TEST(EditReportTable, AnEmptyLineAtTheStartIsTheWholeReportHoweverLongThatIs) {
  const std::string report = "\na\t" + std::string(1 << 20, 'x') + "\r\n";
  const ReportTable table = FiledLines(report);
  EXPECT_EQ(table.size(), 2u);
  EXPECT_EQ(table.at("C:\\w\\\na").size(), report.size());
}

// Filed as it stands, a megabyte of empty lines would take half a terabyte.
TEST(EditReportTable, EmptyLinesAreFiledUntilTheyTookTheReportsLengthAnd64KiBMore) {
  constexpr std::size_t kFlood = 4096;
  const ReportTable table = FiledLines(std::string(kFlood, '\n') + "a\tanna\r\n");
  // Each takes a byte less than the one before; 17 of them fit, and the line that is not empty.
  EXPECT_EQ(table.size(), 18u);
  EXPECT_EQ(table.at("C:\\w\\a"), "a\nanna");
}
