// The single-file query of a manager of a Subversion working copy, by the form of the file's own folder.

#include <gtest/gtest.h>

#include "component/manager/SlowStep.h"
#include "component/svn/DatabaseStage.h"
#include "manager/ZRKECVSManager.h"
#include "support/DebugMessages.h"
#include "support/HostText.h"

namespace {

using namespace reports;

class DatabaseQuery : public DatabaseStage {
protected:
  DatabaseQuery() {
    Products.Add("car", "wc/sub/car").Add("wheel", "wc/sub/wheel").Place("car", "wheel.1", "wheel");
  }

  ZRKECVSManager& Manager() {
    if (!manager_) manager_.emplace(*Products.At("car").Get());
    return *manager_;
  }

  ZRKCVSStatus Asked(ZRKECVSManager& manager, const std::string& product) {
    ZRKCVSStatus record;
    record.Status = "as it was";
    EXPECT_EQ(manager.GetFileStatus(CATIProduct_var(Products.At(product)), record), S_OK);
    return record;
  }

private:
  // Made when the products are there.
  std::optional<ZRKECVSManager> manager_;
};

TEST_F(DatabaseQuery, FillsTheRecordInOneRun) {
  Report({{.Path = Folder.Host("wc/sub/wheel"), .Revision = "5", .InRepository = Lock{"t", "ben", "why"}}});
  const ZRKCVSStatus record = Asked(Manager(), "wheel");
  EXPECT_EQ(Text(record.File), "wheel");
  EXPECT_EQ(Text(record.Status), "normal");
  EXPECT_EQ(Text(record.WorkingRevision), "5");
  EXPECT_TRUE(record.IsLockedByOther);
  EXPECT_EQ(Text(record.LockOwner), "ben");
  EXPECT_EQ(Text(record.AuxText), "why");
  EXPECT_EQ(Arguments(), Lists{With(StatusOfBoth, Folder.Host("wc/sub/wheel"))});
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc/sub")});
}

TEST_F(DatabaseQuery, TakesASecondRunWithoutTheRepository) {
  ReportOutOfReach({{.Path = Folder.Host("wc/sub/car"), .Own = Lock{"t", "anna"}}});
  const ZRKCVSStatus record = Asked(Manager(), "car");
  EXPECT_TRUE(record.IsLockedHere);
  EXPECT_EQ(Client.Runs().size(), 2U);
}

TEST_F(DatabaseQuery, LeavesTheRecordAsItWasWhenTheClientSaysNothingOfTheFile) {
  EXPECT_EQ(Text(Asked(Manager(), "car").Status), "as it was");
  Report({{.Path = Folder.Host("wc/sub/wheel")}});
  EXPECT_EQ(Text(Asked(Manager(), "car").Status), "as it was");
}

TEST_F(DatabaseQuery, WritesAndRedrawsNothing) {
  Report({{.Path = Folder.Host("wc/sub/car")}});
  Asked(Manager(), "car");
  EXPECT_EQ(Shown("car"), std::nullopt);
  EXPECT_TRUE(Redrawn.Paths().empty());
}

TEST_F(DatabaseQuery, OfAnInstanceOrWithoutADocumentStartsNothing) {
  Products.AddWithoutDocument("plain").Add({.Name = "new", .Document = ""});
  for (const char* product : {"car/wheel.1", "plain", "new"}) {
    EXPECT_EQ(Text(Asked(Manager(), product).Status), "as it was") << product;
  }
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(DatabaseQuery, OfADocumentInNoWorkingCopyStartsNothing) {
  Products.Add("bolt", "plain/bolt");
  const DebugMessages messages;
  EXPECT_EQ(Text(Asked(Manager(), "bolt").Status), "as it was");
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_TRUE(messages.All().empty());
}

TEST_F(DatabaseQuery, OfADocumentInACVSFolderStartsNothingEither) {
  WriteCVS("cvs");
  WriteCVS("wc/cvs");
  Products.Add("beside", "cvs/part").Add("within", "wc/cvs/part");
  for (const char* product : {"beside", "within"}) {
    EXPECT_EQ(Text(Asked(Manager(), product).Status), "as it was") << product;
  }
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(DatabaseQuery, OfADocumentWithTextEntriesRunsInTheFolderOfCVSAsEver) {
  WriteEntries("old", entries::Folder("12"));
  Products.Add("part", "old/part");
  Manager().SandboxRoot = (Folder.Host("old") + "\\").c_str();
  Asked(Manager(), "part");
  EXPECT_EQ(Arguments(), (Lists{{"status", "-v", "part"}}));
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("old")});
}

TEST_F(DatabaseQuery, OfADocumentWithADatabaseGoesByThatAlsoInAManagerOfTheTextForm) {
  WriteEntries("old", entries::Folder("12"));
  Products.Add("part", "old/part");
  Report({{.Path = Folder.Host("wc/sub/car"), .Revision = "3"}});
  ZRKECVSManager manager(*Products.At("part").Get());
  EXPECT_EQ(Text(Asked(manager, "car").WorkingRevision), "3");
}

TEST_F(DatabaseQuery, OfAManagerOfCVSAsksThat) {
  WriteCVS("cvs");
  Products.Add("part", "cvs/part");
  ZRKECVSManager manager(*Products.At("part").Get());
  Asked(manager, "car");
  ASSERT_EQ(Client.Runs().size(), 1U);
  EXPECT_EQ(Client.Runs()[0].Program, "cvs.exe");
}

TEST_F(DatabaseQuery, CountsIntoTheCommunicationTimeAndNothingElse) {
  Report({});
  Manager().CommTime = 1'000'000;
  Manager().SVNTimings = {1, 2, 3};
  const SlowTimes times = WithSlowLaunches(L"status", [&] { Asked(Manager(), "car"); });
  EXPECT_GE(Manager().CommTime, 1'000'000 + times.Within);
  EXPECT_EQ(Manager().SVNTimings.StatusCheck, 1);
  EXPECT_EQ(Manager().SVNTimings.XMLParsing, 2);
  EXPECT_EQ(Manager().SVNTimings.Attributing, 3);
}

}  // namespace
