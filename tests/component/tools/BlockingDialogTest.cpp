#include "tools/BlockingDialog.h"

#include <gtest/gtest.h>

#include <new>
#include <optional>

#include "support/DialogRecorder.h"
#include "support/Session.h"

using zrk::tools::DialogKind;
using zrk::tools::DialogTexts;
using zrk::tools::DisplayBlocked;

namespace {

class ABlockingDialog : public testing::Test {
protected:
  static std::optional<int> Display() {
    return DisplayBlocked(DialogKind::Question, [] { return DialogTexts{"message", "title"}; });
  }

  Session session_;
  DialogRecorder dialogs_{{standin::DialogAnswer::Yes}};
};

}  // namespace

TEST_F(ABlockingDialog, GivesTheUsersAnswerAndIsGone) {
  EXPECT_EQ(Display(), zrk::tools::kAnswerYes);
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

TEST_F(ABlockingDialog, IsMadeBeforeItsTextsAreBuilt) {
  int dialogs = 0;
  DisplayBlocked(DialogKind::Notice, [&] {
    dialogs = standin::LiveDialogCount();
    return DialogTexts{"message", "title"};
  });
  EXPECT_EQ(dialogs, 1);
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(dialogs_.Requests()[0].Message, "message");
  EXPECT_EQ(dialogs_.Requests()[0].Title, "title");
}

TEST_F(ABlockingDialog, BuildsNoTextWhenItCannotBeShown) {
  bool built = false;
  const auto texts = [&] {
    built = true;
    return DialogTexts{};
  };
  standin::SetApplicationFrame(true, false);
  EXPECT_EQ(DisplayBlocked(DialogKind::Notice, texts), std::nullopt);
  standin::SetApplicationFrame(false, false);
  EXPECT_EQ(DisplayBlocked(DialogKind::Notice, texts), std::nullopt);
  EXPECT_FALSE(built);
}

TEST_F(ABlockingDialog, IsGoneWhenItsTextsCannotBeBuilt) {
  const auto fail = []() -> DialogTexts { throw std::bad_alloc(); };
  EXPECT_THROW(DisplayBlocked(DialogKind::Notice, fail), std::bad_alloc);
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

TEST_F(ABlockingDialog, IsAskedToGoWhenItsWindowWasClosedWhileItWasUp) {
  dialogs_.WhileShown([] { standin::SetApplicationFrame(true, false); });
  EXPECT_EQ(Display(), zrk::tools::kAnswerYes);
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

TEST_F(ABlockingDialog, IsAskedToGoWhenTheWholeFrameWentWhileItWasUp) {
  dialogs_.WhileShown([] { standin::SetApplicationFrame(false, false); });
  EXPECT_EQ(Display(), zrk::tools::kAnswerYes);
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

// The new window mostly stands where the old one stood.
TEST_F(ABlockingDialog, IsAskedToGoWhenItsWindowWasReplacedWhileItWasUp) {
  dialogs_.WhileShown([] {
    standin::SetApplicationFrame(true, false);
    standin::SetApplicationFrame(true, true);
  });
  EXPECT_EQ(Display(), zrk::tools::kAnswerYes);
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}
