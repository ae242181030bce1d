#include "CATICkeParm.h"
#include "attributes/AttributeDictionary.h"
#include "component/operations/OperationTest.h"

// Products and classes that cannot take all of the attributes.

namespace {

class EditAttributes : public OperationTest {
protected:
  static void InstallClass(const std::vector<std::string>& parameters) {
    standin::InstallAttributeDictionary({{.Package = "ZRKCVS", .Parameters = parameters}});
  }

  std::string ValueOnCar(const char* parameter) const {
    const ZRKIAttClass_var attributeClass = StatusClass();
    const ZRKIAttInstance_var instance = ZRKIAttExtendable_var(Car())->FindInstance(attributeClass);
    if (!instance) return "no instance";
    const CATICkeParm_var value = instance->GetParameter(parameter);
    return value ? value->AsText().ConvertToChar() : "no parameter";
  }
};

}  // namespace

TEST_F(EditAttributes, WithoutAStatusParameterEndsInTheDialogAndOne) {
  InstallClass({"Revision", "Release"});
  Client.When("status -v").Out(StatusReport("1.4"));
  EXPECT_EQ(Manager().Edit(), 1);
  EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit}));
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "");
  EXPECT_EQ(Dialogs()[0].Title, "Warning!!!");
  EXPECT_EQ(Redraws, TextLines{"car"});
  EXPECT_EQ(ValueOnCar("Revision"), "");
}

TEST_F(EditAttributes, ARevisionOrReleaseThatIsMissingIsSkipped) {
  Client.When("status -v").Out(StatusReport("1.4", "R5"));
  InstallClass({"Status", "Release"});
  EXPECT_EQ(UseManagerOf("car").Edit(), 0);
  EXPECT_EQ(ValueOnCar("Status"), "Edit");
  EXPECT_EQ(ValueOnCar("Release"), "R5(revision: 1.4)");

  InstallClass({"Revision", "Status"});
  Products.Add("bus", kDocument);
  EXPECT_EQ(UseManagerOf("bus").Edit(), 0);
  EXPECT_TRUE(Dialogs().empty());
}

TEST_F(EditAttributes, AReleaseThatIsMissingDoesNotKeepTheRevisionBack) {
  InstallClass({"Revision", "Status"});
  Client.When("status -v").Out(StatusReport("1.4", "R5"));
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(ValueOnCar("Revision"), "1.4");
}

TEST_F(EditAttributes, WhenNoInstanceCanBeAddedIsRefusedWithoutADialog) {
  standin::RefuseNewInstances(true);
  Client.When("-x edit").Out("text");
  EXPECT_EQ(Manager().Edit(), E_FAIL);
  EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit}));
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_TRUE(Redraws.empty());
}

TEST_F(EditAttributes, AnInstanceThatIsThereNeedsNoNewOne) {
  WriteStatusAttributes(Car(), {});
  standin::RefuseNewInstances(true);
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(StatusOf("car"), "Edit");
}

TEST_F(EditAttributes, AnInstanceIsAddedAlsoWhenTheClientHasSomethingToSay) {
  Client.When("-x edit").Out("text");
  EXPECT_EQ(Manager().Edit(), 1);
  EXPECT_EQ(ReadStatusAttributes(Car()), StatusAttributes{});
}

TEST_F(EditAttributes, AProductThatCannotCarryInstancesEndsInTheDialogAndOne) {
  Products.Add({.Name = "fixed", .Document = Folder.Host(kDocument), .Extendable = false});
  Client.When("-x edit").Out("text");
  EXPECT_EQ(UseManagerOf("fixed").Edit(), 1);
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "text");
  EXPECT_EQ(Redraws, TextLines{"fixed"});
}

TEST_F(EditAttributes, AProductThatCannotCarryInstancesEndsSoWithoutAMessageToo) {
  Products.Add({.Name = "fixed", .Document = Folder.Host(kDocument), .Extendable = false});
  EXPECT_EQ(UseManagerOf("fixed").Edit(), 1);
  EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit}));
  ASSERT_EQ(Dialogs().size(), 1u);
  EXPECT_EQ(Dialogs()[0].Message, "");
}

TEST_F(EditAttributes, WithoutTheClassThereIsNoInstanceToBeHad) {
  standin::InstallAttributeDictionary({});
  EXPECT_EQ(Manager().Edit(), E_FAIL);
  EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit}));
  EXPECT_TRUE(Dialogs().empty());
}
