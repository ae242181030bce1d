// Clients that do not behave: they hang, close their output and go on, are killed, or write more than
// anybody wants to read.

#include <gtest/gtest.h>
#include <csignal>

#include <filesystem>
#include <fstream>
#include <thread>

#include "component/faults/FaultStage.h"
#include "support/ClientReports.h"
#include "support/Files.h"
#include "windows/WindowsControl.h"

namespace faults {
namespace {

namespace fs = std::filesystem;

std::vector<pid_t> Children() {
  std::vector<pid_t> children;
  for (const fs::directory_entry& thread : fs::directory_iterator("/proc/self/task")) {
    std::ifstream list(thread.path() / "children");
    for (pid_t child = 0; list >> child;) children.push_back(child);
  }
  return children;
}

void KillChildren() {
  for (const pid_t child : Children()) kill(child, SIGKILL);
}

class MisbehavingClient : public testing::Test {
protected:
  ~MisbehavingClient() override {
    EXPECT_EQ(standin::OpenHandleCount(), 0);
    KillChildren();
    EXPECT_TRUE(AllClientsEnd());
  }

  // Refreshes while somebody else kills the client as soon as it has left its mark.
  void RefreshAndKillClientThatLeft(const fs::path& mark) {
    std::thread killer([&] {
      while (!fs::exists(mark)) std::this_thread::yield();
      KillChildren();
    });
    Refresh();
    killer.join();
  }
  void Refresh() { Stage.Manager().RefreshStatus(Stage.Car()); }

  FaultStage Stage{FaultStage::Kind::CVS};
  const TemporaryFolder Marks;
};

}  // namespace

TEST_F(MisbehavingClient, ThatHangsBeforeItSaysAnythingIsWaitedForUntilItIsKilled) {
  Stage.Clients.When("status -v").Store(Marks / "mark", "").HangForever();
  Stage.Clients.When("-n edit").Out("wc/car.CATPart\tanna\r\n");
  RefreshAndKillClientThatLeft(Marks / "mark");
  EXPECT_EQ(Stage.Shown(), std::nullopt);
  EXPECT_EQ(Stage.Launches(), 2);
  EXPECT_TRUE(Stage.Messages().empty());
}

TEST_F(MisbehavingClient, ThatWaitsForTheEndOfItsInputBeforeItSaysAnythingIsWaitedForToo) {
  // Its input may have to carry an answer, so it stays open as long as the output is read.
  Stage.Clients.When("status -v").Store(Marks / "mark", "").Hang();
  RefreshAndKillClientThatLeft(Marks / "mark");
  EXPECT_EQ(Stage.Shown(), std::nullopt);
  EXPECT_EQ(Stage.Launches(), 2);
}

TEST_F(MisbehavingClient, ThatIsKilledInItsReportIsBelievedUpToThere) {
  SetReadOnly(Stage.DocumentFile());
  Stage.Clients.When("status -v").Out(FaultStage::StatusReport()).Store(Marks / "mark", "").HangForever();
  RefreshAndKillClientThatLeft(Marks / "mark");
  EXPECT_EQ(Stage.Shown(), (StatusAttributes{"1.4", "ReadOnly", "", ""}));
  EXPECT_EQ(Stage.Launches(), 2);
}

TEST_F(MisbehavingClient, ThatEndsByASignalOfItsOwnIsBelievedUpToThere) {
  SetReadOnly(Stage.DocumentFile());
  Stage.Clients.When("status -v").Out(FaultStage::StatusReport()).Crash();
  Stage.Clients.When("-n edit").Out("wc/car.CATPart\tanna\r\n").Crash();
  Refresh();
  EXPECT_EQ(Stage.Shown(), (StatusAttributes{"1.4", "Locked", "", "wc/car.CATPart\nanna"}));
  EXPECT_TRUE(Stage.Messages().empty());
}

TEST_F(MisbehavingClient, ThatEndsByASignalWithoutAWordHasTakenTheFile) {
  // How a client ended is not known; only what it says counts.
  Stage.Clients.When("edit -z -c").Crash();
  EXPECT_EQ(Stage.Manager().Edit(), S_OK);
  EXPECT_EQ(Stage.Shown()->Status, "Edit");
}

TEST_F(MisbehavingClient, ThatClosesItsOutputAndGoesOnIsNotWaitedFor) {
  Stage.Clients.When("status -v").Out(FaultStage::StatusReport()).CloseOutput().HangForever();
  EXPECT_EQ(Stage.Manager().GetFileStatus(Stage.Car(), Stage.Record), S_OK);
  EXPECT_STREQ(Stage.Record.WorkingRevision.ConvertToChar(), "1.4");
  EXPECT_EQ(standin::LiveChildCount(), 1);
}

TEST_F(MisbehavingClient, ThatClosesItsOutputAndReadsSeesTheEndOfItsInputWhenTheOperationIsOver) {
  Stage.Clients.When("status -v").Out(FaultStage::StatusReport()).CloseOutput().Hang();
  EXPECT_EQ(Stage.Manager().GetFileStatus(Stage.Car(), Stage.Record), S_OK);
  EXPECT_STREQ(Stage.Record.WorkingRevision.ConvertToChar(), "1.4");
  EXPECT_TRUE(AllClientsEnd());
}

TEST_F(MisbehavingClient, ThatHangsBehindItsQuestionUntilItsInputEndsIsAnsweredAndLeftToEnd) {
  WriteStatusAttributes(Stage.Car(), {"1.3", "Edit", "", ""});
  Stage.Clients.When("status -v").Out(FaultStage::StatusReport());
  Stage.Clients.When("unedit").Out(zrk::sample::kRevertQuestion).Hang();
  Stage.AnswerQuestions({standin::DialogAnswer::Yes});
  EXPECT_EQ(Stage.Manager().Unedit(), S_OK);
  EXPECT_EQ(Stage.Launches(), 5);
  EXPECT_TRUE(AllClientsEnd());
}

TEST_F(MisbehavingClient, ThatIsKilledWhileTheUserIsAskedIsAnsweredInVain) {
  WriteStatusAttributes(Stage.Car(), {"1.3", "Edit", "", ""});
  Stage.Clients.When("status -v").Out(FaultStage::StatusReport());
  Stage.Clients.When("unedit").Out(zrk::sample::kRevertQuestion).CloseInput().Crash();
  Stage.AnswerQuestions({standin::DialogAnswer::Yes});
  EXPECT_EQ(Stage.Manager().Unedit(), S_OK);
  EXPECT_EQ(Stage.Shown(), (StatusAttributes{"1.4", "Edit", "", ""}));
}

TEST_F(MisbehavingClient, ThatWritesAHundredMegabytesIsReadToTheEnd) {
  constexpr std::string_view kLine = "cvs status: a line that nobody has asked for, of 64 bytes.....\r\n";
  static_assert(kLine.size() == 64);
  Stage.Clients.When("status -v").Repeat(100'000'000 / kLine.size(), kLine).Out(FaultStage::StatusReport());
  EXPECT_EQ(Stage.Manager().GetFileStatus(Stage.Car(), Stage.Record), S_OK);
  EXPECT_STREQ(Stage.Record.WorkingRevision.ConvertToChar(), "1.4");
}

TEST_F(MisbehavingClient, ThatFloodsItsErrorStreamIsShownWhole) {
  const std::string complaint(300'000, '!');
  Stage.Clients.When("edit -z -c").Error(complaint).Out("between").Error(complaint);
  EXPECT_EQ(Stage.Manager().Edit(), 1);
  ASSERT_EQ(Stage.Dialogs().size(), 1u);
  EXPECT_TRUE(Stage.Dialogs()[0].Message == complaint + "between" + complaint);
}

}  // namespace faults
