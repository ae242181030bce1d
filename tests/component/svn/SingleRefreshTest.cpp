// Refreshing one product after a Subversion command.

#include <gtest/gtest.h>

#include "SVNStage.h"
#include "svn/StatusReaders.h"

namespace {

using namespace entries;

using Paths = std::vector<std::string>;
const StatusAttributes kOld{"7", "Edit", "R1", "old"};

class SVNSingleRefresh : public SVNStage {
protected:
  SVNSingleRefresh() {
    Products.Add("car", "wc/car.CATProduct").Add("wheel", "wc/wheel.CATPart");
    Products.Place("car", "wheel.1", "wheel");
  }

  void List(const Lock& lock = {}) const {
    WriteEntries("wc",
                 File(10, "car.CATProduct", "9", "bert", lock) + File(10, "wheel.CATPart", "5", "bert"));
  }
  std::int32_t Refresh(const std::string& path) {
    return zrk::svn::RefreshSVNStatus(Context(), Products.At(path));
  }
  std::optional<StatusAttributes> Refreshed(const std::string& path = "car") {
    EXPECT_EQ(Refresh(path), 0);
    return ReadStatusAttributes(Products.At(path));
  }

  const std::string Path = Folder.Host("wc/car.CATProduct");
  const Lock OwnLock{kToken, "anna", "", ""};
};

TEST_F(SVNSingleRefresh, OfNoProductDoesNothing) {
  EXPECT_EQ(zrk::svn::RefreshSVNStatus(Context(), nullptr), 0);
  EXPECT_EQ(zrk::svn::RefreshSVNStatus(Context(), AttributeClass), 0);
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNSingleRefresh, AsksForTheTextReportAlone) {
  List();
  Refresh("car");
  EXPECT_EQ(Arguments(), (std::vector<std::vector<std::string>>{{"status", "-v", "-u", Path}}));
  EXPECT_EQ(Client.Runs().at(0).Program, "svn.exe");
  EXPECT_EQ(Client.Runs().at(0).Folder, Folder.Host("wc"));
}

TEST_F(SVNSingleRefresh, TouchesAndRedrawsTheProductAlone) {
  List();
  Refresh("car");
  EXPECT_EQ(Redrawn.Paths(), Paths{"car"});
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/wheel.1")), std::nullopt);
}

TEST_F(SVNSingleRefresh, WritesOntoTheInstanceAndNotOntoItsReference) {
  List();
  EXPECT_EQ(Refreshed("car/wheel.1"), (StatusAttributes{"5", "ReadOnly", "", "\n"}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("wheel")), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Paths{"car/wheel.1"});
}

TEST_F(SVNSingleRefresh, WithoutAnOwnerTheCommentIsALineFeed) {
  List();
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "ReadOnly", "", "\n"}));
}

TEST_F(SVNSingleRefresh, OfAFileLockedHereTheCommentIsTheOwnerAndALineFeed) {
  List(OwnLock);
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Edit", "", "anna\n"}));
}

TEST_F(SVNSingleRefresh, AFileLockedElsewhereIsLocked) {
  List();
  Client.When("status").Out(ForeignLockReport(Path));
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Locked", "", "\n"}));
}

TEST_F(SVNSingleRefresh, TheMarkCountsInTheLineOfAnotherFile) {
  List();
  Client.When("status").Out(UnlockedReport(Path) + ForeignLockReport("other.CATPart"));
  EXPECT_EQ(Refreshed()->Status, "Locked");
}

TEST_F(SVNSingleRefresh, OwnLockWinsOverTheMark) {
  List(OwnLock);
  Client.When("status").Out(ForeignLockReport(Path));
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Edit", "", "anna\n"}));
}

TEST_F(SVNSingleRefresh, AnOwnerThatTheClientNamesDoesNotCount) {
  List(OwnLock);
  Client.When("status").Out(XMLReport("bert"));
  EXPECT_EQ(Refreshed()->Comment, "anna\n");
}

TEST_F(SVNSingleRefresh, ReplacesAllFourAttributesThatWereThere) {
  WriteStatusAttributes(Products.At("car"), kOld);
  List();
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "ReadOnly", "", "\n"}));
}

TEST_F(SVNSingleRefresh, AFileThatIsNotListedLosesItsAttributesAndIsRedrawn) {
  WriteStatusAttributes(Products.At("car"), kOld);
  WriteEntries("wc", File(10, "wheel.CATPart", "5", "bert"));
  Client.When("status").Out(ForeignLockReport(Path));
  EXPECT_EQ(Refreshed(), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Paths{"car"});
}

TEST_F(SVNSingleRefresh, WithoutAnEntriesFileAProductLosesItsAttributesAndIsRedrawn) {
  WriteStatusAttributes(Products.At("car"), kOld);
  EXPECT_EQ(Refreshed(), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Paths{"car"});
  EXPECT_EQ(Client.Runs().size(), 1U);
}

TEST_F(SVNSingleRefresh, ADocumentThatWasNeverStoredIsAskedAboutWithoutAName) {
  Products.Add({.Name = "new", .Document = ""});
  WriteStatusAttributes(Products.At("new"), kOld);
  EXPECT_EQ(Refreshed("new"), std::nullopt);
  EXPECT_EQ(Arguments(), (std::vector<std::vector<std::string>>{{"status", "-v", "-u", ""}}));
  EXPECT_EQ(Redrawn.Paths(), Paths{"new"});
}

TEST_F(SVNSingleRefresh, AProductThatIsNotLinkableLosesItsAttributes) {
  Products.AddNotLinkable("group");
  WriteStatusAttributes(Products.At("group"), kOld);
  EXPECT_EQ(Refreshed("group"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Paths{});
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNSingleRefresh, AProductWithoutADocumentIsLeftUntouched) {
  Products.AddWithoutDocument("plain").Place("car", "gone.1", std::nullopt);
  for (const std::string path : {"plain", "car/gone.1"}) {
    WriteStatusAttributes(Products.At(path), kOld);
    EXPECT_EQ(Refreshed(path), kOld) << path;
  }
  EXPECT_EQ(Redrawn.Paths(), Paths{});
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNSingleRefresh, AClientThatCannotBeStartedLeavesWhatTheEntriesFileTells) {
  List(OwnLock);
  SVNExePath = "";
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Edit", "", "anna\n"}));
}

TEST_F(SVNSingleRefresh, ReadsTheEntriesFileBeforeTheClientRuns) {
  List();
  Client.When("status").Store(".svn/entries", Format(10) + File(10, "car.CATProduct", "10", "anna"));
  EXPECT_EQ(Refreshed()->Revision, "9");
}

TEST_F(SVNSingleRefresh, AProductThatCannotCarryAttributesIsRedrawn) {
  Products.Add({.Name = "bare", .Document = Folder.Host("wc/car.CATProduct"), .Extendable = false});
  List();
  EXPECT_EQ(Refresh("bare"), 0);
  EXPECT_EQ(Redrawn.Paths(), Paths{"bare"});
}

TEST_F(SVNSingleRefresh, WithoutTheClassTheClientIsAskedAndTheProductRedrawn) {
  List();
  AttributeClass = nullptr;
  EXPECT_EQ(Refresh("car"), 0);
  EXPECT_EQ(Client.Runs().size(), 1u);
  EXPECT_EQ(Redrawn.Paths(), Paths{"car"});
}

}  // namespace
