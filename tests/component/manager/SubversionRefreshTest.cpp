// The refresh of a manager whose working copy is Subversion's.

#include <gtest/gtest.h>

#include "ZRKICVSManager.h"
#include "component/svn/SVNStage.h"
#include "support/DebugMessages.h"

namespace {

using namespace entries;

using Paths = std::vector<std::string>;

class SubversionRefresh : public SVNStage {
protected:
  SubversionRefresh() {
    Products.Add("car", "wc/car.CATProduct")
        .Add("wheel", "wc/wheel.CATPart")
        .Place("car", "wheel.1", "wheel");
    WriteEntries("wc", File(10, "car.CATProduct", "9", "bert") + File(10, "wheel.CATPart", "5", "bert"));
  }

  ZRKICVSManager_var Manager() const { return Products.At("car"); }
};

TEST_F(SubversionRefresh, BringsTheManagersWholeTreeUpToDate) {
  Manager()->RefreshStatus(Products.At("car"));
  EXPECT_EQ(Arguments(), TreeReports({"wc/car.CATProduct", "wc/wheel.CATPart"}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), (StatusAttributes{"9", "ReadOnly", "", ""}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/wheel.1")), (StatusAttributes{"5", "ReadOnly", "", ""}));
}

TEST_F(SubversionRefresh, IgnoresItsArgument) {
  Products.Add("other", "wc/other.CATPart");
  for (const CATBaseUnknown_var& root :
       {CATBaseUnknown_var(), Products.At("other"), Products.At("car/wheel.1")}) {
    Client.ClearRuns();
    Manager()->RefreshStatus(root);
    EXPECT_EQ(Arguments(), TreeReports({"wc/car.CATProduct", "wc/wheel.CATPart"}));
  }
}

TEST_F(SubversionRefresh, OfAnInstancesManagerIsThatOfTheInstance) {
  const ZRKICVSManager_var manager = Products.At("car/wheel.1");
  manager->RefreshStatus(Products.At("car"));
  EXPECT_EQ(Redrawn.Paths(), Paths{"car/wheel.1"});
}

TEST_F(SubversionRefresh, RunsInTheFolderOfTheProductExaminedLast) {
  Products.Add("axle", "wc/sub/axle.CATProduct").Place("car", "axle.1", "axle");
  WriteEntries("wc/sub", File(10, "axle.CATProduct", "4", "bert"));
  Manager()->RefreshStatus(nullptr);
  ASSERT_EQ(Client.Runs().size(), 6U);
  for (const ClientRun& run : Client.Runs()) EXPECT_EQ(run.Folder, Folder.Host("wc/sub"));
}

TEST_F(SubversionRefresh, AsksEveryTimeAnew) {
  Manager()->RefreshStatus(nullptr);
  Client.ClearRuns();
  WriteEntries("wc", File(10, "car.CATProduct", "10", "bert"));
  Manager()->RefreshStatus(nullptr);
  EXPECT_EQ(Arguments(), TreeReports({"wc/car.CATProduct", "wc/wheel.CATPart"}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car"))->Revision, "10");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/wheel.1")), std::nullopt);
}

TEST_F(SubversionRefresh, TakesTheSubversionRouteInAFolderOfBoth) {
  WriteFile(Folder / "wc" / "CVS" / "Repository", "wc\n");
  WriteFile(Folder / "wc" / "CVS" / "Root", "/cvs\n");
  Manager()->RefreshStatus(Products.At("car"));
  EXPECT_EQ(Arguments(), TreeReports({"wc/car.CATProduct", "wc/wheel.CATPart"}));
  for (const ClientRun& run : Client.Runs()) EXPECT_EQ(run.Program, "svn.exe");
}

// A manager that was made before the folder became a working copy.
class SubversionFoundLate : public SubversionRefresh {
protected:
  SubversionFoundLate() {
    std::filesystem::remove(Folder / "wc" / ".svn" / "entries");
    LateManager = Manager();
    WriteEntries("wc", File(10, "car.CATProduct", "9", "bert"));
  }

  ZRKICVSManager_var LateManager;
};

TEST_F(SubversionFoundLate, IsFoundByTheFirstRefreshAndUsedByTheSecond) {
  const DebugMessages messages;
  LateManager->RefreshStatus(Products.At("car"));
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_TRUE(Redrawn.Paths().empty());
  EXPECT_TRUE(messages.All().empty());

  LateManager->RefreshStatus(Products.At("car"));
  EXPECT_EQ(Arguments(), TreeReports({"wc/car.CATProduct", "wc/wheel.CATPart"}));
}

TEST_F(SubversionFoundLate, MakesEditAndUneditFailUntilThen) {
  EXPECT_EQ(LateManager->Edit(), E_FAIL);
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_EQ(LateManager->Edit(), S_OK);
  EXPECT_EQ(Arguments().at(0).at(0), "update");
}

}  // namespace
