// The refresh of a manager that found a Subversion working copy with a database.

#include <gtest/gtest.h>

#include "ZRKICVSManager.h"
#include "component/svn/DatabaseStage.h"

namespace {

using namespace reports;

using Paths = std::vector<std::string>;

class DatabaseRefresh : public DatabaseStage {
protected:
  DatabaseRefresh() {
    Products.Add("car", "wc/car").Add("wheel", "wc/sub/wheel").Place("car", "wheel.1", "wheel");
    Report({{.Path = "car", .Revision = "9"}, {.Path = "sub/wheel", .Revision = "5"}});
  }

  ZRKICVSManager_var Manager() const { return Products.At("car"); }
};

TEST_F(DatabaseRefresh, BringsTheManagersWholeTreeUpToDateInOneRun) {
  Manager()->RefreshStatus(Products.At("car"));
  EXPECT_EQ(Arguments(), Lists{StatusOfBoth});
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "ReadOnly", "", ""}));
  EXPECT_EQ(Shown("car/wheel.1"), (StatusAttributes{"5", "ReadOnly", "", ""}));
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car", "car/wheel.1"}));
}

TEST_F(DatabaseRefresh, IgnoresItsArgument) {
  Products.Add("other", "wc/sub/other");
  const ZRKICVSManager_var manager = Manager();
  for (const CATBaseUnknown_var& root :
       {CATBaseUnknown_var(), Products.At("other"), Products.At("car/wheel.1")}) {
    const RedrawnProducts redrawn;
    manager->RefreshStatus(root);
    EXPECT_EQ(redrawn.Paths(), (Paths{"car", "car/wheel.1"}));
  }
  EXPECT_EQ(RunFolders(), Texts(3, Folder.Host("wc")));
}

TEST_F(DatabaseRefresh, AsksEveryTimeAnewAlsoWhichFormAFolderHas) {
  const ZRKICVSManager_var manager = Manager();
  manager->RefreshStatus(nullptr);
  Report({{.Path = "car", .Revision = "10"}});
  WriteEntries("wc/sub", entries::File(10, "wheel", "4", "bert"));
  manager->RefreshStatus(nullptr);
  EXPECT_EQ(Shown("car")->Revision, "10");
  EXPECT_EQ(Shown("car/wheel.1")->Revision, "4");
}

TEST_F(DatabaseRefresh, RefreshesDocumentsWithTextEntriesInTheWorkingFolderThatWasFound) {
  WriteEntries("old", entries::File(10, "part", "4", "bert"));
  Products.Add("part", "old/part").Place("car", "part.1", "part");
  // The document of the car ends its branch: only below one in no working copy are both found.
  Products.Add("all", "plain/all").Place("all", "car.1", "car").Place("all", "part.1", "part");
  ZRKICVSManager_var(Products.At("all"))->RefreshStatus(nullptr);
  ASSERT_EQ(Client.Runs().size(), 5U);
  for (std::size_t run = 1; run < 5; ++run) EXPECT_EQ(RunFolders()[run], Folder.Host("old"));
  EXPECT_EQ(Shown("all/part.1")->Revision, "4");

  Client.ClearRuns();
  Manager()->RefreshStatus(nullptr);
  ASSERT_EQ(Client.Runs().size(), 3U);
  for (const std::string& folder : RunFolders()) EXPECT_EQ(folder, Folder.Host("wc"));
}

TEST_F(DatabaseRefresh, IsThatOfCVSWhenTheDocumentExaminedLastIsCVSs) {
  WriteCVS("cvs");
  Products.Add("part", "cvs/part").Add("all", "plain/all");
  Products.Place("all", "car.1", "car").Place("all", "part.1", "part");
  ZRKICVSManager_var(Products.At("all"))->RefreshStatus(Products.At("all"));
  ASSERT_FALSE(Client.Runs().empty());
  for (const ClientRun& run : Client.Runs()) EXPECT_EQ(run.Program, "cvs.exe");
}

TEST_F(DatabaseRefresh, StaysThatOfTheTextFormWhereNoDatabaseIs) {
  std::filesystem::remove_all(Folder / "wc/.svn");
  for (const char* folder : {"wc", "wc/sub"}) WriteEntries(folder, entries::Folder("12"));
  Manager()->RefreshStatus(nullptr);
  EXPECT_EQ(Arguments(), TreeReports({"wc/car", "wc/sub/wheel"}));
}

}  // namespace
