// One document of a working copy with a database: lock, unlock and the query of its status, and what shows
// afterwards.

#include <gtest/gtest.h>

#include <algorithm>

#include "CATISpecObject.h"
#include "DatabaseStage.h"
#include "component/product/AlteredProduct.h"
#include "manager/ZRKECVSManager.h"
#include "support/HostText.h"
#include "svn/DatabaseStatus.h"
#include "svn/LockCommands.h"

namespace {

using namespace reports;

using Paths = std::vector<std::string>;

class DatabaseFile : public DatabaseStage {
protected:
  DatabaseFile() {
    Products.Add("car", "wc/sub/car.CATProduct").Add("wheel", "wc/sub/wheel.CATPart");
    Products.Place("car", "wheel.1", "wheel");
  }

  // The client names a file by the path that it is given.
  void ReportCar(Entry entry = {}) {
    entry.Path = Path;
    Report({entry});
  }
  std::optional<StatusAttributes> Refreshed(const std::string& product = "car") {
    EXPECT_EQ(zrk::svn::RefreshDatabaseDocument(Context(), Products.At(product)), 0);
    return Shown(product);
  }

  const std::string Path = Folder.Host("wc/sub/car.CATProduct");
  const Lock Annas{"opaquelocktoken:1", "anna", "mine\ntoo"};
  const Lock Bens{"opaquelocktoken:2", "ben", ""};
};

TEST_F(DatabaseFile, IsAskedAboutByItsPathInItsOwnFolder) {
  ReportCar();
  Refreshed();
  EXPECT_EQ(Arguments(), Lists{With(StatusOfBoth, Path)});
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc/sub")});
  EXPECT_EQ(Client.Runs()[0].Program, "svn.exe");
}

TEST_F(DatabaseFile, IsAskedAboutWithoutTheRepositoryWhenTheReportIsCutOff) {
  ReportOutOfReach({{.Path = Path, .Own = Annas}});
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Edit", "", "anna\nmine\ntoo"}));
  EXPECT_EQ(Arguments(), (Lists{With(StatusOfBoth, Path), With(StatusOfWorkingCopy, Path)}));
  EXPECT_EQ(RunFolders(), (Texts{Folder.Host("wc/sub"), Folder.Host("wc/sub")}));
}

TEST_F(DatabaseFile, ShowsItsOwnerAndTheCommentOfItsLock) {
  ReportCar({.Own = Annas, .InRepository = Annas});
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Edit", "", "anna\nmine\ntoo"}));
  ReportCar({.InRepository = Bens});
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Locked", "", "ben\n"}));
  ReportCar({.Own = Annas, .InRepository = Bens});
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Locked", "", "ben\n"}));
}

TEST_F(DatabaseFile, ShowsALineFeedWithoutALock) {
  ReportCar();
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "ReadOnly", "", "\n"}));
  ReportCar({.Own = Annas});
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "ReadOnly", "", "\n"}));
  ReportCar({.Item = "added", .Revision = ""});
  EXPECT_EQ(Refreshed(), (StatusAttributes{"", "ReadOnly", "", "\n"}));
}

TEST_F(DatabaseFile, IsRecognisedByItsNameHoweverTheClientWritesItsFolder) {
  std::string slashes = Path;
  std::replace(slashes.begin(), slashes.end(), '\\', '/');
  for (const std::string& path :
       {Path, slashes, std::string("C:/WC/Sub/car.CATProduct"), std::string("car.CATProduct")}) {
    WriteStatusAttributes(Products.At("car"), kOld);
    Report({{.Path = path}});
    EXPECT_EQ(Refreshed()->Revision, "9") << path;
  }
}

TEST_F(DatabaseFile, ThatTheWorkingCopyDoesNotHoldLosesItsAttributesAndIsRedrawn) {
  const std::vector<std::vector<Entry>> reports{{},
                                                {NotHeld(Path, "unversioned")},
                                                {NotHeld(Path, "ignored")},
                                                {NotHeld(Path, "external")},
                                                {NotHeld(Path, "none")},
                                                {{.Path = Folder.Host("wc/sub/other.CATProduct")}},
                                                {{.Path = Path + "2"}}};
  for (const std::vector<Entry>& report : reports) {
    WriteStatusAttributes(Products.At("car"), kOld);
    Report(report);
    EXPECT_EQ(Refreshed(), std::nullopt);
  }
  EXPECT_EQ(Redrawn.Paths(), Paths(reports.size(), "car"));
}

// Taking it for editing, and giving it back.

TEST_F(DatabaseFile, IsUpdatedAndLockedInItsOwnFolderAndThenAskedAbout) {
  ReportCar({.Own = Annas, .InRepository = Annas});
  EXPECT_EQ(zrk::svn::SVNLock(Context(), Products.At("car")), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"update", "--non-interactive", Path},
                                {"lock", "--non-interactive", Path},
                                With(StatusOfBoth, Path)}));
  EXPECT_EQ(RunFolders(), Texts(3, Folder.Host("wc/sub")));
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "Edit", "", "anna\nmine\ntoo"}));
  EXPECT_EQ(Redrawn.Paths(), Paths{"car"});
}

TEST_F(DatabaseFile, IsUnlockedInItsOwnFolderAndThenAskedAbout) {
  ReportCar();
  WriteStatusAttributes(Products.At("car"), kOld);
  EXPECT_EQ(zrk::svn::SVNUnlock(Context(), Products.At("car")), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"unlock", "--non-interactive", Path}, With(StatusOfBoth, Path)}));
  EXPECT_EQ(RunFolders(), Texts(2, Folder.Host("wc/sub")));
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "ReadOnly", "", "\n"}));
}

TEST_F(DatabaseFile, ThatSomebodyElseLockedShowsLockedAndIsNoFailure) {
  Client.When("lock --non-interactive")
      .Error("svn: warning: W160035: Path '/sub/car.CATProduct' is already locked by user 'ben'\r\n")
      .Exit(1);
  Client.When("status").Out(reports::Report({LockedElsewhere(Path, Bens)}));
  EXPECT_EQ(zrk::svn::SVNLock(Context(), Products.At("car")), S_OK);
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "Locked", "", "ben\n"}));
}

TEST_F(DatabaseFile, IsLockedAlsoWhenTheUpdateFails) {
  Client.When("update").Error("svn: E170013\r\n").Exit(1);
  EXPECT_EQ(zrk::svn::SVNLock(Context(), Products.At("car")), S_OK);
  EXPECT_EQ(Arguments().at(1), (Texts{"lock", "--non-interactive", Path}));
}

TEST_F(DatabaseFile, ThatIsNotInTheFeatureTreeIsLockedAndNotAskedAbout) {
  const auto hidden =
      CATBaseUnknown_var::Adopt(new AlteredProduct(Products.At("car"), CATISpecObject::ClassId()));
  EXPECT_EQ(zrk::svn::SVNLock(Context(), hidden), S_OK);
  EXPECT_EQ(zrk::svn::SVNUnlock(Context(), hidden), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"update", "--non-interactive", Path},
                                {"lock", "--non-interactive", Path},
                                {"unlock", "--non-interactive", Path}}));
  EXPECT_EQ(Redrawn.Paths(), Paths{});
}

TEST_F(DatabaseFile, IsTakenAndGivenBackThroughItsManagerWithoutBeingTimed) {
  ReportCar({.InRepository = Bens});
  ZRKECVSManager manager(*Products.At("car").Get());
  manager.CommTime = 7;
  manager.SVNTimings = {1, 2, 3};
  EXPECT_EQ(manager.Edit(), S_OK);
  EXPECT_EQ(manager.Unedit(), S_OK);
  EXPECT_EQ(Client.Runs().size(), 5U);
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "Locked", "", "ben\n"}));
  EXPECT_EQ(manager.CommTime, 7);
  EXPECT_EQ(manager.SVNTimings.StatusCheck, 1);
  EXPECT_EQ(manager.SVNTimings.XMLParsing, 2);
  EXPECT_EQ(manager.SVNTimings.Attributing, 3);
}

// The forms of two documents of one assembly are looked for one by one.
TEST_F(DatabaseFile, OfTheTextFormIsAskedAboutAsThatWantsWhateverTheManagerHas) {
  WriteEntries("old", entries::File(10, "part", "4", "bert"));
  Products.Add("part", "old/part");
  const std::string part = Folder.Host("old/part");
  EXPECT_EQ(zrk::svn::SVNLock(Context(), Products.At("part")), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"update", part}, {"lock", part}, {"status", "-v", "-u", part}}));
  EXPECT_EQ(RunFolders(), Texts(3, Folder.Host("wc")));
  EXPECT_EQ(Shown("part"), (StatusAttributes{"4", "ReadOnly", "", "\n"}));
}

TEST_F(DatabaseFile, ThatWasNeverStoredIsNoneOfADatabase) {
  Products.Add({.Name = "new", .Document = ""});
  EXPECT_EQ(zrk::svn::SVNUnlock(Context(), Products.At("new")), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"unlock", ""}, {"status", "-v", "-u", ""}}));
  EXPECT_EQ(RunFolders(), Texts(2, Folder.Host("wc")));
}

// The query fills a record.

TEST_F(DatabaseFile, FillsTheRecordOfAQuery) {
  ReportCar({.Item = "modified", .Revision = "12", .InRepository = Lock{"t", "ben", "why"}});
  ZRKCVSStatus record;
  record.ExistingTags = "as it was";
  zrk::svn::QueryDatabaseFile(Context(), Path.c_str(), record);
  EXPECT_EQ(Text(record.File), "car.CATProduct");
  EXPECT_EQ(Text(record.Status), "modified");
  EXPECT_EQ(Text(record.WorkingRevision), "12");
  EXPECT_EQ(record.RevisionNumber, 12);
  EXPECT_TRUE(record.IsVersioned);
  EXPECT_TRUE(record.IsInEntries);
  EXPECT_FALSE(record.IsLockedHere);
  EXPECT_TRUE(record.IsLockedByOther);
  EXPECT_EQ(Text(record.LockOwner), "ben");
  EXPECT_EQ(Text(record.AuxText), "why");
  EXPECT_EQ(Text(record.ExistingTags), "as it was");
  EXPECT_EQ(Arguments(), Lists{With(StatusOfBoth, Path)});
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc/sub")});
}

TEST_F(DatabaseFile, ThatTheWorkingCopyDoesNotHoldFillsOnlyItsNameAndWord) {
  ReportCar(NotHeld("", "unversioned"));
  ZRKCVSStatus record;
  record.WorkingRevision = "as it was";
  zrk::svn::QueryDatabaseFile(Context(), Path.c_str(), record);
  EXPECT_EQ(Text(record.File), "car.CATProduct");
  EXPECT_EQ(Text(record.Status), "unversioned");
  EXPECT_EQ(Text(record.WorkingRevision), "as it was");
  EXPECT_FALSE(record.IsVersioned);
  EXPECT_FALSE(record.IsInEntries);
}

TEST_F(DatabaseFile, ThatTheReportDoesNotNameLeavesTheRecordAsItWas) {
  Report({{.Path = Folder.Host("wc/sub/other")}});
  ZRKCVSStatus record;
  record.File = "file";
  record.Status = "status";
  record.WorkingRevision = "revision";
  zrk::svn::QueryDatabaseFile(Context(), Path.c_str(), record);
  EXPECT_EQ(Text(record.File), "file");
  EXPECT_EQ(Text(record.Status), "status");
  EXPECT_EQ(Text(record.WorkingRevision), "revision");
  EXPECT_EQ(Client.Runs().size(), 1U);
}

}  // namespace
