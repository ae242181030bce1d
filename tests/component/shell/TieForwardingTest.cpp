#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "CATILinkableObject.h"
#include "ZRKCVSStatus.h"
#include "ZRKICVSManager.h"
#include "manager/ZRKECVSManager.h"
#include "shell/Ties.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/CapturedOutput.h"
#include "support/DialogRecorder.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

namespace {

// A manager that the test can look into, and a tie that leads to it.
class TieForwarding : public testing::Test {
protected:
  TieForwarding() {
    WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
    assembly_.Add("car", "proj/car.CATProduct").Add("bus", "proj/bus.CATProduct");
    product_ = assembly_.At("car");
    manager_.emplace(*product_);
    tie_ = ZRKICVSManager_var::Adopt(
        static_cast<ZRKICVSManager*>(CreateTIEZRKICVSManagerZRKECVSManager(&*manager_)));
  }
  ~TieForwarding() override {
    tie_ = nullptr;
    manager_.reset();
  }

  unsigned long ReferencesOf(const CATBaseUnknown_var& object) {
    object->AddRef();
    return object->Release();
  }

  Session session_;
  ScriptedClient client_;
  DialogRecorder dialogs_;
  TemporaryFolder folder_;
  Assembly assembly_{folder_};
  CATBaseUnknown_var product_;
  std::optional<ZRKECVSManager> manager_;
  ZRKICVSManager_var tie_;
};

}  // namespace

TEST_F(TieForwarding, PrintCommTimeReachesTheExtension) {
  manager_->CommTime = 1234;
  const CapturedOutput output;
  EXPECT_EQ(tie_->PrintCommTime(), 0);
  EXPECT_NE(output.Bytes().find("1234"), std::string::npos);
  EXPECT_EQ(manager_->CommTime, 0);
}

TEST_F(TieForwarding, EditGivesTheExtensionsResultsUnchanged) {
  EXPECT_EQ(tie_->Edit(), 0);
  client_.When("update").Out("M proj/car.CATProduct\r\n");
  EXPECT_EQ(tie_->Edit(), 1);
  manager_->CVSExePath = "";
  EXPECT_EQ(tie_->Edit(), E_FAIL);
}

TEST_F(TieForwarding, UneditGivesTheExtensionsResultsUnchanged) {
  WriteStatusAttributes(product_, {"", "Edit", "", ""});
  const CapturedOutput output;
  EXPECT_EQ(tie_->Unedit(), 0);
  client_.When("unedit").Out("car.CATProduct has been modified; revert changes? ").Read();
  EXPECT_EQ(tie_->Unedit(), 1);
  manager_->CVSExePath = "";
  EXPECT_EQ(tie_->Unedit(), E_FAIL);
}

TEST_F(TieForwarding, CVSRemoveTakesItsArgumentAndGivesItsResultUnchanged) {
  EXPECT_EQ(tie_->CVSRemove(folder_.Host("proj/a b.txt").c_str()), 0);
  ASSERT_EQ(client_.Runs().size(), 1u);
  EXPECT_EQ(client_.Runs()[0].Arguments.back(), "a b.txt");
  manager_->IsSVN = true;
  EXPECT_EQ(tie_->CVSRemove(folder_.Host("proj/a b.txt").c_str()), E_FAIL);
}

TEST_F(TieForwarding, SVNDeleteTakesItsArgumentUnchanged) {
  manager_->IsSVN = true;
  manager_->SVNWorkingFolder = folder_.Host("proj").c_str();
  const std::string file = folder_.Host("proj/a b.txt");
  EXPECT_EQ(tie_->SVNDelete(file.c_str()), 0);
  ASSERT_EQ(client_.Runs().size(), 1u);
  EXPECT_EQ(client_.Runs()[0].Program, "svn.exe");
  EXPECT_EQ(client_.Runs()[0].Arguments.back(), file);
}

TEST_F(TieForwarding, GetFileStatusFillsTheCallersRecord) {
  client_.When("status -v").Out("File: car.CATProduct  \tStatus: Up-to-date\r\n");
  ZRKCVSStatus record;
  EXPECT_EQ(tie_->GetFileStatus(product_, record), 0);
  EXPECT_STREQ(record.Status.ConvertToChar(), "Up-to-date\r");
}

TEST_F(TieForwarding, RefreshStatusHandsTheRootOn) {
  assembly_.Place("car", "bus.1", "bus");
  const CapturedOutput output;
  tie_->RefreshStatus(assembly_.At("bus"));
  ASSERT_EQ(client_.Runs().size(), 2u);
  EXPECT_EQ(client_.Runs()[0].Joined(), "-d /cvs/root status -v proj\\bus.CATProduct");
}

TEST_F(TieForwarding, ARootOutsideTheFeatureTreeCountsAsNone) {
  tie_->RefreshStatus(CATILinkableObject_var(product_)->GetDocument());
  EXPECT_TRUE(client_.Runs().empty());
}

TEST_F(TieForwarding, AnObjectThatIsNoProductCountsAsNone) {
  ZRKCVSStatus record;
  EXPECT_EQ(tie_->GetFileStatus(CATILinkableObject_var(product_)->GetDocument(), record), 0);
  EXPECT_EQ(tie_->GetFileStatus(nullptr, record), 0);
  EXPECT_TRUE(client_.Runs().empty());
}

TEST_F(TieForwarding, TheArgumentsAreReleasedOnReturn) {
  const unsigned long references = ReferencesOf(product_);
  const CapturedOutput output;
  ZRKCVSStatus record;
  tie_->RefreshStatus(product_);
  tie_->GetFileStatus(product_, record);
  EXPECT_EQ(ReferencesOf(product_), references);
}
