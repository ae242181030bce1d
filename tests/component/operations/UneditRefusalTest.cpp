#include <filesystem>

#include "component/operations/OperationTest.h"

// What must be there before a client is run.

namespace {

class UneditRefusal : public OperationTest {
protected:
  void ExpectRefused(ZRKECVSManager& manager) {
    EXPECT_EQ(manager.Unedit(), E_FAIL);
    EXPECT_TRUE(Client.Runs().empty());
    EXPECT_TRUE(Dialogs().empty());
    EXPECT_TRUE(Redraws.empty());
  }

  ZRKECVSManager& UseManagerInWorkingCopy(const std::string& product) {
    ZRKECVSManager& manager = UseManagerOf(product);
    manager.SandboxRoot = (Folder.Host() + "\\").c_str();
    manager.CVSRoot = "/cvs/root";
    return manager;
  }
};

class UneditWithoutCVS : public OperationTest {
protected:
  UneditWithoutCVS() : OperationTest(InstalledClients::SVNOnly) {}
};

}  // namespace

TEST_F(UneditWithoutCVS, TheUserIsToldAndNothingIsRun) {
  EXPECT_EQ(Manager().Unedit(), E_FAIL);
  EXPECT_TRUE(Client.Runs().empty());
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "Path of cvs.exe is not specified");
}

TEST_F(UneditWithoutCVS, InASubversionWorkingCopyItIsNotMissed) {
  Manager().IsSVN = true;
  Manager().SVNWorkingFolder = Folder.Host("proj\\sub").c_str();
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_TRUE(Dialogs().empty());
}

TEST_F(UneditRefusal, InASubversionWorkingCopyTheFileIsUnlockedWhateverItsMarkAndCVSIsNotRun) {
  Manager().IsSVN = true;
  Manager().SVNWorkingFolder = Folder.Host("proj\\sub").c_str();
  EXPECT_EQ(Manager().Unedit(), 0);
  ASSERT_GE(Client.Runs().size(), 1u);
  EXPECT_EQ(Client.Runs()[0].Joined(), "unlock " + Folder.Host(kDocument));
  for (const ClientRun& run : Client.Runs()) EXPECT_EQ(run.Program, "svn.exe");
}

TEST_F(UneditRefusal, InASubversionWorkingCopyTheUnlocksRefusalIsPassedOn) {
  Products.AddWithoutDocument("empty");
  ZRKECVSManager& manager = UseManagerInWorkingCopy("empty");
  manager.IsSVN = true;
  ExpectRefused(manager);
}

TEST_F(UneditRefusal, OutsideAWorkingCopy) {
  Products.Add("bus", "elsewhere/bus.CATProduct");
  ExpectRefused(UseManagerOf("bus"));
}

TEST_F(UneditRefusal, WithoutARoot) {
  std::filesystem::remove(Folder / "proj/sub/CVS/Root");
  ExpectRefused(UseManagerOf("car"));
}

TEST_F(UneditRefusal, WithoutASandbox) {
  WriteFile(Folder / "proj/sub/CVS/Repository", "somewhere else\n");
  ExpectRefused(UseManagerOf("car"));
}

TEST_F(UneditRefusal, AWorkingCopyMadeLaterIsFound) {
  Products.Add("bus", "later/bus.CATProduct");
  WriteStatusAttributes(Products.At("bus"), {"", "Edit", "", ""});
  ZRKECVSManager& manager = UseManagerOf("bus");
  ExpectRefused(manager);
  WriteCVSFolder(Folder / "later", "/cvs/root", "later");
  const CapturedOutput output;
  EXPECT_EQ(manager.Unedit(), 0);
}

TEST_F(UneditRefusal, WithoutADocument) {
  Products.AddWithoutDocument("empty");
  WriteStatusAttributes(Products.At("empty"), {"", "Edit", "", ""});
  ExpectRefused(UseManagerInWorkingCopy("empty"));
}

TEST_F(UneditRefusal, WithoutALinkableObject) {
  Products.AddNotLinkable("plain");
  WriteStatusAttributes(Products.At("plain"), {"", "Edit", "", ""});
  ExpectRefused(UseManagerInWorkingCopy("plain"));
}

TEST_F(UneditRefusal, OfAnInstanceWhoseReferenceIsNotLoaded) {
  Products.Add("plant", "plant.CATProduct").Place("plant", "lost.1", std::nullopt);
  ExpectRefused(UseManagerInWorkingCopy("plant/lost.1"));
}
