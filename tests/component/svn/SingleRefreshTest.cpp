// Refreshing one product after a Subversion command: what the client is asked, and what of its answer counts.

#include <gtest/gtest.h>

#include "SVNStage.h"
#include "svn/StatusReaders.h"

namespace {

using namespace entries;

class SVNSingleRefresh : public SVNStage {
protected:
  SVNSingleRefresh() { Products.Add("car", "wc/car.CATProduct"); }

  std::optional<StatusAttributes> Refreshed() {
    EXPECT_EQ(zrk::svn::RefreshSVNStatus(Context(), Products.At("car")), 0);
    return ReadStatusAttributes(Products.At("car"));
  }

  const std::string Path = Folder.Host("wc/car.CATProduct");
};

TEST_F(SVNSingleRefresh, AsksForTheTextReportAlone) {
  Refreshed();
  EXPECT_EQ(Arguments(), (std::vector<std::vector<std::string>>{{"status", "-v", "-u", Path}}));
  EXPECT_EQ(Client.Runs().at(0).Program, "svn.exe");
  EXPECT_EQ(Client.Runs().at(0).Folder, Folder.Host("wc"));
}

TEST_F(SVNSingleRefresh, AnOwnerThatTheClientNamesDoesNotCount) {
  WriteEntries("wc", File(10, "car.CATProduct", "9", "bert", {kToken, "anna", "", ""}));
  Client.When("status").Out(XMLReport("bert"));
  EXPECT_EQ(Refreshed()->Comment, "anna\n");
}

TEST_F(SVNSingleRefresh, AFileThatIsNotListedHasNoAttributesWhateverTheReportSays) {
  WriteStatusAttributes(Products.At("car"), {"7", "Edit", "R1", "old"});
  WriteEntries("wc", File(10, "other.CATPart", "5", "bert"));
  Client.When("status").Out(ForeignLockReport(Path));
  EXPECT_EQ(Refreshed(), std::nullopt);
}

}  // namespace
