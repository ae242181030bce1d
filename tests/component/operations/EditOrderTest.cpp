#include "component/operations/OperationTest.h"
#include "component/product/AlteredProduct.h"
#include "component/product/RecordingCarrier.h"
#include "support/CatalogLookUps.h"
#include "windows/LaunchLog.h"

// In which order a file is taken for editing, as the user and the client see it.

namespace {

class EditOrder : public OperationTest {
protected:
  EditOrder() { WriteStatusAttributes(Car(), kBefore); }
  ~EditOrder() override { standin::SetLaunchListener({}); }

  // What the product carries whenever it is redrawn.
  std::vector<StatusAttributes> EditAndSeeRedraws() {
    std::vector<StatusAttributes> drawn;
    standin::SetRedrawListener([&](const CATBaseUnknown_var& product) {
      drawn.push_back(ReadStatusAttributes(product).value_or(StatusAttributes{}));
    });
    EXPECT_EQ(Manager().Edit(), 0);
    standin::SetRedrawListener({});
    return drawn;
  }

  // The redraws that had been asked for when the one dialog was up.
  std::vector<std::string> EditAndSeeRedrawsAtDialog() {
    std::vector<std::string> atDialog;
    User().WhileShown([&] { atDialog = Redraws; });
    {
      const CapturedOutput quiet;
      Manager().Edit();
    }
    EXPECT_EQ(Dialogs().size(), 1u);
    EXPECT_EQ(Redraws, TextLines{"car"});
    return atDialog;
  }

  const StatusAttributes kBefore{"1.1", "ReadOnly", "OLD", ""};
};

}  // namespace

TEST_F(EditOrder, TheProductIsMarkedAfterTheEditAndBeforeTheStatusIsAskedFor) {
  TextLines atLaunches;
  standin::SetLaunchListener([&](const standin::Launch&) { atLaunches.push_back(StatusOf("car")); });
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit, kStatus}));
  EXPECT_EQ(atLaunches, (TextLines{"ReadOnly", "ReadOnly", "Edit"}));
}

TEST_F(EditOrder, TheProductIsRedrawnWhenAllIsWritten) {
  Client.When("status -v").Out(StatusReport("1.4", "R5"));
  EXPECT_EQ(EditAndSeeRedraws(), (std::vector<StatusAttributes>{{"1.4", "Edit", "R5(revision: 1.4)", ""}}));
}

TEST_F(EditOrder, ANewerVersionIsShownBeforeTheRedraw) {
  Client.When("update").Out("U a\r\n");
  EXPECT_EQ(EditAndSeeRedrawsAtDialog(), TextLines{});
}

TEST_F(EditOrder, AMessageIsShownBeforeTheRedraw) {
  Client.When("-x edit").Out("text");
  EXPECT_EQ(EditAndSeeRedrawsAtDialog(), TextLines{});
}

TEST_F(EditOrder, ANewerVersionIsToldOnStandardOutputBeforeItIsShown) {
  Client.When("update").Out("U a\r\n");
  std::string atDialog;
  {
    const CapturedOutput output;
    User().WhileShown([&] { atDialog = output.Bytes(); });
    Manager().Edit();
  }
  EXPECT_TRUE(atDialog.starts_with("do update first")) << atDialog;
}

TEST_F(EditOrder, OfANewerVersionTheTitleIsBuiltBeforeTheMessage) {
  Client.When("update").Out("U a\r\n");
  const CapturedOutput quiet;
  const CatalogLookUps texts;
  Manager().Edit();
  EXPECT_EQ(texts.Keys(), (TextLines{"ZRKCVSEditCmd/warning", "ZRKCVSEditCmd/updatewarning"}));
}

TEST_F(EditOrder, OfAMessageOnlyTheTitleIsBuilt) {
  Client.When("-x edit").Out("text");
  const CatalogLookUps texts;
  Manager().Edit();
  EXPECT_EQ(texts.Keys(), TextLines{"ZRKCVSEditCmd/warning"});
}

TEST_F(EditOrder, NoTextIsBuiltWithoutAMainWindow) {
  standin::SetApplicationFrame(true, false);
  Client.When("update").Once().Out("U a\r\n");
  Client.When("-x edit").Out("text");
  const CapturedOutput quiet;
  const CatalogLookUps texts;
  Manager().Edit();
  Manager().Edit();
  EXPECT_EQ(texts.Keys(), TextLines{});
}

TEST_F(EditOrder, AnInstanceIsAddedAfterTheClientsEdit) {
  const ZRKIAttClass_var attributeClass = StatusClass();
  ZRKIAttExtendable_var(Car())->RemoveInstance(attributeClass);
  TextLines atLaunches;
  standin::SetLaunchListener([&](const standin::Launch&) { atLaunches.push_back(StatusOf("car")); });
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(atLaunches, (TextLines{"no instance", "no instance", "Edit"}));
}

TEST_F(EditOrder, TheStatusIsWrittenThenTheRevisionThenTheRelease) {
  Client.When("status -v").Out(StatusReport("1.4", "R5"));
  RecordingCarrier carrier;
  const CATBaseUnknown_var product =
      CATBaseUnknown_var::Adopt(new AlteredProduct(Car(), ZRKIAttExtendable::ClassId(), carrier.Object()));
  ZRKECVSManager manager(*product);
  EXPECT_EQ(manager.Edit(), 0);
  EXPECT_EQ(carrier.Written(), (TextLines{"Status=Edit", "Revision=1.4", "Release=R5(revision: 1.4)"}));
}
