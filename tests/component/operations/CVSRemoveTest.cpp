#include "component/operations/OperationTest.h"
#include "support/DebugMessages.h"
#include "support/Launches.h"

namespace {

class CVSRemove : public OperationTest {
protected:
  HRESULT Remove(const std::string& file) { return Manager().CVSRemove(file.c_str()); }
};

class CVSRemoveWithoutCVS : public OperationTest {
protected:
  CVSRemoveWithoutCVS() : OperationTest(InstalledClients::SVNOnly) {}
};

}  // namespace

TEST_F(CVSRemove, GivesTheRootTwiceAndTheNameOfTheFile) {
  EXPECT_EQ(Remove(Folder.Host("proj\\sub\\a.txt")), 0);
  ASSERT_EQ(Client.Runs().size(), 1u);
  EXPECT_EQ(Client.Runs()[0].Program, "cvs.exe");
  EXPECT_EQ(Client.Runs()[0].Arguments,
            (TextLines{"-d", "/cvs/root", "-d", "/cvs/root", "remove", "-f", "a.txt"}));
}

TEST_F(CVSRemove, RunsInTheFilesOwnFolder) {
  std::filesystem::create_directories(Folder / "other folder");
  EXPECT_EQ(Remove(Folder.Host("other folder\\a.txt")), 0);
  ASSERT_EQ(Client.Runs().size(), 1u);
  EXPECT_EQ(Client.Runs()[0].Folder, Folder.Host("other folder"));
}

TEST_F(CVSRemove, ANameWithBlanksReachesTheClientWhole) {
  EXPECT_EQ(Remove(Folder.Host("proj\\sub\\a b  c.txt")), 0);
  ASSERT_EQ(Client.Runs().size(), 1u);
  EXPECT_EQ(Client.Runs()[0].Arguments.back(), "a b  c.txt");
}

TEST_F(CVSRemove, NeedNotBeTheManagersOwnFile) {
  EXPECT_EQ(Remove(Folder.Host("not there.txt")), 0);
  EXPECT_EQ(Client.Runs().size(), 1u);
}

TEST_F(CVSRemove, InASubversionWorkingCopyIsRefusedWithoutAWord) {
  Manager().IsSVN = true;
  Manager().CVSExePath = "";
  EXPECT_EQ(Remove(Folder.Host("proj\\sub\\a.txt")), E_FAIL);
  EXPECT_EQ(Remove(""), E_FAIL);
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_TRUE(Dialogs().empty());
}

TEST_F(CVSRemoveWithoutCVS, TheUserIsToldAndNothingIsRun) {
  EXPECT_EQ(Manager().CVSRemove(Folder.Host("proj\\sub\\a.txt").c_str()), E_FAIL);
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Title, "Version Control");
  EXPECT_EQ(Dialogs()[0].Message, "Path of cvs.exe is not specified");
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(CVSRemove, WhatTheClientAnswersIsNotLookedAt) {
  Client.When("remove").Once().Error("cvs remove: nothing known about a.txt\r\n").Exit(1);
  Client.When("remove").Once().Out("revert changes?").ReadAll();
  Client.When("remove").Crash();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Remove(Folder.Host("a.txt")), 0);
  EXPECT_EQ(Client.Runs().size(), 3u);
  EXPECT_TRUE(Dialogs().empty());
}

TEST_F(CVSRemove, AFailedLaunchIsOnlyToldToTheDebugger) {
  const DebugMessages messages;
  EXPECT_EQ(Remove(Folder.Host("missing\\a.txt")), 0);
  EXPECT_EQ(messages.All(),
            (std::vector<std::wstring>{L"CreateProcess failed\n", L"Create process failed with"}));
  EXPECT_TRUE(Dialogs().empty());
}

TEST_F(CVSRemove, APathWithoutAFolderRemovesNothing) {
  Manager().SandboxRoot = Folder.Host("proj\\sub\\").c_str();
  const DebugMessages messages;
  EXPECT_EQ(Remove("a.txt"), 0);
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_EQ(messages.All(),
            (std::vector<std::wstring>{L"CreateProcess failed\n", L"Create process failed with"}));
}

TEST_F(CVSRemove, LeavesAttributesAndCachesAsTheyWere) {
  const StatusAttributes before{"1.1", "Edit", "R1", "text"};
  WriteStatusAttributes(Car(), before);
  Manager().StatusBlockTable = {{Folder.Host(kDocument), "b"}};
  Manager().EditTable = {{Folder.Host(kDocument), "d"}};
  EXPECT_EQ(Remove(Folder.Host("proj\\sub\\car body.CATProduct")), 0);
  EXPECT_EQ(ReadStatusAttributes(Car()), before);
  EXPECT_EQ(Manager().StatusBlockTable.size(), 1u);
  EXPECT_EQ(Manager().EditTable.size(), 1u);
  EXPECT_TRUE(Redraws.empty());
}

TEST_F(CVSRemove, WithoutARootRunsWithAnEmptyOneTwice) {
  Manager().CVSRoot = "";
  const Launches launches;
  EXPECT_EQ(Remove(Folder.Host("proj\\sub\\a.txt")), 0);
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].CommandLine, L" -d   -d  remove -f \"a.txt\"");
}
