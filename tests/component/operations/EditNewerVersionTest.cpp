#include <iostream>

#include "component/operations/OperationTest.h"
#include "dialogs/MessageCatalogs.h"

// The update check says that the repository has a newer version: nothing is taken for editing.

namespace {

constexpr char kNewer[] = "U proj/sub/car body.CATProduct\r\n";

class EditNewerVersion : public OperationTest {
protected:
  EditNewerVersion() {
    WriteStatusAttributes(Car(), kBefore);
    Client.When("update").Once().Out(kNewer);
  }

  // Line ends as the runtime writes them differ.
  static std::string WithoutReturns(std::string text) {
    std::erase(text, '\r');
    return text;
  }

  const StatusAttributes kBefore{"1.1", "ReadOnly", "OLD", "a comment"};
  CapturedOutput output_;
};

}  // namespace

TEST_F(EditNewerVersion, IsRefusedAndTheEditIsNotRun) {
  EXPECT_EQ(Manager().Edit(), E_FAIL);
  EXPECT_EQ(Runs(), TextLines{kUpdate});
  EXPECT_EQ(ReadStatusAttributes(Car()), kBefore);
}

TEST_F(EditNewerVersion, IsShownWithTheNameAsTheClientPrintedIt) {
  Manager().Edit();
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Identifier, "Warning");
  EXPECT_EQ(Dialogs()[0].Style, 0x4100200u);
  EXPECT_EQ(Dialogs()[0].Title, "Warning!!!");
  EXPECT_EQ(Dialogs()[0].Message,
            "There is a newer version of proj/sub/car body.CATProduct\r\n"
            " in the repository, please do an update first.");
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

TEST_F(EditNewerVersion, IsShownInTheCatalogsTexts) {
  standin::SetCatalogText("ZRKCVSEditCmd", "warning", "Caution");
  standin::SetCatalogText("ZRKCVSEditCmd", "updatewarning", "Update </P1> first");
  Manager().Edit();
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Title, "Caution");
  EXPECT_EQ(Dialogs()[0].Message, "Update <proj/sub/car body.CATProduct\r\n> first");
}

TEST_F(EditNewerVersion, RedrawsTheProductOnce) {
  Manager().Edit();
  EXPECT_EQ(Redraws, TextLines{"car"});
}

TEST_F(EditNewerVersion, IsToldOnStandardOutput) {
  Manager().Edit();
  EXPECT_EQ(WithoutReturns(output_.Bytes()), "do update first\n");
}

TEST_F(EditNewerVersion, TheLineKeepsItsPlaceAmongNarrowOutput) {
  std::cout << "before\n";
  Manager().Edit();
  std::cout << "after\n";
  std::printf("last\n");
  EXPECT_EQ(WithoutReturns(output_.Bytes()), "before\ndo update first\nafter\nlast\n");
}

TEST_F(EditNewerVersion, WithoutAMainWindowIsRefusedWithoutADialog) {
  standin::SetApplicationFrame(true, false);
  EXPECT_EQ(Manager().Edit(), E_FAIL);
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_EQ(WithoutReturns(output_.Bytes()), "do update first\n");
  EXPECT_EQ(Redraws, TextLines{"car"});
}

TEST_F(EditNewerVersion, WithoutAnApplicationFrameIsRefusedWithoutADialog) {
  standin::SetApplicationFrame(false, false);
  EXPECT_EQ(Manager().Edit(), E_FAIL);
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_EQ(Redraws, TextLines{"car"});
}

TEST_F(EditNewerVersion, OnlyTheFirstMarkIsTakenOutOfTheMessage) {
  Client.ClearRules();
  Client.When("update").Out("U a\r\nU b\r\n");
  standin::SetCatalogText("ZRKCVSEditCmd", "updatewarning", "/P1");
  EXPECT_EQ(Manager().Edit(), E_FAIL);
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "a\r\nU b\r\n");
}

TEST_F(EditNewerVersion, TheFirstLetterAloneDecides) {
  Client.ClearRules();
  Client.When("update").Out("U");
  standin::SetCatalogText("ZRKCVSEditCmd", "updatewarning", "</P1>");
  EXPECT_EQ(Manager().Edit(), E_FAIL);
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "<U>");
  EXPECT_EQ(Runs(), TextLines{kUpdate});
}

TEST_F(EditNewerVersion, TheProductIsAskedForNoInstance) {
  Products.Add({.Name = "fixed", .Document = Folder.Host(kDocument), .Extendable = false});
  EXPECT_EQ(UseManagerOf("fixed").Edit(), E_FAIL);
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_NE(Dialogs()[0].Message.find("newer version"), std::string::npos);
}
