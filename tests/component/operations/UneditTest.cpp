#include "component/operations/OperationTest.h"
#include "support/DebugMessages.h"

// Giving back a file that was not modified: the client asks nothing.

namespace {

class Unedit : public OperationTest {
protected:
  Unedit() {
    Client.When("status -v").Out(StatusReport("1.4", "R5"));
    Client.When("unedit").MakeReadOnly(Document());
  }
};

}  // namespace

TEST_F(Unedit, ChecksTheStatusGivesTheFileBackAndChecksAgain) {
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_EQ(Runs(), (TextLines{kStatus, kEditors, kUnedit, kStatus, kEditors}));
}

TEST_F(Unedit, TheClientRunsInTheSandboxWithTheFileAsOneArgument) {
  Manager().Unedit();
  ASSERT_EQ(Client.Runs().size(), 5u);
  for (const ClientRun& run : Client.Runs()) {
    EXPECT_EQ(run.Program, "cvs.exe");
    EXPECT_EQ(run.Folder, Folder.Host());
    EXPECT_EQ(run.Arguments.back(), "proj\\sub\\car body.CATProduct");
  }
}

TEST_F(Unedit, ShowsTheFileAsGivenBack) {
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_EQ(ReadStatusAttributes(Car()), (StatusAttributes{"1.4", "ReadOnly", "R5(revision: 1.4)", ""}));
}

TEST_F(Unedit, FillsTheCachesForTheOneFile) {
  Manager().StatusBlockTable = {{"a", "b"}};
  Manager().EditTable = {{"c", "d"}};
  Client.When("-n edit").Out("proj/sub/car body.CATProduct\tben\tnow\r\n");
  Manager().Unedit();
  const std::string document = Folder.Host("proj/sub/car body.CATProduct");
  ASSERT_EQ(Manager().StatusBlockTable.size(), 1u);
  EXPECT_EQ(Manager().StatusBlockTable.begin()->first, document);
  EXPECT_EQ(Manager().EditTable,
            (zrk::cvs::ReportTable{{document, "proj/sub/car body.CATProduct\nben\nnow"}}));
}

TEST_F(Unedit, ShowsNoDialogAndRedrawsOnceForEachCheck) {
  Manager().Unedit();
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_EQ(Redraws, (TextLines{"car", "car"}));
}

TEST_F(Unedit, WritesNoTimingLines) {
  const DebugMessages messages;
  Manager().Unedit();
  EXPECT_TRUE(messages.All().empty());
}

TEST_F(Unedit, OfAnInstanceLooksAtTheInstanceAndNotAtItsReference) {
  Products.Add("plant", "plant.CATProduct").Place("plant", "car.1", "car");
  EXPECT_EQ(UseManagerOf("plant/car.1").Unedit(), 0);
  EXPECT_EQ(StatusOf("plant/car.1"), "ReadOnly");
  EXPECT_EQ(ReadStatusAttributes(Car()), std::nullopt);
  EXPECT_EQ(Redraws, (TextLines{"plant/car.1", "plant/car.1"}));
}

TEST_F(Unedit, LeavesTheProductsBelowAlone) {
  Products.Add("axle", "proj/sub/axle.CATPart").Place("car", "axle.1", "axle");
  Client.ClearRules();
  Client.When("status -v")
      .Out(StatusReport() +
           "=====\r\nFile: axle.CATPart\tStatus: Up-to-date\r\n"
           "   Working revision:\t1.1\r\n"
           "   Repository revision:\t1.1\t/cvs/root/proj/sub/axle.CATPart,v\r\n");
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_EQ(Runs().size(), 5u);
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/axle.1")), std::nullopt);
  EXPECT_EQ(Redraws, (TextLines{"car", "car"}));
}

TEST_F(Unedit, SendsTheFileAlsoWhenItsFolderIsNoWorkingCopy) {
  Products.Add("bus", "elsewhere/bus.CATProduct");
  ZRKECVSManager& manager = UseManagerOf("bus");
  manager.SandboxRoot = (Folder.Host() + "\\").c_str();
  manager.CVSRoot = "/cvs/root";
  const CapturedOutput output;
  EXPECT_EQ(manager.Unedit(), E_FAIL);
  EXPECT_EQ(Runs(), (TextLines{"-d /cvs/root status -v elsewhere\\bus.CATProduct",
                               "-d /cvs/root -n edit elsewhere\\bus.CATProduct"}));
}
