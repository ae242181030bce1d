// Refreshing a tree of products in a Subversion working copy: which products are asked about and drawn.

#include <gtest/gtest.h>

#include "SVNStage.h"
#include "attributes/AttributeDictionary.h"
#include "svn/StatusReaders.h"

namespace {

using namespace entries;
using zrk::svn::RefreshSVNStatusTree;

using Paths = std::vector<std::string>;
const StatusAttributes kOld{"7", "Edit", "R1", "old"};

class SVNTreeRefresh : public SVNStage {
protected:
  std::int32_t Refresh(const std::string& path) {
    return RefreshSVNStatusTree(Context(), Products.At(path), Times);
  }

  // car with two axles of two wheels each, all listed in "wc".
  void BuildCar() {
    Products.Add("car", "wc/car.CATProduct")
        .Add("axle", "wc/axle.CATProduct")
        .Add("wheel", "wc/wheel.CATPart");
    Products.Place("axle", "wheel.1", "wheel").Place("axle", "wheel.2", "wheel");
    Products.Place("car", "axle.1", "axle").Place("car", "axle.2", "axle");
    WriteEntries("wc", entries::Folder("12") + File(10, "car.CATProduct", "3", "anna") +
                           File(10, "axle.CATProduct", "4", "anna") + File(10, "wheel.CATPart", "5", "anna"));
  }

  zrk::svn::SVNTimes Times;
};

TEST_F(SVNTreeRefresh, OfNoProductDoesNothing) {
  EXPECT_EQ(RefreshSVNStatusTree(Context(), nullptr, Times), 0);
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNTreeRefresh, OfAnObjectThatIsNoProductDoesNothing) {
  EXPECT_EQ(RefreshSVNStatusTree(Context(), AttributeClass, Times), 0);
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNTreeRefresh, AsksForTheTextReportAndThenForTheXMLReportOfEachDocumentDepthFirst) {
  BuildCar();
  EXPECT_EQ(Refresh("car"), 0);
  EXPECT_EQ(Arguments(),
            TreeReports({"wc/car.CATProduct", "wc/axle.CATProduct", "wc/wheel.CATPart", "wc/wheel.CATPart",
                         "wc/axle.CATProduct", "wc/wheel.CATPart", "wc/wheel.CATPart"}));
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

TEST_F(SVNTreeRefresh, RedrawsEachProductOnceParentsFirst) {
  BuildCar();
  Refresh("car");
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car", "car/axle.1", "car/axle.1/wheel.1", "car/axle.1/wheel.2",
                                    "car/axle.2", "car/axle.2/wheel.1", "car/axle.2/wheel.2"}));
}

TEST_F(SVNTreeRefresh, WritesOntoTheInstancesAndNotOntoTheirReferences) {
  BuildCar();
  Refresh("car");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), (StatusAttributes{"3", "ReadOnly", "", ""}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/axle.2")), (StatusAttributes{"4", "ReadOnly", "", ""}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/axle.1/wheel.2")),
            (StatusAttributes{"5", "ReadOnly", "", ""}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("axle")), std::nullopt);
  EXPECT_EQ(ReadStatusAttributes(Products.At("wheel")), std::nullopt);
}

TEST_F(SVNTreeRefresh, MayStartAtAnInstance) {
  BuildCar();
  Refresh("car/axle.2");
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car/axle.2", "car/axle.2/wheel.1", "car/axle.2/wheel.2"}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), std::nullopt);
}

TEST_F(SVNTreeRefresh, ReadsTheEntriesFileInTheFolderOfEachDocument) {
  Products.Add("car", "wc/car.CATProduct").Add("axle", "wc/sub/axle.CATProduct");
  Products.Place("car", "axle.1", "axle");
  WriteEntries("wc", File(10, "car.CATProduct", "3", "anna") + File(10, "axle.CATProduct", "99", "anna"));
  WriteEntries("wc/sub", File(10, "axle.CATProduct", "4", "anna"));
  Refresh("car");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/axle.1"))->Revision, "4");
}

TEST_F(SVNTreeRefresh, AFileThatIsNotListedLosesItsAttributesIsRedrawnAndItsChildrenAreVisited) {
  BuildCar();
  WriteEntries("wc", File(10, "car.CATProduct", "3", "anna") + File(10, "wheel.CATPart", "5", "anna"));
  WriteStatusAttributes(Products.At("car/axle.1"), kOld);
  Refresh("car/axle.1");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/axle.1")), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car/axle.1", "car/axle.1/wheel.1", "car/axle.1/wheel.2"}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/axle.1/wheel.1"))->Revision, "5");
}

TEST_F(SVNTreeRefresh, WithoutAnEntriesFileAProductLosesItsAttributesAndIsRedrawn) {
  Products.Add("car", "wc/car.CATProduct");
  WriteStatusAttributes(Products.At("car"), kOld);
  EXPECT_EQ(Refresh("car"), 0);
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Paths{"car"});
  EXPECT_EQ(Client.Runs().size(), 2U);
}

TEST_F(SVNTreeRefresh, ADocumentThatWasNeverStoredIsAskedAboutWithoutANameAndItsChildrenAreVisited) {
  Products.Add({.Name = "new", .Document = ""}).Add("wheel", "wc/wheel.CATPart");
  Products.Place("new", "wheel.1", "wheel");
  WriteStatusAttributes(Products.At("new"), kOld);
  Refresh("new");
  ASSERT_EQ(Arguments().size(), 4U);
  EXPECT_EQ(Arguments()[0], (std::vector<std::string>{"status", "-v", "-u", ""}));
  EXPECT_EQ(Arguments()[1], (std::vector<std::string>{"status", "-v", "-u", "--xml", ""}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("new")), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), (Paths{"new", "new/wheel.1"}));
}

TEST_F(SVNTreeRefresh, AProductThatIsNotLinkableLosesItsAttributesAndTheWalkStopsThere) {
  BuildCar();
  Products.AddNotLinkable("group").Place("group", "wheel.1", "wheel").Place("car", "group.1", "group");
  WriteStatusAttributes(Products.At("car/group.1"), kOld);
  WriteStatusAttributes(Products.At("car/group.1/wheel.1"), kOld);
  WriteStatusAttributes(Products.At("group"), kOld);
  Refresh("car/group.1");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/group.1")), std::nullopt);
  EXPECT_EQ(ReadStatusAttributes(Products.At("group")), kOld);
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/group.1/wheel.1")), kOld);
  EXPECT_EQ(Redrawn.Paths(), Paths{});
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNTreeRefresh, AProductWithoutADocumentIsLeftUntouchedAndTheWalkStopsThere) {
  BuildCar();
  Products.AddWithoutDocument("group").Place("group", "wheel.1", "wheel").Place("car", "group.1", "group");
  WriteStatusAttributes(Products.At("car/group.1"), kOld);
  WriteStatusAttributes(Products.At("car/group.1/wheel.1"), kOld);
  Refresh("car/group.1");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/group.1")), kOld);
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/group.1/wheel.1")), kOld);
  EXPECT_EQ(Redrawn.Paths(), Paths{});
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNTreeRefresh, AnInstanceWhoseReferenceIsNotLoadedIsLeftUntouched) {
  BuildCar();
  Products.Place("car", "gone.1", std::nullopt);
  WriteStatusAttributes(Products.At("car/gone.1"), kOld);
  Refresh("car/gone.1");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/gone.1")), kOld);
  EXPECT_EQ(Redrawn.Paths(), Paths{});
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNTreeRefresh, GoesOnBehindProductsWithoutADocument) {
  Products.Add("car", "wc/car.CATProduct").Add("wheel", "wc/wheel.CATPart");
  Products.AddNotLinkable("group").AddWithoutDocument("plain");
  Products.Place("car", "group.1", "group")
      .Place("car", "plain.1", "plain")
      .Place("car", "gone.1", std::nullopt);
  Products.Place("car", "wheel.1", "wheel");
  WriteEntries("wc", File(10, "car.CATProduct", "3", "anna") + File(10, "wheel.CATPart", "5", "anna"));
  Refresh("car");
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car", "car/wheel.1"}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/wheel.1"))->Revision, "5");
}

TEST_F(SVNTreeRefresh, AProductThatCannotCarryAttributesIsRedrawnAndItsChildrenAreVisited) {
  Products.Add({.Name = "car", .Document = Folder.Host("wc/car.CATProduct"), .Extendable = false});
  Products.Add("wheel", "wc/wheel.CATPart").Place("car", "wheel.1", "wheel");
  WriteEntries("wc", File(10, "car.CATProduct", "3", "anna") + File(10, "wheel.CATPart", "5", "anna"));
  EXPECT_EQ(Refresh("car"), 0);
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car", "car/wheel.1"}));
}

TEST_F(SVNTreeRefresh, AProductThatTakesNoInstanceIsRedrawn) {
  BuildCar();
  standin::RefuseNewInstances(true);
  Refresh("car/axle.1/wheel.1");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/axle.1/wheel.1")), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), Paths{"car/axle.1/wheel.1"});
}

TEST_F(SVNTreeRefresh, WithoutAnAttributeClassStillAsksAndRedraws) {
  BuildCar();
  AttributeClass = nullptr;
  EXPECT_EQ(Refresh("car/axle.1/wheel.1"), 0);
  EXPECT_EQ(Client.Runs().size(), 2U);
  EXPECT_EQ(Redrawn.Paths(), Paths{"car/axle.1/wheel.1"});
}

TEST_F(SVNTreeRefresh, ReadsTheEntriesFileBeforeTheClientRuns) {
  Products.Add("car", "wc/car.CATProduct");
  WriteEntries("wc", File(10, "car.CATProduct", "3", "anna"));
  Client.When("status").Store(".svn/entries", Format(10) + File(10, "car.CATProduct", "4", "anna"));
  Refresh("car");
  EXPECT_EQ(ReadStatusAttributes(Products.At("car"))->Revision, "3");
}

}  // namespace
