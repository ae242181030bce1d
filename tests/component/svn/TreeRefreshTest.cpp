// Refreshing a tree of products in a Subversion working copy: what the client is asked, and where.

#include <gtest/gtest.h>

#include "SVNStage.h"
#include "svn/StatusReaders.h"
#include "windows/LaunchLog.h"

namespace {

using namespace entries;
using zrk::svn::RefreshSVNStatusTree;

class SVNTreeRefresh : public SVNStage {
protected:
  std::int32_t Refresh(const std::string& path) {
    return RefreshSVNStatusTree(Context(), Products.At(path), Times);
  }

  zrk::svn::SVNTimes Times;
};

TEST_F(SVNTreeRefresh, AsksForTheTextReportAndThenForTheXMLReportOfEachDocumentDepthFirst) {
  Products.Add("car", "wc/car.CATProduct").Add("axle", "wc/axle.CATProduct").Add("wheel", "wc/wheel.CATPart");
  Products.Place("axle", "wheel.1", "wheel").Place("axle", "wheel.2", "wheel");
  Products.Place("car", "axle.1", "axle").Place("car", "axle.2", "axle");
  EXPECT_EQ(Refresh("car"), 0);
  EXPECT_EQ(Arguments(),
            TreeReports({"wc/car.CATProduct", "wc/axle.CATProduct", "wc/wheel.CATPart", "wc/wheel.CATPart",
                         "wc/axle.CATProduct", "wc/wheel.CATPart", "wc/wheel.CATPart"}));
}

TEST_F(SVNTreeRefresh, ShowsAProductBeforeItAsksForTheNext) {
  Products.Add("car", "wc/car.CATProduct").Add("wheel", "wc/wheel.CATPart").Place("car", "wheel.1", "wheel");
  std::vector<std::size_t> shownAtLaunch;
  standin::SetLaunchListener(
      [&](const standin::Launch&) { shownAtLaunch.push_back(Redrawn.Paths().size()); });
  Refresh("car");
  standin::SetLaunchListener({});
  EXPECT_EQ(shownAtLaunch, (std::vector<std::size_t>{0, 0, 1, 1}));
}

TEST_F(SVNTreeRefresh, RunsSVNInTheWorkingFolder) {
  Products.Add("car", "wc/car.CATProduct").Add("axle", "wc/sub/axle.CATProduct");
  Products.Place("car", "axle.1", "axle");
  Refresh("car");
  ASSERT_EQ(Client.Runs().size(), 4U);
  for (const ClientRun& run : Client.Runs()) {
    EXPECT_EQ(run.Program, "svn.exe");
    EXPECT_EQ(run.Folder, Folder.Host("wc"));
  }
}

TEST_F(SVNTreeRefresh, ReadsTheEntriesFileInTheFolderOfEachDocument) {
  Products.Add("car", "wc/car.CATProduct").Add("axle", "wc/sub/axle.CATProduct");
  Products.Place("car", "axle.1", "axle");
  WriteEntries("wc", File(10, "car.CATProduct", "3", "anna") + File(10, "axle.CATProduct", "99", "anna"));
  WriteEntries("wc/sub", File(10, "axle.CATProduct", "4", "anna"));
  Refresh("car");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/axle.1"))->Revision, "4");
}

}  // namespace
