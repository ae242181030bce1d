#include "component/operations/OperationTest.h"

// Which runs count into the time spent waiting for the client. A time that no run takes stands there
// before, so that what is added to it, what replaces it and what leaves it alone can be told apart.

namespace {

using standin::DialogAnswer;

constexpr zrk::tools::Ticks kBefore = 1'000'000'000;

class CommTime : public OperationTest {
protected:
  CommTime() { Manager().CommTime = kBefore; }

  void ExpectReplaced() {
    EXPECT_GE(Manager().CommTime, 0);
    EXPECT_LT(Manager().CommTime, kBefore);
  }
};

}  // namespace

TEST_F(CommTime, TheUpdateCheckDoesNotCount) {
  Client.When("update").Out("U a\r\n");
  const CapturedOutput output;
  Manager().Edit();
  EXPECT_EQ(Manager().CommTime, kBefore);
}

TEST_F(CommTime, TheEditDoesNotCount) {
  Client.When("-x edit").Repeat(2'000'000, "takes a while ");
  EXPECT_EQ(Manager().Edit(), 1);
  EXPECT_EQ(Manager().CommTime, kBefore);
}

TEST_F(CommTime, TheQueryBehindAnEditIsAdded) {
  // So much text that it takes the client more than a tick.
  Client.When("status -v").Repeat(2'000'000, "takes a while ");
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_GT(Manager().CommTime, kBefore);
}

TEST_F(CommTime, TheStatusCheckOfUneditReplacesIt) {
  SetReadOnly(Document());
  Client.When("status -v").Out(StatusReport());
  EXPECT_EQ(Manager().Unedit(), E_FAIL);
  ExpectReplaced();
}

TEST_F(CommTime, TheSecondStatusCheckOfUneditReplacesItAgain) {
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Out("revert changes?");
  AnswerQuestions({DialogAnswer::Yes});
  User().WhileShown([this] { Manager().CommTime = kBefore; });
  EXPECT_EQ(Manager().Unedit(), 0);
  ExpectReplaced();
}

TEST_F(CommTime, TheAnswerDoesNotCount) {
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Out("revert changes?").Read().Repeat(2'000'000, "takes a while ");
  AnswerQuestions({DialogAnswer::No});
  User().WhileShown([this] { Manager().CommTime = kBefore; });
  EXPECT_EQ(Manager().Unedit(), 1);
  EXPECT_EQ(Manager().CommTime, kBefore);
}

TEST_F(CommTime, TheRemoveDoesNotCount) {
  Client.When("remove").Repeat(2'000'000, "takes a while ");
  EXPECT_EQ(Manager().CVSRemove(Folder.Host("a.txt").c_str()), 0);
  EXPECT_EQ(Manager().CommTime, kBefore);
}
