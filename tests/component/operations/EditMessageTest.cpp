#include "component/operations/OperationTest.h"
#include "dialogs/MessageCatalogs.h"

// The client says something: the user is shown it as it came, and the product is not marked.

namespace {

class EditMessage : public OperationTest {
protected:
  EditMessage() { WriteStatusAttributes(Car(), kBefore); }

  const StatusAttributes kBefore{"1.1", "ReadOnly", "OLD", "a comment"};
};

}  // namespace

TEST_F(EditMessage, OfTheEditEndsWithOne) {
  Client.When("-x edit").Out("cvs edit: cannot edit\r\n");
  EXPECT_EQ(Manager().Edit(), 1);
  EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit}));
  EXPECT_EQ(ReadStatusAttributes(Car()), kBefore);
}

TEST_F(EditMessage, IsShownAsItCame) {
  Client.When("-x edit").Out("cvs edit: cannot edit\r\n").Error("second line\r\n");
  Manager().Edit();
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Identifier, "Warning");
  EXPECT_EQ(Dialogs()[0].Style, 0x4100200u);
  EXPECT_EQ(Dialogs()[0].Title, "Warning!!!");
  EXPECT_EQ(Dialogs()[0].Message, "cvs edit: cannot edit\r\nsecond line\r\n");
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

TEST_F(EditMessage, HasTheCatalogsTitleAndNoOtherText) {
  standin::SetCatalogText("ZRKCVSEditCmd", "warning", "Caution");
  standin::SetCatalogText("ZRKCVSEditCmd", "updatewarning", "Update /P1 first");
  Client.When("-x edit").Out("text");
  Manager().Edit();
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Title, "Caution");
  EXPECT_EQ(Dialogs()[0].Message, "text");
}

TEST_F(EditMessage, OfTheUpdateCheckDoesNotStopTheEditButStaysInTheMessage) {
  Client.When("update").Out("M proj/sub/car body.CATProduct\r\n");
  EXPECT_EQ(Manager().Edit(), 1);
  EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit}));
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "M proj/sub/car body.CATProduct\r\n");
  EXPECT_EQ(ReadStatusAttributes(Car()), kBefore);
}

TEST_F(EditMessage, JoinsWhatBothRunsSay) {
  Client.When("update").Out("M a\r\n");
  Client.When("-x edit").Out("b\r\n");
  EXPECT_EQ(Manager().Edit(), 1);
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "M a\r\nb\r\n");
}

TEST_F(EditMessage, NoOtherFirstLetterIsThatOfANewerVersion) {
  for (const char* const answer :
       {"u a\r\n", "\r\nU a\r\n", " U a\r\n", "? U a\r\n", "P a\r\n", "C a\r\n", "A a\r\n", "R a\r\n"}) {
    Client.ClearRules();
    Client.ClearRuns();
    Client.When("update").Out(answer);
    EXPECT_EQ(Manager().Edit(), 1) << answer;
    EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit})) << answer;
    ASSERT_FALSE(Dialogs().empty());
    EXPECT_EQ(Dialogs().back().Message, answer);
  }
}

TEST_F(EditMessage, RedrawsTheProductOnce) {
  Client.When("-x edit").Out("text");
  Manager().Edit();
  EXPECT_EQ(Redraws, TextLines{"car"});
}

TEST_F(EditMessage, WithoutAMainWindowEndsWithOneToo) {
  Client.When("-x edit").Out("text");
  standin::SetApplicationFrame(true, false);
  EXPECT_EQ(Manager().Edit(), 1);
  standin::SetApplicationFrame(false, false);
  EXPECT_EQ(Manager().Edit(), 1);
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_EQ(Redraws, (TextLines{"car", "car"}));
}

TEST_F(EditMessage, AClientThatEndsInFailureWithoutAWordHasEdited) {
  Client.When("-x edit").Exit(1);
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(StatusOf("car"), "Edit");
}
