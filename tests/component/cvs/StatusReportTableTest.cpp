#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cvs/ReportTables.h"
#include "support/ClientReports.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using zrk::cvs::ReportTable;
using zrk::sample::kSeparatorLine;
using zrk::sample::StatusBlock;

namespace {

constexpr const char* kSandboxRoot = "C:\\w\\";

ReportTable FiledBlocks(const std::string& report, const char* sandboxRoot = kSandboxRoot) {
  ReportTable table;
  zrk::cvs::AddStatusReport(report, sandboxRoot, zrk::sample::kCVSRoot, table);
  return table;
}

}  // namespace

TEST(StatusReportTable, FilesEachBlockUnderItsFullLocalPath) {
  const std::string a = StatusBlock("proj/a.CATPart", "1.1");
  const std::string b = StatusBlock("proj/sub/b c.CATPart", "1.2");
  EXPECT_THAT(FiledBlocks(kSeparatorLine + a + kSeparatorLine + b),
              ElementsAre(Pair("C:\\w\\proj\\a.CATPart", a), Pair("C:\\w\\proj\\sub\\b c.CATPart", b)));
}

TEST(StatusReportTable, ABlockRunsFromFileUpToTheSeparatorWithAllItsLineEnds) {
  EXPECT_THAT(FiledBlocks("noise\r\nFile: x\r\n\r\nmore\r\n=====\r\n"),
              ElementsAre(Pair("C:\\w\\", "File: x\r\n\r\nmore\r\n")));
}

TEST(StatusReportTable, TheLastBlockRunsToTheEnd) {
  EXPECT_THAT(FiledBlocks("File: x\r\nFile: y"), ElementsAre(Pair("C:\\w\\", "File: x\r\nFile: y")));
}

TEST(StatusReportTable, WithoutABlockNothingIsFiled) {
  EXPECT_THAT(FiledBlocks(""), IsEmpty());
  EXPECT_THAT(FiledBlocks("cvs status: Examining .\r\n=====\r\n=====\r\n"), IsEmpty());
}

TEST(StatusReportTable, OfTwoBlocksForOneFileTheFirstHolds) {
  const std::string first = StatusBlock("proj/a.CATPart", "1.1");
  const std::string second = StatusBlock("proj/a.CATPart", "1.2");
  EXPECT_THAT(FiledBlocks(first + kSeparatorLine + second),
              ElementsAre(Pair("C:\\w\\proj\\a.CATPart", first)));
}

TEST(StatusReportTable, WhatIsFiledAlreadyStays) {
  ReportTable table{{"C:\\w\\proj\\a.CATPart", "old"}};
  zrk::cvs::AddStatusReport(StatusBlock("proj/a.CATPart", "1.1"), kSandboxRoot, zrk::sample::kCVSRoot, table);
  EXPECT_THAT(table, ElementsAre(Pair("C:\\w\\proj\\a.CATPart", "old")));
}

TEST(StatusReportTable, BlocksWithoutARepositoryFileShareTheWorkingFolderAsKey) {
  EXPECT_THAT(FiledBlocks("File: one\r\n=====File: two\r\n"), ElementsAre(Pair("C:\\w\\", "File: one\r\n")));
}

TEST(StatusReportTable, LettersOfDifferentCaseAreDifferentFiles) {
  EXPECT_EQ(FiledBlocks(StatusBlock("proj/a", "1.1") + kSeparatorLine + StatusBlock("Proj/a", "1.1")).size(),
            2u);
}

TEST(StatusReportTable, TheWorkingFolderStandsInTheKeyAsItIs) {
  EXPECT_THAT(FiledBlocks(StatusBlock("a", "1.1"), "C:/w\\"), ElementsAre(Pair("C:/w\\a", testing::_)));
}

TEST(StatusReportTable, ASeparatorWithinTheLabelsOwnCharactersIsLookedForBehindThem) {
  EXPECT_THAT(FiledBlocks("File:=====File:b"), ElementsAre(Pair("C:\\w\\", "File:")));
}

TEST(StatusReportTable, ANextBlockMayStartRightBehindTheSeparator) {
  const std::string b = StatusBlock("b", "1.2");
  EXPECT_THAT(FiledBlocks(StatusBlock("a", "1.1") + "=====" + b), testing::Contains(Pair("C:\\w\\b", b)));
}

TEST(StatusReportTable, ALabelWithinABlockStartsNoOther) {
  const std::string block =
      "File: a\r\nRepository revision:\t1.1\t/cvs/root/a,v\r\n"
      "File: b\r\nRepository revision:\t1.2\t/cvs/root/b,v\r\n";
  EXPECT_THAT(FiledBlocks(block + kSeparatorLine), ElementsAre(Pair("C:\\w\\a", block)));
}

TEST(StatusReportTable, FourEqualsSignsEndNoBlock) {
  const std::string block = "File: a\r\n====\r\nRepository revision:\t1.1\t/cvs/root/a,v\r\n";
  EXPECT_THAT(FiledBlocks(block + "=====\r\n"), ElementsAre(Pair("C:\\w\\a", block)));
}
