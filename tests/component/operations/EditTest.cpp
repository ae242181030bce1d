#include "component/operations/OperationTest.h"
#include "support/DebugMessages.h"

// Taking a file for editing when the client has nothing to say.

namespace {

class Edit : public OperationTest {};

}  // namespace

TEST_F(Edit, AsksForANewerVersionThenEditsThenAsksForTheStatus) {
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit, kStatus}));
}

TEST_F(Edit, TheFileIsOneArgumentOfEveryRun) {
  Manager().Edit();
  for (const ClientRun& run : Client.Runs()) {
    EXPECT_EQ(run.Program, "cvs.exe");
    EXPECT_EQ(run.Arguments.back(), "proj\\sub\\car body.CATProduct");
  }
}

TEST_F(Edit, TheClientRunsInTheSandbox) {
  Manager().Edit();
  ASSERT_EQ(Client.Runs().size(), 3u);
  for (const ClientRun& run : Client.Runs()) EXPECT_EQ(run.Folder, Folder.Host());
}

TEST_F(Edit, MarksTheProductAndRefreshesRevisionAndRelease) {
  WriteStatusAttributes(Car(), {"1.1", "ReadOnly", "OLD", "a comment"});
  Client.When("status -v").Out(StatusReport("1.4", "R5"));
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(ReadStatusAttributes(Car()), (StatusAttributes{"1.4", "Edit", "R5(revision: 1.4)", "a comment"}));
}

TEST_F(Edit, AddsTheInstanceWhenTheProductHasNone) {
  Client.When("status -v").Out(StatusReport("1.4"));
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(ReadStatusAttributes(Car()), (StatusAttributes{"1.4", "Edit", "", ""}));
}

TEST_F(Edit, AStatusReportThatTellsNothingEmptiesRevisionAndRelease) {
  WriteStatusAttributes(Car(), {"1.1", "ReadOnly", "OLD", ""});
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(ReadStatusAttributes(Car()), (StatusAttributes{"", "Edit", "", ""}));
}

TEST_F(Edit, RedrawsTheProductOnceAndShowsNothing) {
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(Redraws, TextLines{"car"});
  EXPECT_TRUE(Dialogs().empty());
}

TEST_F(Edit, WritesNothingToStandardOutputOrToTheDebugger) {
  const CapturedOutput output;
  const DebugMessages messages;
  Manager().Edit();
  EXPECT_EQ(output.Bytes(), "");
  EXPECT_TRUE(messages.All().empty());
}

TEST_F(Edit, OfAnInstanceMarksTheInstanceAndNotItsReference) {
  Products.Add("plant", "plant.CATProduct").Place("plant", "car.1", "car");
  Client.When("status -v").Out(StatusReport("1.4"));
  EXPECT_EQ(UseManagerOf("plant/car.1").Edit(), 0);
  EXPECT_EQ(Runs(), (TextLines{kUpdate, kEdit, kStatus}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("plant/car.1")), (StatusAttributes{"1.4", "Edit", "", ""}));
  EXPECT_EQ(ReadStatusAttributes(Car()), std::nullopt);
  EXPECT_EQ(Redraws, TextLines{"plant/car.1"});
}

TEST_F(Edit, TheClientMayMakeTheFileWritable) {
  SetReadOnly(Document());
  Client.When("-x edit").MakeWritable(Document());
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_TRUE(IsWritable(Document()));
  EXPECT_EQ(StatusOf("car"), "Edit");
}

TEST_F(Edit, OnlyTheFirstOccurrenceOfTheSandboxIsTakenOffThePath) {
  Manager().SandboxRoot = "\\";
  const std::string document = Folder.Host(kDocument);
  const std::size_t first = document.find('\\');
  Manager().Edit();
  ASSERT_EQ(Client.Runs().size(), 3u);
  EXPECT_EQ(Client.Runs()[0].Arguments.back(), document.substr(0, first) + document.substr(first + 1));
}

TEST_F(Edit, LeavesTheCachesAlone) {
  Manager().StatusBlockTable = {{"a", "b"}};
  Manager().EditTable = {{"c", "d"}};
  Client.When("status -v").Out(StatusReport());
  EXPECT_EQ(Manager().Edit(), 0);
  EXPECT_EQ(Manager().StatusBlockTable, (zrk::cvs::ReportTable{{"a", "b"}}));
  EXPECT_EQ(Manager().EditTable, (zrk::cvs::ReportTable{{"c", "d"}}));
}
