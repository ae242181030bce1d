// Refreshing a tree of products in working copies with a database: how often the client runs and where, and
// which products are drawn.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "DatabaseStage.h"
#include "svn/DatabaseStatus.h"
#include "windows/LaunchLog.h"

namespace {

using namespace reports;

using Paths = std::vector<std::string>;

class DatabaseTree : public DatabaseStage {
protected:
  // car with two axles of a wheel each.
  void BuildCar() {
    Products.Add("car", "wc/car.CATProduct")
        .Add("axle", "wc/sub/axle.CATProduct")
        .Add("wheel", "wc/sub/wheel.CATPart");
    Products.Place("axle", "wheel.1", "wheel");
    Products.Place("car", "axle.1", "axle").Place("car", "axle.2", "axle");
  }

  std::int32_t Refresh(const std::string& path = "car") {
    return zrk::svn::RefreshDatabaseTree(Context(), Products.At(path), Times);
  }

  // Something that happens while the client runs.
  void RefreshWhile(const std::function<void()>& event) {
    standin::SetLaunchListener([&](const standin::Launch&) { event(); });
    Refresh();
    standin::SetLaunchListener({});
  }

  zrk::svn::SVNTimes Times;
};

TEST_F(DatabaseTree, TakesOneRunWhateverTheNumberOfProducts) {
  BuildCar();
  Report({{.Path = "car.CATProduct"}});
  EXPECT_EQ(Refresh(), 0);
  EXPECT_EQ(Arguments(), Lists{StatusOfBoth});
  EXPECT_EQ(Client.Runs()[0].Program, "svn.exe");
}

TEST_F(DatabaseTree, TakesASecondRunWithoutTheRepositoryWhenTheFirstReportIsCutOff) {
  BuildCar();
  ReportOutOfReach({{.Path = "car.CATProduct", .Revision = "3", .Own = Lock{"t", "anna"}}});
  EXPECT_EQ(Refresh(), 0);
  EXPECT_EQ(Arguments(), (Lists{StatusOfBoth, StatusOfWorkingCopy}));
  EXPECT_EQ(RunFolders(), (Texts{Folder.Host("wc"), Folder.Host("wc")}));
  EXPECT_EQ(Shown("car"), (StatusAttributes{"3", "Edit", "", "Locked by: \nanna\n-------------\n"}));
}

TEST_F(DatabaseTree, AfterTwoReportsThatAreCutOffNoProductHasAttributes) {
  BuildCar();
  WriteStatusAttributes(Products.At("car"), kOld);
  Client.When("status").Out(kUnreachable);
  EXPECT_EQ(Refresh(), 0);
  EXPECT_EQ(Client.Runs().size(), 2U);
  EXPECT_EQ(Shown("car"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths().size(), 5U);
}

TEST_F(DatabaseTree, ReadsAReportWithWarningsOnBothChannelsAroundIt) {
  BuildCar();
  Client.When("status")
      .Error("svn: warning: W170000: <x> & y\r\n")
      .Out(reports::Report({{.Path = "car.CATProduct", .Revision = "3"}}))
      .Error("svn: warning: <z>\r\n");
  Refresh();
  EXPECT_EQ(Client.Runs().size(), 1U);
  EXPECT_EQ(Shown("car")->Revision, "3");
}

TEST_F(DatabaseTree, AsksAgainWhenTheWordsOfTheClientsQuestionEndTheReading) {
  BuildCar();
  const Entry car =
      LockedElsewhere("car.CATProduct", {"t", "ben", "to revert changes of Monday" + std::string(5000, '.')});
  Client.When("-u").Out(reports::Report({car}));
  Client.When("status").Out(reports::Report({{.Path = "car.CATProduct", .Revision = "3"}}));
  Refresh();
  EXPECT_EQ(Arguments(), (Lists{StatusOfBoth, StatusOfWorkingCopy}));
  EXPECT_EQ(Shown("car"), (StatusAttributes{"3", "ReadOnly", "", ""}));
}

TEST_F(DatabaseTree, AFileThatWasNeverCommittedHasNoRevision) {
  BuildCar();
  WriteStatusAttributes(Products.At("car"), kOld);
  Report({{.Path = "car.CATProduct", .Item = "added", .Revision = ""}});
  Refresh();
  EXPECT_EQ(Shown("car"), (StatusAttributes{"", "ReadOnly", "", ""}));
}

// Where the client runs.

TEST_F(DatabaseTree, RunsInTheDeepestFolderThatHoldsAllDocuments) {
  Products.Add("car", "wc/a/b/c/car").Add("axle", "wc/a/bb/axle").Place("car", "axle.1", "axle");
  Report({{.Path = "bb/axle", .Revision = "4"}, {.Path = "b/c/car", .Revision = "3"}});
  Refresh();
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc/a")});
  EXPECT_EQ(Shown("car")->Revision, "3");
  EXPECT_EQ(Shown("car/axle.1")->Revision, "4");
}

TEST_F(DatabaseTree, RunsInTheFolderOfTheTopDocumentWhenAllOthersLieBelow) {
  Products.Add("car", "wc/a/car").Add("axle", "wc/a/b/c/axle").Place("car", "axle.1", "axle");
  Report({});
  Refresh();
  Refresh("axle");
  EXPECT_EQ(RunFolders(), (Texts{Folder.Host("wc/a"), Folder.Host("wc/a/b/c")}));
}

TEST_F(DatabaseTree, RunsInTheNearestFolderThatIsThereWhenThatIsGone) {
  Products.Add("car", "wc/a/b/c/car");
  std::filesystem::remove_all(Folder / "wc/a/b");
  Report({{.Path = "b/c/car", .Item = "missing", .Revision = "3"}});
  Refresh();
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc/a")});
  EXPECT_EQ(Shown("car"), (StatusAttributes{"3", "ReadOnly", "", ""}));
}

TEST_F(DatabaseTree, RunsAtTheTopWhenAllBelowIsGone) {
  Products.Add("car", "wc/a/b/car");
  std::filesystem::remove_all(Folder / "wc/a");
  WriteFile(Folder / "wc/a", "a file where the folder was");
  Report({});
  Refresh();
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc")});
}

TEST_F(DatabaseTree, DoesNotGoAboveAWorkingCopyThatIsGoneMeanwhile) {
  WriteDatabase("xc");
  Products.Add("car", "wc/car").Add("axle", "xc/sub/axle").Place("car", "axle.1", "axle");
  WriteStatusAttributes(Products.At("car/axle.1"), kOld);
  Report({{.Path = "car"}});
  RefreshWhile([&] { std::filesystem::remove_all(Folder / "xc"); });
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc")});
  EXPECT_EQ(Shown("car/axle.1"), std::nullopt);
}

TEST_F(DatabaseTree, RunsOnceForEachWorkingCopy) {
  WriteDatabase("other");
  Products.Add("car", "wc/car").Add("axle", "other/sub/axle").Add("wheel", "wc/sub/wheel");
  Products.Place("car", "axle.1", "axle").Place("axle", "wheel.1", "wheel");
  Client.When("status").Once().Out(reports::Report({{.Path = "axle", .Revision = "4"}}));
  Client.When("status").Once().Out(
      reports::Report({{.Path = "sub/wheel", .Revision = "5"}, {.Path = "car", .Revision = "3"}}));
  Refresh();
  EXPECT_EQ(Arguments(), (Lists{StatusOfBoth, StatusOfBoth}));
  EXPECT_EQ(RunFolders(), (Texts{Folder.Host("other/sub"), Folder.Host("wc")}));
  EXPECT_EQ(Shown("car")->Revision, "3");
  EXPECT_EQ(Shown("car/axle.1")->Revision, "4");
  EXPECT_EQ(Shown("car/axle.1/wheel.1")->Revision, "5");
}

TEST_F(DatabaseTree, AsksTheRepositoryOfOneWorkingCopyWhenThatOfAnotherIsOutOfReach) {
  WriteDatabase("other");
  Products.Add("car", "wc/car").Add("axle", "other/axle").Place("car", "axle.1", "axle");
  Client.When("status -v -u").Once().Out(kUnreachable);
  Client.When("status -v --xml").Out(reports::Report({{.Path = "axle", .Own = Lock{"t", "anna"}}}));
  Client.When("status -v -u").Out(reports::Report({{.Path = "car", .Own = Lock{"t", "anna"}}}));
  Refresh();
  EXPECT_EQ(Arguments(), (Lists{StatusOfBoth, StatusOfWorkingCopy, StatusOfBoth}));
  EXPECT_EQ(Shown("car/axle.1")->Status, "Edit");
  EXPECT_EQ(Shown("car")->Status, "ReadOnly");
}

// The report of the outer one names the files of the inner one when that took the place of a folder of it.
TEST_F(DatabaseTree, AWorkingCopyInAnotherShowsWhatItsOwnReportSays) {
  WriteDatabase("wc/sub");
  Products.Add("car", "wc/car").Add("axle", "wc/sub/axle").Add("wheel", "wc/sub/wheel");
  Products.Place("car", "axle.1", "axle").Place("car", "wheel.1", "wheel");
  Client.When("status").Once().Out(reports::Report(
      {{.Path = "car", .Revision = "1"}, {.Path = "sub/axle", .Revision = "1"}, {.Path = "sub/wheel"}}));
  Client.When("status").Once().Out(reports::Report({LockedElsewhere("axle", {"t", "ben"})}));
  Refresh();
  EXPECT_EQ(RunFolders(), (Texts{Folder.Host("wc"), Folder.Host("wc/sub")}));
  EXPECT_EQ(Shown("car")->Revision, "1");
  EXPECT_EQ(Shown("car/axle.1"), (StatusAttributes{"9", "Locked", "", "Locked by: \nben\n-------------\n"}));
  EXPECT_EQ(Shown("car/wheel.1"), std::nullopt);
}

// What loses its attributes.

TEST_F(DatabaseTree, WhatTheWorkingCopyDoesNotHoldLosesItsAttributesAndIsRedrawn) {
  BuildCar();
  for (const char* item : {"unversioned", "ignored", "external", "none"}) {
    WriteStatusAttributes(Products.At("car"), kOld);
    Report({{.Path = "car.CATProduct", .Item = item, .InRepository = Lock{"t", "ben"}}});
    const RedrawnProducts redrawn;
    EXPECT_EQ(Refresh(), 0);
    EXPECT_EQ(Shown("car"), std::nullopt) << item;
    EXPECT_EQ(redrawn.Paths().at(0), "car") << item;
  }
}

TEST_F(DatabaseTree, AFileIsFoundByItsPathAndNotByItsNameAlone) {
  BuildCar();
  WriteStatusAttributes(Products.At("car/axle.1"), kOld);
  Report({{.Path = "axle.CATProduct"}});
  Refresh();
  EXPECT_EQ(Shown("car/axle.1"), std::nullopt);
}

TEST_F(DatabaseTree, ADocumentInNoWorkingCopyLosesItsAttributesAndIsRedrawnWithoutARun) {
  Products.Add("bolt", "plain/bolt").Add("car", "wc/car").Place("bolt", "car.1", "car");
  WriteStatusAttributes(Products.At("bolt"), kOld);
  Report({{.Path = "car"}, {.Path = "bolt"}, {.Path = "../plain/bolt"}});
  Refresh("bolt");
  EXPECT_EQ(Shown("bolt"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), (Paths{"bolt", "bolt/car.1"}));
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc")});
  EXPECT_NE(Shown("bolt/car.1"), std::nullopt);
}

TEST_F(DatabaseTree, OfDocumentsInNoWorkingCopyTakesNoRun) {
  Products.Add("bolt", "plain/bolt");
  EXPECT_EQ(Refresh("bolt"), 0);
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_EQ(Redrawn.Paths(), Paths{"bolt"});
}

TEST_F(DatabaseTree, ADocumentOfCVSIsInNoneOfTheWorkingCopiesAlsoWhenAReportNamesIt) {
  WriteCVS("wc/cvs");
  Products.Add("car", "wc/car").Add("part", "wc/cvs/part").Place("car", "part.1", "part");
  WriteStatusAttributes(Products.At("car/part.1"), kOld);
  Report({{.Path = "car"}, {.Path = "cvs/part"}});
  Refresh();
  EXPECT_EQ(Client.Runs().size(), 1U);
  EXPECT_EQ(Shown("car/part.1"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car", "car/part.1"}));
}

TEST_F(DatabaseTree, ADocumentOfAWorkingCopyThatNobodyAskedAboutLosesItsAttributesAndIsRedrawn) {
  WriteDatabase("other");
  Products.Add("car", "wc/car").Add("axle", "other/axle");
  Report({{.Path = "car"}});
  RefreshWhile([&] {
    Products.Place("car", "axle.1", "axle");
    WriteStatusAttributes(Products.At("car/axle.1"), kOld);
  });
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc")});
  EXPECT_TRUE(Shown("car"));
  EXPECT_EQ(Shown("car/axle.1"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car", "car/axle.1"}));
}

TEST_F(DatabaseTree, ADocumentThatWasNeverStoredLosesItsAttributesIsRedrawnAndItsChildrenAreVisited) {
  Products.Add({.Name = "new", .Document = ""}).Add("wheel", "wc/sub/wheel").Place("new", "wheel.1", "wheel");
  WriteStatusAttributes(Products.At("new"), kOld);
  Report({{.Path = "wheel"}});
  Refresh("new");
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc/sub")});
  EXPECT_EQ(Shown("new"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths(), (Paths{"new", "new/wheel.1"}));
  EXPECT_NE(Shown("new/wheel.1"), std::nullopt);
}

TEST_F(DatabaseTree, AClientThatCannotBeStartedTakesAllAttributesAway) {
  BuildCar();
  WriteStatusAttributes(Products.At("car"), kOld);
  SVNExePath = "";
  EXPECT_EQ(Refresh(), 0);
  EXPECT_EQ(Shown("car"), std::nullopt);
  EXPECT_EQ(Redrawn.Paths().size(), 5U);
}

TEST_F(DatabaseTree, AClientThatCrashesInTheMiddleIsAskedWithoutTheRepository) {
  BuildCar();
  const std::string report = reports::Report({LockedElsewhere("car.CATProduct", {"t", "ben"})});
  Client.When("status -v -u").Out(report.substr(0, report.size() - 20)).Crash();
  Client.When("status -v --xml").Out(reports::Report({{.Path = "car.CATProduct", .Revision = "3"}}));
  Refresh();
  EXPECT_EQ(Shown("car"), (StatusAttributes{"3", "ReadOnly", "", ""}));
}

// Text entries in the same tree.

TEST_F(DatabaseTree, ADocumentWithTextEntriesIsAskedAboutInTheWorkingFolderAsTheOtherRouteDoes) {
  WriteDatabase("old");
  WriteEntries("old", entries::File(10, "axle", "4", "bert"));
  Products.Add("car", "wc/car").Add("axle", "old/axle").Add("wheel", "wc/wheel");
  Products.Place("car", "axle.1", "axle").Place("axle", "wheel.1", "wheel");
  const std::string axle = Folder.Host("old/axle");
  Client.When("status -v -u --xml --non-interactive")
      .Out(reports::Report({{.Path = "car", .Revision = "3"}, {.Path = "wheel"}}));
  Client.When("--xml").Out(XMLReport("ben"));
  Client.When("status").Out(ForeignLockReport(axle));
  Refresh();
  EXPECT_EQ(Arguments(),
            (Lists{StatusOfBoth, {"status", "-v", "-u", axle}, {"status", "-v", "-u", "--xml", axle}}));
  EXPECT_EQ(RunFolders(), (Texts{Folder.Host("wc"), Folder.Host("wc"), Folder.Host("wc")}));
  EXPECT_EQ(Shown("car/axle.1"), (StatusAttributes{"4", "Locked", "", "Locked by: \nben\n-------------\n"}));
  EXPECT_EQ(Shown("car")->Revision, "3");
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car", "car/axle.1", "car/axle.1/wheel.1"}));
}

TEST_F(DatabaseTree, TheWorkingFolderOfTextEntriesIsNoneOfTheDatabases) {
  WriteEntries("old", entries::File(10, "axle", "4", "bert"));
  Products.Add("axle", "old/axle");
  WorkingFolder = Folder.Host("old").c_str();
  Refresh("axle");
  EXPECT_EQ(RunFolders(), (Texts{Folder.Host("old"), Folder.Host("old")}));
}

// The table of locks, as it is shown. The other words of a report are read by WorkingCopyReport.

TEST_F(DatabaseTree, ShowsWhoHoldsALockAndWhy) {
  Products.Add("car", "wc/car");
  const Lock anna{"opaquelocktoken:1", "anna", "line 1\nline 2 <&>"};
  const Lock ben{"opaquelocktoken:2", "ben", ""};
  const std::string annas = "Locked by: \nanna\n-------------\nline 1\nline 2 <&>";
  const std::string bens = "Locked by: \nben\n-------------\n";
  const auto shown = [&](const std::optional<Lock>& own, const std::optional<Lock>& inRepository) {
    Report({{.Path = "car", .Own = own, .InRepository = inRepository}});
    Refresh();
    return Shown("car");
  };
  EXPECT_EQ(shown({}, {}), (StatusAttributes{"9", "ReadOnly", "", ""}));
  EXPECT_EQ(shown({}, ben), (StatusAttributes{"9", "Locked", "", bens}));
  EXPECT_EQ(shown(anna, anna), (StatusAttributes{"9", "Edit", "", annas}));
  EXPECT_EQ(shown(anna, ben), (StatusAttributes{"9", "Locked", "", bens}));
  EXPECT_EQ(shown(anna, {}), (StatusAttributes{"9", "ReadOnly", "", ""}));
  ReportOutOfReach({{.Path = "car", .Own = anna}});
  Refresh();
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "Edit", "", annas}));
}

TEST_F(DatabaseTree, WritesNothingIntoTheWorkingCopy) {
  BuildCar();
  Report({{.Path = "car.CATProduct"}});
  const auto listed = [&] {
    std::vector<std::pair<std::string, std::filesystem::file_time_type>> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(Folder / "wc")) {
      files.emplace_back(entry.path().string(), entry.last_write_time());
    }
    std::sort(files.begin(), files.end());
    return files;
  };
  const auto before = listed();
  Refresh();
  EXPECT_EQ(listed(), before);
}

}  // namespace
