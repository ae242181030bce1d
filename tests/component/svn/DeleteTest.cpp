// Deleting a file from Subversion, through the interface of its product's manager.

#include <gtest/gtest.h>

#include "SVNStage.h"
#include "ZRKICVSManager.h"
#include "support/DebugMessages.h"

namespace {

using namespace entries;

using Lists = std::vector<std::vector<std::string>>;

class SVNDelete : public SVNStage {
protected:
  SVNDelete() {
    Products.Add("car", "wc/car.CATProduct");
    WriteEntries("wc", File(10, "car.CATProduct", "9", "bert"));
  }

  HRESULT Delete(const std::string& path) const {
    const ZRKICVSManager_var manager = Products.At("car");
    return manager->SVNDelete(path.c_str());
  }

  const std::string Path = Folder.Host("wc/car.CATProduct");
};

TEST_F(SVNDelete, RunsTheClientOnceWithItsFixedMessage) {
  EXPECT_EQ(Delete(Path), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"delete", "-mzq", "--force", Path}}));
  EXPECT_EQ(Client.Runs().at(0).Program, "svn.exe");
}

TEST_F(SVNDelete, RunsInTheWorkingFolderWhereverTheFileIs) {
  const std::string path = Folder.Host("elsewhere/old wheel.CATPart");
  EXPECT_EQ(Delete(path), S_OK);
  EXPECT_EQ(Client.Runs().at(0).Folder, Folder.Host("wc"));
  EXPECT_EQ(Arguments(), (Lists{{"delete", "-mzq", "--force", path}}));
}

TEST_F(SVNDelete, GivesThePathAsItGotIt) {
  EXPECT_EQ(Delete("sub/wheel left.CATPart"), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"delete", "-mzq", "--force", "sub/wheel left.CATPart"}}));
}

TEST_F(SVNDelete, OutsideSubversionIsRefusedAndRunsNothing) {
  std::filesystem::remove(Folder / "wc" / ".svn" / "entries");
  EXPECT_EQ(Delete(Path), E_FAIL);
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNDelete, InACVSWorkingCopyIsRefusedAndRunsNothing) {
  std::filesystem::remove_all(Folder / "wc" / ".svn");
  WriteFile(Folder / "wc" / "CVS" / "Repository", "wc\n");
  WriteFile(Folder / "wc" / "CVS" / "Root", "/cvs\n");
  EXPECT_EQ(Delete(Path), E_FAIL);
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNDelete, DoesNotLookAtWhatTheClientAnswers) {
  Client.When("delete").Error("svn: E155010: not found\r\n").Exit(1);
  EXPECT_EQ(Delete(Path), S_OK);
}

TEST_F(SVNDelete, TouchesNoAttributesAndRedrawsNothing) {
  const StatusAttributes old{"7", "Edit", "R1", "old"};
  WriteStatusAttributes(Products.At("car"), old);
  Delete(Path);
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), old);
  EXPECT_TRUE(Redrawn.Paths().empty());
}

TEST(SVNDeleteWithoutSVN, SucceedsAndTellsTheDebuggerThatTheLaunchFailed) {
  const Session session;
  const TemporaryFolder folder;
  ScriptedClient client(InstalledClients::CVSOnly);
  Assembly products(folder);
  products.Add("car", "wc/car.CATProduct");
  WriteFile(folder / "wc" / ".svn" / "entries", "10\n");
  const DebugMessages messages;
  const ZRKICVSManager_var manager = products.At("car");
  EXPECT_EQ(manager->SVNDelete(folder.Host("wc/car.CATProduct").c_str()), S_OK);
  EXPECT_EQ(messages.All(),
            (std::vector<std::wstring>{L"CreateProcess failed\n", L"Create process failed with"}));
  EXPECT_TRUE(client.Runs().empty());
}

}  // namespace
