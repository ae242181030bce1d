#include "ZRKICVSManager.h"
#include "component/operations/OperationTest.h"

// A file's way from the repository to the user and back, as the host sees it.

namespace {

using standin::DialogAnswer;

class EditAndUnedit : public OperationTest {
protected:
  EditAndUnedit() {
    SetReadOnly(Document());
    Client.When("status -v").Out(StatusReport("1.4", "R5"));
    Client.When("-x edit").MakeWritable(Document());
    Client.When("unedit")
        .Out("car body.CATProduct has been modified; revert changes? ")
        .Read()
        .MakeReadOnly(Document());
  }
};

}  // namespace

TEST_F(EditAndUnedit, TheFileIsTakenAndGivenBack) {
  AnswerQuestions({DialogAnswer::Yes});
  const ZRKICVSManager_var manager(Car());
  ASSERT_TRUE(manager);
  EXPECT_EQ(manager->Unedit(), E_FAIL);
  EXPECT_EQ(StatusOf("car"), "ReadOnly");
  EXPECT_EQ(manager->Edit(), 0);
  EXPECT_EQ(StatusOf("car"), "Edit");
  EXPECT_TRUE(IsWritable(Document()));
  EXPECT_EQ(manager->Unedit(), 0);
  EXPECT_EQ(StatusOf("car"), "ReadOnly");
  EXPECT_FALSE(IsWritable(Document()));
  EXPECT_EQ(manager->Unedit(), E_FAIL);
}
