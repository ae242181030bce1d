// Edit and Unedit of a product in a Subversion working copy hand over to lock and unlock.

#include <gtest/gtest.h>

#include "SVNStage.h"
#include "ZRKICVSManager.h"
#include "manager/ZRKECVSManager.h"
#include "support/DialogRecorder.h"

namespace {

using namespace entries;

using Lists = std::vector<std::vector<std::string>>;

class EditHandOver : public SVNStage {
protected:
  EditHandOver() {
    Products.Add("car", "wc/car.CATProduct");
    WriteEntries("wc", Listed());
  }

  static std::string Listed(const LockLines& lock = {}) {
    return File(10, "car.CATProduct", "9", "bert", lock);
  }
  ZRKICVSManager_var Manager() const { return Products.At("car"); }

  const std::string Path = Folder.Host("wc/car.CATProduct");
  const LockLines OwnLock{kToken, "anna", "", ""};
};

TEST_F(EditHandOver, EditIsALock) {
  Client.When("lock " + Path).Store(".svn/entries", Format(10) + Listed(OwnLock));
  EXPECT_EQ(Manager()->Edit(), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"update", Path}, {"lock", Path}, {"status", "-v", "-u", Path}}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), (StatusAttributes{"9", "Edit", "", "anna\n"}));
}

TEST_F(EditHandOver, UneditIsAnUnlock) {
  WriteEntries("wc", Listed(OwnLock));
  Client.When("unlock").Store(".svn/entries", Format(10) + Listed());
  EXPECT_EQ(Manager()->Unedit(), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"unlock", Path}, {"status", "-v", "-u", Path}}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), (StatusAttributes{"9", "ReadOnly", "", "\n"}));
}

TEST_F(EditHandOver, UneditDoesNotAskWhatTheAttributesSay) {
  WriteStatusAttributes(Products.At("car"), {"9", "Locked", "", ""});
  EXPECT_EQ(Manager()->Unedit(), S_OK);
  EXPECT_EQ(Client.Runs().size(), 2U);
}

TEST_F(EditHandOver, ALockHeldElsewhereShowsNoDialogAndIsNoFailure) {
  const DialogRecorder dialogs;
  Client.When("lock " + Path).Error("svn: warning: W160035: already locked by user 'bert'\r\n").Exit(1);
  Client.When("status").Out(ForeignLockReport(Path));
  EXPECT_EQ(Manager()->Edit(), S_OK);
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), (StatusAttributes{"9", "Locked", "", "\n"}));
  EXPECT_TRUE(dialogs.Requests().empty());
}

TEST_F(EditHandOver, WorksInAFolderThatIsAlsoACVSWorkingCopy) {
  WriteFile(Folder / "wc" / "CVS" / "Repository", "wc\n");
  WriteFile(Folder / "wc" / "CVS" / "Root", "/cvs\n");
  EXPECT_EQ(Manager()->Edit(), S_OK);
  EXPECT_EQ(Manager()->Unedit(), S_OK);
  ASSERT_EQ(Client.Runs().size(), 5U);
  for (const ClientRun& run : Client.Runs()) EXPECT_EQ(run.Program, "svn.exe");
}

TEST_F(EditHandOver, IsNotTimed) {
  ZRKECVSManager manager(*Products.At("car").Get());
  manager.CommTime = 7;
  manager.SVNTimings = {1, 2, 3};
  manager.Edit();
  manager.Unedit();
  EXPECT_EQ(manager.CommTime, 7);
  EXPECT_EQ(manager.SVNTimings.StatusCheck, 1);
  EXPECT_EQ(manager.SVNTimings.XMLParsing, 2);
  EXPECT_EQ(manager.SVNTimings.Attributing, 3);
}

TEST_F(EditHandOver, OfAProductWithoutADocumentFailsAndRunsNothing) {
  Products.AddNotLinkable("group").AddWithoutDocument("plain").Place("car", "gone.1", std::nullopt);
  for (const std::string path : {"group", "plain", "car/gone.1"}) {
    ZRKECVSManager manager(*Products.At(path).Get());
    manager.IsSVN = true;
    manager.SVNWorkingFolder = Folder.Host("wc").c_str();
    EXPECT_EQ(manager.Edit(), E_FAIL) << path;
    EXPECT_EQ(manager.Unedit(), E_FAIL) << path;
  }
  EXPECT_TRUE(Client.Runs().empty());
}

TEST(EditHandOverWithoutCVS, NeedsNoCVSAndShowsNoNotice) {
  const Session session;
  const TemporaryFolder folder;
  ScriptedClient client(InstalledClients::SVNOnly);
  const DialogRecorder dialogs;
  Assembly products(folder);
  products.Add("car", "wc/car.CATProduct");
  WriteFile(folder / "wc" / ".svn" / "entries", "10\n");
  const ZRKICVSManager_var manager = products.At("car");
  EXPECT_EQ(manager->Edit(), S_OK);
  EXPECT_EQ(manager->Unedit(), S_OK);
  EXPECT_EQ(client.Runs().size(), 5U);
  EXPECT_TRUE(dialogs.Requests().empty());
}

}  // namespace
