#include <gtest/gtest.h>

#include <functional>

#include "component/manager/CVSStage.h"
#include "support/CapturedOutput.h"
#include "support/DialogRecorder.h"
#include "support/Files.h"

namespace {

void ExpectClosed(const ZRKECVSManager& manager, const char* operation) {
  EXPECT_EQ(manager.ChildOutput.Read.Get(), nullptr) << operation;
  EXPECT_EQ(manager.ChildOutput.Write.Get(), nullptr) << operation;
  EXPECT_EQ(manager.ChildInput.Read.Get(), nullptr) << operation;
  EXPECT_EQ(manager.ChildInput.Write.Get(), nullptr) << operation;
}

}  // namespace

TEST(ThePipesOfTheClient, AreClosedAfterEveryOperation) {
  CVSStage stage;
  stage.Products.Add("car", "proj/car");
  stage.Client.When("status -v").Out(zrk::sample::StatusBlock("proj/car", "1.1"));
  const CapturedOutput quiet;
  const DialogRecorder dialogs;
  ZRKECVSManager manager(stage.Product("car"));

  manager.RefreshStatus(stage.Root("car"));
  ExpectClosed(manager, "RefreshStatus");
  ZRKCVSStatus record;
  manager.GetFileStatus(stage.Products.At("car"), record);
  ExpectClosed(manager, "GetFileStatus");
  manager.Edit();
  ExpectClosed(manager, "Edit");
  manager.Unedit();
  ExpectClosed(manager, "Unedit");
  manager.CVSRemove(stage.Folder.Host("proj/car").c_str());
  ExpectClosed(manager, "CVSRemove");
  EXPECT_GE(stage.Client.Runs().size(), 7u);
}

TEST(ThePipesOfTheClient, AreClosedWhenTheClientWaitsForAnAnswerThatNobodyGives) {
  CVSStage stage;
  stage.Products.Add("car", "proj/car");
  stage.Client.Otherwise().Out("car has been modified; revert changes? ").Hang();
  const CapturedOutput quiet;
  const DialogRecorder dialogs;
  ZRKECVSManager manager(stage.Product("car"));
  manager.RefreshStatus(stage.Root("car"));
  ExpectClosed(manager, "RefreshStatus");
  ZRKCVSStatus record;
  manager.GetFileStatus(stage.Products.At("car"), record);
  ExpectClosed(manager, "GetFileStatus");
}

TEST(ThePipesOfTheClient, AreClosedAfterASubversionRefresh) {
  CVSStage stage;
  WriteFile(stage.Folder / "svn/.svn/entries", "10\n");
  stage.Products.Add("part", "svn/part");
  ZRKECVSManager manager(stage.Product("part"));
  manager.RefreshStatus(stage.Root("part"));
  EXPECT_FALSE(stage.Client.Runs().empty());
  ExpectClosed(manager, "RefreshStatus");
  manager.SVNDelete(stage.Folder.Host("svn/part").c_str());
  ExpectClosed(manager, "SVNDelete");
}
