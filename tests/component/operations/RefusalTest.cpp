#include <filesystem>

#include "component/operations/OperationTest.h"

// What must be there before Edit or Unedit runs a client.

namespace {

struct NamedOperation {
  const char* Name;
  HRESULT (ZRKECVSManager::*Perform)();
};
constexpr NamedOperation kOperations[] = {{"Edit", &ZRKECVSManager::Edit},
                                          {"Unedit", &ZRKECVSManager::Unedit}};

std::string NameOf(const testing::TestParamInfo<NamedOperation>& info) {
  return info.param.Name;
}

class Refusal : public OperationTest, public testing::WithParamInterface<NamedOperation> {
protected:
  explicit Refusal(InstalledClients installed = InstalledClients::Both) : OperationTest(installed) {}

  HRESULT Perform(ZRKECVSManager& manager) { return (manager.*GetParam().Perform)(); }

  // Without a word to anybody.
  void ExpectRefused(ZRKECVSManager& manager) {
    EXPECT_EQ(Perform(manager), E_FAIL);
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

  void MarkAsTaken(const std::string& product) {
    WriteStatusAttributes(Products.At(product), {"", "Edit", "", ""});
  }

  std::filesystem::path CVSFile(const char* name) const { return Folder / "proj/sub/CVS" / name; }
};

class WithoutCVS : public Refusal {
protected:
  WithoutCVS() : Refusal(InstalledClients::SVNOnly) {}
};

INSTANTIATE_TEST_SUITE_P(Operations, Refusal, testing::ValuesIn(kOperations), NameOf);
INSTANTIATE_TEST_SUITE_P(Operations, WithoutCVS, testing::ValuesIn(kOperations), NameOf);

}  // namespace

TEST_P(WithoutCVS, TheUserIsToldAndNothingIsRun) {
  EXPECT_EQ(Perform(Manager()), E_FAIL);
  EXPECT_TRUE(Client.Runs().empty());
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "Path of cvs.exe is not specified");
  EXPECT_TRUE(Redraws.empty());
}

TEST_P(WithoutCVS, InASubversionWorkingCopyItIsNotMissed) {
  Manager().IsSVN = true;
  Manager().SVNWorkingFolder = Folder.Host("proj\\sub").c_str();
  EXPECT_EQ(Perform(Manager()), 0);
  EXPECT_TRUE(Dialogs().empty());
}

TEST_P(Refusal, InASubversionWorkingCopyIsThatOfSubversion) {
  Products.AddWithoutDocument("empty");
  ZRKECVSManager& manager = UseManagerInWorkingCopy("empty");
  manager.IsSVN = true;
  ExpectRefused(manager);
}

TEST_P(Refusal, OutsideAWorkingCopy) {
  Products.Add("bus", "elsewhere/bus.CATProduct");
  ExpectRefused(UseManagerOf("bus"));
}

TEST_P(Refusal, WithoutARoot) {
  std::filesystem::remove(CVSFile("Root"));
  ExpectRefused(UseManagerOf("car"));
}

TEST_P(Refusal, WithoutASandbox) {
  WriteFile(CVSFile("Repository"), "somewhere else\n");
  ExpectRefused(UseManagerOf("car"));
}

TEST_P(Refusal, WithoutADocument) {
  Products.AddWithoutDocument("empty");
  MarkAsTaken("empty");
  ExpectRefused(UseManagerInWorkingCopy("empty"));
}

TEST_P(Refusal, WithoutALinkableObject) {
  Products.AddNotLinkable("plain");
  MarkAsTaken("plain");
  ExpectRefused(UseManagerInWorkingCopy("plain"));
}

TEST_P(Refusal, OfAnInstanceWhoseReferenceIsNotLoaded) {
  Products.Add("plant", "plant.CATProduct").Place("plant", "lost.1", std::nullopt);
  ExpectRefused(UseManagerInWorkingCopy("plant/lost.1"));
}

TEST_P(Refusal, EndsWhenAWorkingCopyIsMade) {
  Products.Add("bus", "later/bus.CATProduct");
  MarkAsTaken("bus");
  ZRKECVSManager& manager = UseManagerOf("bus");
  ExpectRefused(manager);
  WriteCVSFolder(Folder / "later", "/cvs/root", "later");
  const CapturedOutput output;
  EXPECT_EQ(Perform(manager), 0);
}

TEST_P(Refusal, EndsWhenTheRootIsWritten) {
  MarkAsTaken("car");
  std::filesystem::remove(CVSFile("Root"));
  ExpectRefused(Manager());
  WriteFile(CVSFile("Root"), "/cvs/later\n");
  const CapturedOutput output;
  EXPECT_EQ(Perform(Manager()), 0);
  EXPECT_STREQ(Manager().CVSRoot.ConvertToChar(), "/cvs/later");
}

TEST_P(Refusal, DoesNotComeFromAWorkingCopyThatIsKnown) {
  MarkAsTaken("car");
  Manager();
  WriteFile(CVSFile("Root"), "/cvs/other\n");
  const CapturedOutput output;
  EXPECT_EQ(Perform(Manager()), 0);
  EXPECT_STREQ(Manager().CVSRoot.ConvertToChar(), "/cvs/root") << "it was looked for again";
}

TEST_P(Refusal, DoesNotComeFromADocumentThatWasNeverStored) {
  Products.Add({.Name = "new", .Document = ""});
  MarkAsTaken("new");
  const CapturedOutput output;
  EXPECT_EQ(Perform(UseManagerInWorkingCopy("new")), 0);
  EXPECT_FALSE(Client.Runs().empty());
}
