#include <gtest/gtest.h>

#include "attributes/AttributeDictionary.h"
#include "component/manager/CVSStage.h"
#include "support/CapturedOutput.h"
#include "support/DebugMessages.h"
#include "support/Files.h"
#include "support/HostText.h"

namespace {

class RefreshDiscovery : public testing::Test, protected CVSStage {
protected:
  RefreshDiscovery() {
    WriteCVSFolder(Folder / "second/model", "/second/root", "model");
    Products.Add("car", "proj/car").Add("model", "second/model/part").AddWithoutDocument("empty");
  }

  const CapturedOutput quiet_;
};

}  // namespace

TEST_F(RefreshDiscovery, IsFoundFromTheRootWhenTheManagerKnowsNone) {
  ZRKECVSManager manager(Product("empty"));
  manager.RefreshStatus(Root("car"));
  EXPECT_EQ(Text(manager.SandboxRoot), SandboxRoot());
  EXPECT_EQ(Text(manager.CVSRoot), zrk::sample::kCVSRoot);
  ASSERT_EQ(Client.Runs().size(), 2u);
  EXPECT_EQ(Client.Runs()[0].Arguments, Arguments({"status", "-v", "proj\\car"}));
}

TEST_F(RefreshDiscovery, IsNotLookedForAgainWithAnotherRoot) {
  ZRKECVSManager manager(Product("empty"));
  manager.RefreshStatus(Root("car"));
  Client.ClearRuns();
  manager.RefreshStatus(Root("model"));
  EXPECT_EQ(Text(manager.SandboxRoot), SandboxRoot());
  EXPECT_EQ(Text(manager.CVSRoot), zrk::sample::kCVSRoot);
  ASSERT_EQ(Client.Runs().size(), 2u);
  EXPECT_EQ(Client.Runs()[0].Arguments, Arguments({"status", "-v", "second\\model\\part"}));
  EXPECT_EQ(Client.Runs()[0].Folder, Folder.Host());
}

TEST_F(RefreshDiscovery, IsThatOfTheManagersProductWhenItHasOne) {
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("model"));
  EXPECT_EQ(Text(manager.SandboxRoot), SandboxRoot());
  ASSERT_EQ(Client.Runs().size(), 2u);
  EXPECT_EQ(Client.Runs()[0].Arguments, Arguments({"status", "-v", "second\\model\\part"}));
}

TEST_F(RefreshDiscovery, IsLookedForWhenItsRootAloneIsMissing) {
  std::filesystem::remove(Folder / "proj/CVS/Root");
  ZRKECVSManager manager(Product("car"));
  EXPECT_EQ(Text(manager.SandboxRoot), SandboxRoot());
  manager.RefreshStatus(Root("model"));
  EXPECT_EQ(Text(manager.SandboxRoot), Folder.Host("second") + "\\");
  EXPECT_EQ(Text(manager.CVSRoot), "/second/root");
  EXPECT_EQ(Client.Runs().size(), 2u);
}

TEST_F(RefreshDiscovery, IsKeptAsFarAsItIsKnownWhenTheRootTellsNothing) {
  std::filesystem::remove(Folder / "proj/CVS/Root");
  ZRKECVSManager manager(Product("car"));
  manager.SVNWorkingFolder = "\\svn";
  manager.RefreshStatus(Root("empty"));
  EXPECT_EQ(Text(manager.SandboxRoot), SandboxRoot());
  EXPECT_EQ(Text(manager.SVNWorkingFolder), "\\svn");
  EXPECT_TRUE(Client.Runs().empty());

  manager.SandboxRoot = "";
  manager.CVSRoot = "/known/root";
  manager.RefreshStatus(Root("empty"));
  EXPECT_EQ(Text(manager.CVSRoot), "/known/root");
}

TEST_F(RefreshDiscovery, StaysSubversionsWhenTheProductTellsNothing) {
  ZRKECVSManager manager(Product("car"));
  manager.IsSVN = true;
  manager.DiscoverWorkingCopy(Products.At("empty"));
  EXPECT_TRUE(manager.IsSVN);
}

TEST_F(RefreshDiscovery, IsLookedForBeforeTheAttributeClassIsAskedFor) {
  standin::RemoveAttributeDictionary();
  ZRKECVSManager manager(Product("empty"));
  manager.RefreshStatus(Root("car"));
  EXPECT_EQ(Text(manager.SandboxRoot), SandboxRoot());
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(RefreshDiscovery, ThatIsSubversionsEndsThisCallAndIsUsedByTheNext) {
  Products.Add("late", "later/late");
  ZRKECVSManager manager(Product("late"));
  EXPECT_FALSE(manager.IsSVN);
  WriteFile(Folder / "later/.svn/entries", "10\n");
  DebugMessages messages;
  manager.RefreshStatus(Root("late"));
  EXPECT_TRUE(manager.IsSVN);
  EXPECT_EQ(Text(manager.SVNWorkingFolder), Folder.Host("later"));
  EXPECT_EQ(Text(manager.SandboxRoot), "");
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_TRUE(messages.All().empty());

  manager.RefreshStatus(Root("car"));
  ASSERT_FALSE(Client.Runs().empty());
  for (const ClientRun& run : Client.Runs()) {
    EXPECT_EQ(run.Program, "svn.exe");
    EXPECT_EQ(run.Folder, Folder.Host("later"));
  }
  ASSERT_EQ(messages.All().size(), 3u);
  EXPECT_TRUE(messages.All()[0].starts_with(L"\nSVN status check time: "));
}

// The manager is one of Subversion from then on, but this call has what the route of CVS needs.
TEST_F(RefreshDiscovery, ThatIsOfBothLetsThisCallGoOnAsCVS) {
  WriteFile(Folder / "second/model/.svn/entries", "10\n");
  ZRKECVSManager manager(Product("empty"));
  manager.RefreshStatus(Root("model"));
  EXPECT_TRUE(manager.IsSVN);
  EXPECT_EQ(Text(manager.SandboxRoot), Folder.Host("second") + "\\");
  ASSERT_EQ(Client.Runs().size(), 2u);
  EXPECT_EQ(Client.Runs()[0].Program, "svn.exe");
  EXPECT_EQ(Client.Runs()[0].Arguments, (std::vector<std::string>{"status", "-v", "model\\part"}));
}
