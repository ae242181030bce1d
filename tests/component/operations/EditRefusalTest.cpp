#include <filesystem>

#include "component/operations/OperationTest.h"

// What must be there before a client is run.

namespace {

class EditRefusal : public OperationTest {
protected:
  // Without a word to anybody.
  void ExpectRefused(ZRKECVSManager& manager) {
    EXPECT_EQ(manager.Edit(), E_FAIL);
    EXPECT_TRUE(Client.Runs().empty());
    EXPECT_TRUE(Dialogs().empty());
    EXPECT_TRUE(Redraws.empty());
  }

  // A manager that knows a working copy though its product has no document to find it by.
  ZRKECVSManager& UseManagerInWorkingCopy(const std::string& product) {
    ZRKECVSManager& manager = UseManagerOf(product);
    manager.SandboxRoot = (Folder.Host() + "\\").c_str();
    manager.CVSRoot = "/cvs/root";
    return manager;
  }

  std::filesystem::path CVSFile(const char* name) const { return Folder / "proj/sub/CVS" / name; }
};

class EditWithoutCVS : public OperationTest {
protected:
  EditWithoutCVS() : OperationTest(InstalledClients::SVNOnly) {}
};

}  // namespace

TEST_F(EditWithoutCVS, TheUserIsToldAndNothingIsRun) {
  EXPECT_EQ(Manager().Edit(), E_FAIL);
  EXPECT_TRUE(Client.Runs().empty());
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "Path of cvs.exe is not specified");
  EXPECT_TRUE(Redraws.empty());
}

TEST_F(EditWithoutCVS, InASubversionWorkingCopyItIsNotMissed) {
  Manager().IsSVN = true;
  Manager().SVNWorkingFolder = Folder.Host("proj\\sub").c_str();
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_TRUE(Dialogs().empty());
}

TEST_F(EditRefusal, InASubversionWorkingCopyTheFileIsLockedAndCVSIsNotRun) {
  Manager().IsSVN = true;
  Manager().SVNWorkingFolder = Folder.Host("proj\\sub").c_str();
  EXPECT_EQ(Manager().Edit(), 0);
  ASSERT_GE(Client.Runs().size(), 2u);
  EXPECT_EQ(Client.Runs()[0].Joined(), "update " + Folder.Host(kDocument));
  EXPECT_EQ(Client.Runs()[1].Joined(), "lock " + Folder.Host(kDocument));
  for (const ClientRun& run : Client.Runs()) EXPECT_EQ(run.Program, "svn.exe");
}

TEST_F(EditRefusal, InASubversionWorkingCopyTheLocksRefusalIsPassedOn) {
  Products.AddWithoutDocument("empty");
  ZRKECVSManager& manager = UseManagerInWorkingCopy("empty");
  manager.IsSVN = true;
  ExpectRefused(manager);
}

TEST_F(EditRefusal, OutsideAWorkingCopy) {
  Products.Add("bus", "elsewhere/bus.CATProduct");
  ExpectRefused(UseManagerOf("bus"));
}

TEST_F(EditRefusal, WithoutARoot) {
  std::filesystem::remove(CVSFile("Root"));
  ExpectRefused(UseManagerOf("car"));
}

TEST_F(EditRefusal, WithoutASandbox) {
  WriteFile(CVSFile("Repository"), "somewhere else\n");
  ExpectRefused(UseManagerOf("car"));
}

TEST_F(EditRefusal, AWorkingCopyMadeLaterIsFound) {
  Products.Add("bus", "later/bus.CATProduct");
  ZRKECVSManager& manager = UseManagerOf("bus");
  ExpectRefused(manager);
  WriteCVSFolder(Folder / "later", "/cvs/root", "later");
  EXPECT_EQ(manager.Edit(), 0);
}

TEST_F(EditRefusal, ARootWrittenLaterIsFound) {
  std::filesystem::remove(CVSFile("Root"));
  ExpectRefused(Manager());
  WriteFile(CVSFile("Root"), "/cvs/later\n");
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_STREQ(Manager().CVSRoot.ConvertToChar(), "/cvs/later");
}

TEST_F(EditRefusal, AWorkingCopyThatIsKnownIsNotLookedForAgain) {
  Manager();
  WriteFile(CVSFile("Root"), "/cvs/other\n");
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_STREQ(Manager().CVSRoot.ConvertToChar(), "/cvs/root");
}

TEST_F(EditRefusal, WithoutADocument) {
  Products.AddWithoutDocument("empty");
  ExpectRefused(UseManagerInWorkingCopy("empty"));
}

TEST_F(EditRefusal, WithoutALinkableObject) {
  Products.AddNotLinkable("plain");
  ExpectRefused(UseManagerInWorkingCopy("plain"));
}

TEST_F(EditRefusal, OfAnInstanceWhoseReferenceIsNotLoaded) {
  Products.Add("plant", "plant.CATProduct").Place("plant", "lost.1", std::nullopt);
  ExpectRefused(UseManagerInWorkingCopy("plant/lost.1"));
}
