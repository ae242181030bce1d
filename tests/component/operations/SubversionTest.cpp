#include "component/operations/OperationTest.h"

// In a Subversion working copy Edit and Unedit are the lock and the unlock.

namespace {

class InSubversion : public OperationTest {
protected:
  InSubversion() {
    Manager().IsSVN = true;
    Manager().SVNWorkingFolder = Folder.Host("proj\\sub").c_str();
  }
  ~InSubversion() override {
    for (const ClientRun& run : Client.Runs()) EXPECT_EQ(run.Program, "svn.exe");
  }
};

}  // namespace

TEST_F(InSubversion, EditLocksTheFile) {
  EXPECT_EQ(Manager().Edit(), 0);
  ASSERT_GE(Client.Runs().size(), 2u);
  EXPECT_EQ(Client.Runs()[0].Joined(), "update " + Folder.Host(kDocument));
  EXPECT_EQ(Client.Runs()[1].Joined(), "lock " + Folder.Host(kDocument));
}

TEST_F(InSubversion, UneditUnlocksTheFileWhateverItsMark) {
  EXPECT_EQ(Manager().Unedit(), 0);
  ASSERT_GE(Client.Runs().size(), 1u);
  EXPECT_EQ(Client.Runs()[0].Joined(), "unlock " + Folder.Host(kDocument));
}

TEST_F(InSubversion, ADeletionIsNotTimed) {
  WriteFile(Folder / "new/.svn/wc.db", "");
  Manager().CommTime = 7;
  Manager().SVNTimings = {1, 2, 3};
  for (const char* file : {"proj/sub/part", "new/part"}) Manager().SVNDelete(Folder.Host(file).c_str());
  EXPECT_EQ(Client.Runs().size(), 2U);
  EXPECT_EQ(Manager().CommTime, 7);
  EXPECT_EQ(Manager().SVNTimings.StatusCheck, 1);
  EXPECT_EQ(Manager().SVNTimings.XMLParsing, 2);
  EXPECT_EQ(Manager().SVNTimings.Attributing, 3);
}
