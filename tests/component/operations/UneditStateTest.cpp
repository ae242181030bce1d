#include "attributes/AttributeDictionary.h"
#include "component/operations/OperationTest.h"
#include "component/product/AlteredProduct.h"
#include "component/product/RecordingCarrier.h"

// Only a product marked "Edit" is given back.

namespace {

class UneditState : public OperationTest {
protected:
  // After the status check and nothing else.
  void ExpectRefused() {
    EXPECT_EQ(Manager().Unedit(), E_FAIL);
    EXPECT_EQ(Runs(), (TextLines{kStatus, kEditors}));
    EXPECT_TRUE(Dialogs().empty());
  }

  // Where the products are named whose file the reports do not know.
  CapturedOutput output_;
};

}  // namespace

TEST_F(UneditState, AReadOnlyFileIsRefused) {
  Client.When("status -v").Out(StatusReport());
  SetReadOnly(Document());
  ExpectRefused();
  EXPECT_EQ(StatusOf("car"), "ReadOnly");
  EXPECT_EQ(Redraws, TextLines{"car"});
}

TEST_F(UneditState, ALockedFileIsRefused) {
  Client.When("status -v").Out(StatusReport());
  Client.When("-n edit").Out("proj/sub/car body.CATProduct\tben\tnow\r\n");
  SetReadOnly(Document());
  ExpectRefused();
  EXPECT_EQ(StatusOf("car"), "Locked");
}

TEST_F(UneditState, TheMarkOfBeforeDoesNotOutliveTheCheck) {
  WriteStatusAttributes(Car(), {"", "Edit", "", ""});
  Client.When("status -v").Out(StatusReport());
  SetReadOnly(Document());
  ExpectRefused();
}

TEST_F(UneditState, AFileTakenSinceTheLastCheckIsGivenBack) {
  WriteStatusAttributes(Car(), {"", "Locked", "", ""});
  Client.When("status -v").Out(StatusReport());
  EXPECT_EQ(Manager().Unedit(), 0);
}

TEST_F(UneditState, TheMarkDecidesWhenTheReportDoesNotKnowTheFile) {
  WriteStatusAttributes(Car(), {"", "Edit", "", ""});
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_EQ(Runs(), (TextLines{kStatus, kEditors, kUnedit, kStatus, kEditors}));
}

TEST_F(UneditState, TheMarkIsComparedLetterByLetter) {
  for (const char* const status : {"edit", "Edit ", "Edited", "Unversioned", ""}) {
    Client.ClearRuns();
    WriteStatusAttributes(Car(), {"", status, "", ""});
    ExpectRefused();
  }
}

TEST_F(UneditState, WithoutAnInstanceIsRefusedAndNoneIsAdded) {
  ExpectRefused();
  EXPECT_EQ(ReadStatusAttributes(Car()), std::nullopt);
}

TEST_F(UneditState, AStatusWithoutAValueIsRefused) {
  const ZRKIAttClass_var attributeClass = StatusClass();
  ZRKIAttExtendable_var(Car())->AddInstance(attributeClass, nullptr);
  ExpectRefused();
}

TEST_F(UneditState, ATextThatIsNoValueIsRefused) {
  RecordingCarrier carrier;
  carrier.GiveTextWithoutValue("Edit");
  const ZRKIAttClass_var attributeClass = StatusClass();
  ZRKIAttExtendable_var(carrier.Object())->AddInstance(attributeClass, nullptr);
  const CATBaseUnknown_var product =
      CATBaseUnknown_var::Adopt(new AlteredProduct(Car(), ZRKIAttExtendable::ClassId(), carrier.Object()));
  ZRKECVSManager manager(*product);
  EXPECT_EQ(manager.Unedit(), E_FAIL);
  EXPECT_EQ(Runs(), (TextLines{kStatus, kEditors}));
}

TEST_F(UneditState, WithoutAStatusParameterIsRefused) {
  standin::InstallAttributeDictionary({{.Package = "ZRKCVS", .Parameters = {"Revision", "Comment"}}});
  Client.When("status -v").Out(StatusReport());
  ExpectRefused();
}

TEST_F(UneditState, AnUnknownFileLosesItsMarkAndIsRefused) {
  WriteStatusAttributes(Car(), {"", "Edit", "", ""});
  // With a line feed alone the word is "Unknown" and nothing else; that is where the mark goes.
  Client.When("status -v")
      .Out(
          "File: car body.CATProduct\tStatus: Unknown\n\n"
          "   Working revision:\tNo entry\r\n"
          "   Repository revision:\t1.1\t/cvs/root/proj/sub/car body.CATProduct,v\r\n");
  ExpectRefused();
  EXPECT_EQ(ReadStatusAttributes(Car()), std::nullopt);
}

TEST_F(UneditState, WithoutTheClassTheCheckIsRunAndTheFileRefused) {
  standin::InstallAttributeDictionary({});
  Client.When("status -v").Out(StatusReport());
  ExpectRefused();
}

TEST_F(UneditState, AProductThatCannotCarryInstancesIsRefused) {
  Products.Add({.Name = "fixed", .Document = Folder.Host(kDocument), .Extendable = false});
  Client.When("status -v").Out(StatusReport());
  UseManagerOf("fixed");
  ExpectRefused();
}
