#include "tools/BlockingDialog.h"

#include <gtest/gtest.h>

#include "support/DialogRecorder.h"
#include "support/Session.h"

using zrk::tools::DialogKind;
using zrk::tools::DisplayBlocked;

namespace {

class ABlockingDialog : public testing::Test {
protected:
  Session session_;
  DialogRecorder dialogs_{{standin::DialogAnswer::Yes}};
};

}  // namespace

TEST_F(ABlockingDialog, GivesTheUsersAnswerAndIsGone) {
  EXPECT_EQ(DisplayBlocked(DialogKind::Question, "message", "title"), zrk::tools::kAnswerYes);
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

TEST_F(ABlockingDialog, MayGoWithItsWindowWhileItIsUp) {
  dialogs_.WhileShown([] { standin::SetApplicationFrame(true, false); });
  EXPECT_EQ(DisplayBlocked(DialogKind::Question, "message", "title"), zrk::tools::kAnswerYes);
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

TEST_F(ABlockingDialog, MayGoWithTheWholeFrameWhileItIsUp) {
  dialogs_.WhileShown([] { standin::SetApplicationFrame(false, false); });
  EXPECT_EQ(DisplayBlocked(DialogKind::Question, "message", "title"), zrk::tools::kAnswerYes);
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}
