#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/manager/CVSStage.h"
#include "support/CapturedOutput.h"
#include "windows/LaunchLog.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using zrk::sample::kSeparatorLine;
using zrk::sample::StatusBlock;

namespace {

class RefreshTables : public testing::Test, protected CVSStage {
protected:
  RefreshTables() { Products.Add("car", "proj/car").Add("axle", "proj/axle").Place("car", "a", "axle"); }

  std::string Key(const std::string& path) { return SandboxRoot() + path; }

  const CapturedOutput quiet_;
};

}  // namespace

TEST_F(RefreshTables, HoldBothReportsByFullLocalPath) {
  const std::string car = StatusBlock("proj/car", "1.1");
  const std::string axle = StatusBlock("proj/axle", "1.2");
  Client.When("status -v").Out(kSeparatorLine + car + kSeparatorLine + axle);
  Client.When("-n edit").Out("proj/axle\tbert\thost\r\n");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("car"));
  EXPECT_THAT(manager.StatusBlockTable,
              ElementsAre(Pair(Key("proj\\axle"), axle), Pair(Key("proj\\car"), car)));
  EXPECT_THAT(manager.EditTable, ElementsAre(Pair(Key("proj\\axle"), "proj/axle\nbert\nhost")));
}

TEST_F(RefreshTables, HoldWhatTheClientWroteToStandardErrorToo) {
  Client.When("-n edit").Error("proj/axle\tbert\r\n");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("car"));
  EXPECT_THAT(manager.EditTable, ElementsAre(Pair(Key("proj\\axle"), "proj/axle\nbert")));
}

TEST_F(RefreshTables, KeepTheFirstOfTwoBlocksAndOfTwoLines) {
  const std::string first = StatusBlock("proj/car", "1.1");
  Client.When("status -v").Out(first + kSeparatorLine + StatusBlock("proj/car", "1.2"));
  Client.When("-n edit").Out("proj/car\tanna\r\nproj/car\tbert\r\n");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("car"));
  EXPECT_THAT(manager.StatusBlockTable, ElementsAre(Pair(Key("proj\\car"), first)));
  EXPECT_THAT(manager.EditTable, ElementsAre(Pair(Key("proj\\car"), "proj/car\nanna")));
}

TEST_F(RefreshTables, OfStatusBlocksIsEmptyWhenTheFilesAreCollected) {
  ZRKECVSManager manager(Product("car"));
  std::vector<std::size_t> blocks;
  std::vector<std::size_t> lines;
  standin::SetWorkModeListener([&](const CATBaseUnknown_var&, int) {
    blocks.push_back(manager.StatusBlockTable.size());
    lines.push_back(manager.EditTable.size());
  });
  manager.StatusBlockTable = {{"C:\\a", "b"}};
  manager.EditTable = {{"C:\\a", "b"}};
  manager.RefreshStatus(Root("car"));
  standin::SetWorkModeListener({});
  EXPECT_THAT(blocks, ElementsAre(0u, 0u));
  EXPECT_THAT(lines, ElementsAre(1u, 1u));
}

// A client stops at its question, and is not asked on; that of the next command line says all it has to.
TEST_F(RefreshTables, HoldAllThatOneCommandLineReportsBehindTheQuestionOfAnother) {
  const std::string first(20'000, 'a');
  const std::string second(20'000, 'b');
  Products.Add({.Name = "one", .Document = Folder.Host("proj") + "\\" + first});
  Products.Add({.Name = "two", .Document = Folder.Host("proj") + "\\" + second});
  Products.Place("car", "1", "one").Place("car", "2", "two");
  const std::string block = StatusBlock("proj/two", "1.2");
  const std::string filler(std::size_t{3} * 4096, 'x');
  Client.When("status -v proj\\b").Out(filler + kSeparatorLine + block);
  Client.When("status -v").Out("a has been modified; revert changes? ");
  Client.When("-n edit proj\\b").Out(filler + "\r\nproj/two\tbert\r\n");
  Client.When("-n edit").Out("revert changes\r\n");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("car"));
  EXPECT_THAT(manager.StatusBlockTable, testing::Contains(Pair(Key("proj\\two"), block)));
  EXPECT_THAT(manager.EditTable, testing::Contains(Pair(Key("proj\\two"), "proj/two\nbert")));
}

TEST_F(RefreshTables, AreFilledAnewByEachRefresh) {
  Client.When("status -v").Once().Out(StatusBlock("proj/car", "1.1"));
  Client.When("-n edit").Once().Out("proj/car\tanna\r\n");
  Client.When("status -v").Out(StatusBlock("proj/car", "1.2"));
  Client.When("-n edit").Out("proj/car\tbert\r\n");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("car"));
  manager.RefreshStatus(Root("car"));
  EXPECT_THAT(manager.StatusBlockTable, ElementsAre(Pair(Key("proj\\car"), StatusBlock("proj/car", "1.2"))));
  EXPECT_THAT(manager.EditTable, ElementsAre(Pair(Key("proj\\car"), "proj/car\nbert")));
}

TEST_F(RefreshTables, AreEmptyWhenTheClientSaysNothing) {
  ZRKECVSManager manager(Product("car"));
  manager.StatusBlockTable["old"] = "block";
  manager.EditTable["old"] = "line";
  manager.RefreshStatus(Root("car"));
  EXPECT_THAT(manager.StatusBlockTable, IsEmpty());
  EXPECT_THAT(manager.EditTable, IsEmpty());
}

// Whoever reads them while the client runs finds the blocks gone, and the lines of the refresh before.
TEST_F(RefreshTables, AreEmptiedTheBlocksBeforeTheStatusRunsAndTheLinesAfterTheEditHasRun) {
  const std::string block = StatusBlock("proj/car", "1.1");
  Client.When("status -v").Out(block);
  Client.When("-n edit").Out("proj/car\tbert\r\n");
  ZRKECVSManager manager(Product("car"));
  manager.StatusBlockTable = {{"old", "block"}};
  manager.EditTable = {{"old", "line"}};
  std::vector<std::pair<zrk::cvs::ReportTable, zrk::cvs::ReportTable>> atLaunches;
  standin::SetLaunchListener(
      [&](const standin::Launch&) { atLaunches.emplace_back(manager.StatusBlockTable, manager.EditTable); });
  manager.RefreshStatus(Root("car"));
  standin::SetLaunchListener({});
  const auto oldLines = ElementsAre(Pair("old", "line"));
  EXPECT_THAT(atLaunches, ElementsAre(Pair(IsEmpty(), oldLines),
                                      Pair(ElementsAre(Pair(Key("proj\\car"), block)), oldLines)));
  EXPECT_THAT(manager.EditTable, ElementsAre(Pair(Key("proj\\car"), "proj/car\nbert")));
}

TEST_F(RefreshTables, HoldNoBlockWithoutItsLabel) {
  Client.When("status -v").Out("cvs status: Examining proj\r\n=====\r\n");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("car"));
  EXPECT_THAT(manager.StatusBlockTable, IsEmpty());
}

TEST_F(RefreshTables, HoldTheReportsOfAllBatches) {
  const std::string first(20'000, 'a');
  const std::string second(20'000, 'b');
  Products.Add({.Name = "one", .Document = Folder.Host("proj") + "\\" + first});
  Products.Add({.Name = "two", .Document = Folder.Host("proj") + "\\" + second});
  Products.Place("axle", "1", "one").Place("axle", "2", "two");
  // The first batch ends in the middle of the second one's block and line.
  Client.When("status -v proj\\car").Out(StatusBlock("proj/car", "1.1") + "=====File: b\tStatus: c\r\n");
  Client.When("status -v").Out("Repository revision:\t1.2\t/cvs/root/proj/b,v\r\n");
  Client.When("-n edit proj\\car").Out("proj/car\tanna\r\nproj/");
  Client.When("-n edit").Out("b\tbert\r\n");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("car"));
  EXPECT_EQ(Client.Runs().size(), 4u);
  EXPECT_THAT(manager.StatusBlockTable,
              ElementsAre(Pair(Key("proj\\b"),
                               "File: b\tStatus: c\r\nRepository revision:\t1.2\t/cvs/root/proj/b,v\r\n"),
                          Pair(Key("proj\\car"), StatusBlock("proj/car", "1.1"))));
  EXPECT_THAT(manager.EditTable,
              ElementsAre(Pair(Key("proj\\b"), "proj/b\nbert"), Pair(Key("proj\\car"), "proj/car\nanna")));
}
