#include "CATDlgNotify.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CATApplicationFrame.h"
#include "dialogs/UserInterface.h"
#include "support/DialogRecorder.h"

namespace {

using standin::DialogAnswer;
using standin::LiveDialogCount;

constexpr unsigned int kNotice = 0x4100200;
constexpr unsigned int kQuestion = 0x4800200;

class CATDlgNotifyTest : public testing::Test {
protected:
  CATDlgNotifyTest() { standin::SetApplicationFrame(true, true); }
  ~CATDlgNotifyTest() override { standin::SetApplicationFrame(false, false); }

  static CATDlgNotify* NewDialog(unsigned int style) {
    return new CATDlgNotify(CATApplicationFrame::GetFrame()->GetMainWindow(), "Warning", style);
  }
  static int Show(unsigned int style) {
    CATDlgNotify* const dialog = NewDialog(style);
    const int answer = dialog->DisplayBlocked("message", "title");
    dialog->RequestDestruction();
    return answer;
  }
};

TEST_F(CATDlgNotifyTest, PutsItsTextsBeforeTheUser) {
  const DialogRecorder user;
  Show(kNotice);
  ASSERT_EQ(user.Requests().size(), 1u);
  EXPECT_EQ(user.Requests()[0].Identifier, "Warning");
  EXPECT_EQ(user.Requests()[0].Title, "title");
  EXPECT_EQ(user.Requests()[0].Message, "message");
  EXPECT_EQ(user.Requests()[0].Style, kNotice);
}

TEST_F(CATDlgNotifyTest, IsAQuestionByItsStyle) {
  standin::DialogRequest request;
  request.Style = kNotice;
  EXPECT_FALSE(request.IsQuestion());
  request.Style = kQuestion;
  EXPECT_TRUE(request.IsQuestion());
}

TEST_F(CATDlgNotifyTest, AnswersAQuestionAsTheUserDoes) {
  const DialogRecorder user({DialogAnswer::Yes, DialogAnswer::No});
  EXPECT_EQ(Show(kQuestion), 3);
  EXPECT_EQ(Show(kQuestion), 4);
}

TEST_F(CATDlgNotifyTest, LetsAQuestionBePutAwayWithoutAnAnswer) {
  const DialogRecorder user({DialogAnswer::Acknowledged});
  EXPECT_EQ(Show(kQuestion), 1);
}

TEST_F(CATDlgNotifyTest, LetsANoticeOnlyBeAcknowledged) {
  const DialogRecorder user({DialogAnswer::Yes});
  EXPECT_EQ(Show(kNotice), 1);
}

TEST_F(CATDlgNotifyTest, AnswersWithoutAUser) {
  EXPECT_EQ(Show(kNotice), 1);
  EXPECT_EQ(Show(kQuestion), 4);
}

TEST_F(CATDlgNotifyTest, IsNotShownWithoutAParent) {
  const DialogRecorder user;
  auto* const dialog = new CATDlgNotify(nullptr, "Warning", kNotice);
  EXPECT_EQ(dialog->DisplayBlocked("message", "title"), 0);
  dialog->RequestDestruction();
  EXPECT_TRUE(user.Requests().empty());
}

TEST_F(CATDlgNotifyTest, LivesUntilItIsAskedToGo) {
  const int before = LiveDialogCount();
  CATDlgNotify* const dialog = NewDialog(kNotice);
  EXPECT_EQ(LiveDialogCount(), before + 1);
  dialog->DisplayBlocked("message", "title");
  EXPECT_EQ(LiveDialogCount(), before + 1);
  dialog->RequestDestruction();
  EXPECT_EQ(LiveDialogCount(), before);
}

TEST_F(CATDlgNotifyTest, GoesWithItsParent) {
  const int before = LiveDialogCount();
  NewDialog(kNotice);
  NewDialog(kQuestion);
  NewDialog(kNotice)->RequestDestruction();
  EXPECT_EQ(LiveDialogCount(), before + 2);
  standin::SetApplicationFrame(true, false);
  EXPECT_EQ(LiveDialogCount(), before);
}

TEST_F(CATDlgNotifyTest, OutlivesItsParentWhileItIsUp) {
  const int before = LiveDialogCount();
  DialogRecorder user;
  user.WhileShown([] { standin::SetApplicationFrame(true, false); });
  CATDlgNotify* const dialog = NewDialog(kNotice);
  EXPECT_EQ(dialog->DisplayBlocked("message", "title"), 1);
  EXPECT_EQ(LiveDialogCount(), before + 1);
  dialog->RequestDestruction();
  EXPECT_EQ(LiveDialogCount(), before);
}

using CATDlgNotifyDeathTest = CATDlgNotifyTest;

// The sanitizers, where they are on, see it before the host does: GCC's as memory that was given back,
// Clang's as an object that has no class any more.
TEST_F(CATDlgNotifyDeathTest, MustNotBeShownAfterItsEnd) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(
      {
        CATDlgNotify* const dialog = NewDialog(kNotice);
        dialog->RequestDestruction();
        dialog->DisplayBlocked("message", "title");
      },
      testing::AnyOf(testing::HasSubstr("shown after its end"), testing::HasSubstr("heap-use-after-free"),
                     testing::HasSubstr("object has invalid vptr")));
}

TEST(CATApplicationFrame, IsThereOnlyInASessionWithUserInterface) {
  standin::SetApplicationFrame(false, true);
  EXPECT_EQ(CATApplicationFrame::GetFrame(), nullptr);
  standin::SetApplicationFrame(true, false);
  ASSERT_NE(CATApplicationFrame::GetFrame(), nullptr);
  EXPECT_EQ(CATApplicationFrame::GetFrame()->GetMainWindow(), nullptr);
  standin::SetApplicationFrame(true, true);
  CATDialog* const window = CATApplicationFrame::GetFrame()->GetMainWindow();
  EXPECT_NE(window, nullptr);
  standin::SetApplicationFrame(true, true);
  EXPECT_EQ(CATApplicationFrame::GetFrame()->GetMainWindow(), window);
  standin::SetApplicationFrame(false, false);
  EXPECT_EQ(CATApplicationFrame::GetFrame(), nullptr);
}

TEST(CATApplicationFrame, ForgetsAWindowThatEndedItself) {
  standin::SetApplicationFrame(true, true);
  CATApplicationFrame::GetFrame()->GetMainWindow()->RequestDestruction();
  EXPECT_EQ(CATApplicationFrame::GetFrame()->GetMainWindow(), nullptr);
  standin::SetApplicationFrame(false, false);
}

}  // namespace
