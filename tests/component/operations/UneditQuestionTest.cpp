#include "component/operations/OperationTest.h"
#include "dialogs/MessageCatalogs.h"

// Giving back a modified file: the client asks whether to lose the changes, and waits.

namespace {

using standin::DialogAnswer;

constexpr char kQuestion[] = "car body.CATProduct has been modified; revert changes? ";

class UneditQuestion : public OperationTest {
protected:
  UneditQuestion() {
    Client.When("status -v").Out(StatusReport());
    Client.When("unedit").Out(kQuestion).ReadAll();
  }

  // All that the client that asked read from its standard input.
  std::string AnswerRead() const {
    for (const ClientRun& run : Client.Runs()) {
      if (run.Joined() == kUnedit) return run.Input;
    }
    return "not run";
  }

  const TextLines kWithSecondCheck{kStatus, kEditors, kUnedit, kStatus, kEditors};
  const TextLines kWithoutSecondCheck{kStatus, kEditors, kUnedit};
};

}  // namespace

TEST_F(UneditQuestion, IsPutToTheUserAsAQuestion) {
  Manager().Unedit();
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Identifier, "Warning");
  EXPECT_EQ(Dialogs()[0].Style, 0x4800200u);
  EXPECT_EQ(Dialogs()[0].Title, "CVS");
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

TEST_F(UneditQuestion, ShowsTheCatalogsTextInItsPlace) {
  standin::SetCatalogText("ZRKCVSUneditCmd", "uneditmsg", "was changed. Lose the changes?");
  Manager().Unedit();
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "car body.CATProduct was changed. Lose the changes? ");
}

TEST_F(UneditQuestion, WithoutACatalogTheWholeOutputTakesItsPlace) {
  Manager().Unedit();
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "car body.CATProduct " + std::string(kQuestion) + " ");
}

TEST_F(UneditQuestion, OnlyItsFirstOccurrenceIsReplaced) {
  Client.ClearRules();
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Out("has been modified; revert changes? has been modified; revert changes?");
  standin::SetCatalogText("ZRKCVSUneditCmd", "uneditmsg", "X");
  Manager().Unedit();
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "X has been modified; revert changes?");
}

TEST_F(UneditQuestion, IsShownWhileTheClientWaits) {
  std::string read = "not shown";
  User().WhileShown([&] { read = AnswerRead(); });
  Manager().Unedit();
  EXPECT_EQ(read, "");
}

TEST_F(UneditQuestion, YesReachesTheClientWithAZeroAndTheEndOfItsInput) {
  AnswerQuestions({DialogAnswer::Yes});
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_EQ(AnswerRead(), std::string("yes\0", 4));
  EXPECT_EQ(Runs(), kWithSecondCheck);
}

TEST_F(UneditQuestion, NoReachesTheClientWithAZeroAndTheEndOfItsInput) {
  AnswerQuestions({DialogAnswer::No});
  EXPECT_EQ(Manager().Unedit(), 1);
  EXPECT_EQ(AnswerRead(), std::string("no\0", 3));
  EXPECT_EQ(Runs(), kWithoutSecondCheck);
}

TEST_F(UneditQuestion, AnyAnswerButYesIsNo) {
  AnswerQuestions({DialogAnswer::Acknowledged});
  EXPECT_EQ(Manager().Unedit(), 1);
  EXPECT_EQ(AnswerRead(), std::string("no\0", 3));
}

TEST_F(UneditQuestion, DecliningLeavesTheFileTakenAndIsRedrawnForTheFirstCheckAlone) {
  AnswerQuestions({DialogAnswer::No});
  Manager().Unedit();
  EXPECT_EQ(StatusOf("car"), "Edit");
  EXPECT_EQ(Redraws, TextLines{"car"});
}

TEST_F(UneditQuestion, TheSecondCheckSeesWhatTheClientDidUponTheAnswer) {
  Client.ClearRules();
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Out(kQuestion).Read().Repeat(10'000, "restoring\r\n").MakeReadOnly(Document());
  AnswerQuestions({DialogAnswer::Yes});
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_EQ(StatusOf("car"), "ReadOnly");
  EXPECT_EQ(Redraws, (TextLines{"car", "car"}));
}

TEST_F(UneditQuestion, WithoutAMainWindowTheClientIsNotLeftWaitingAndTheStatusIsChecked) {
  standin::SetApplicationFrame(true, false);
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_EQ(AnswerRead(), "");
  EXPECT_EQ(Runs(), kWithSecondCheck);
}

TEST_F(UneditQuestion, WithoutAnApplicationFrameToo) {
  standin::SetApplicationFrame(false, false);
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_EQ(Runs(), kWithSecondCheck);
}

TEST_F(UneditQuestion, OfAClientThatHasDiedIsAnsweredInVain) {
  Client.ClearRules();
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Out(kQuestion).Crash();
  AnswerQuestions({DialogAnswer::Yes});
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_EQ(Runs(), kWithSecondCheck);
}

TEST_F(UneditQuestion, AnyOtherMessageIsShownInTheSameWay) {
  Client.ClearRules();
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Error("cvs unedit: nothing known\r\n");
  standin::SetCatalogText("ZRKCVSUneditCmd", "uneditmsg", "was changed. Lose the changes?");
  AnswerQuestions({DialogAnswer::Yes, DialogAnswer::No});
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_EQ(Runs(), kWithSecondCheck);
  EXPECT_EQ(Manager().Unedit(), 1);
  ASSERT_EQ(Dialogs().size(), 2u);
  EXPECT_EQ(Dialogs()[0].Style, 0x4800200u);
  EXPECT_EQ(Dialogs()[0].Message, "cvs unedit: nothing known\r\n");
}
