#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/manager/CVSStage.h"
#include "support/CapturedOutput.h"
#include "support/DebugMessages.h"
#include "windows/WindowsControl.h"

using standin::WindowsCall;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

// A tree of two batches: "car" alone, and a file with a long name.
class RefreshFailures : public testing::Test, protected CVSStage {
protected:
  RefreshFailures() {
    Products.Add("car", "proj/car");
    Products.Add({.Name = "long", .Document = Folder.Host("proj") + "\\" + std::string(31'990, 'a')});
    Products.Place("car", "l", "long");
    Client.When("status -v proj\\car").Out(zrk::sample::StatusBlock("proj/first", "1.1"));
    Client.When("status -v")
        .Out(zrk::sample::kSeparatorLine + zrk::sample::StatusBlock("proj/second", "1.1"));
    Client.When("-n edit proj\\car").Out("proj/first\tanna\r\n");
    Client.When("-n edit").Out("proj/second\tbert\r\n");
  }

  ~RefreshFailures() override {
    for (const WindowsCall call :
         {WindowsCall::CreatePipe, WindowsCall::CreateProcess, WindowsCall::ReadFile}) {
      standin::FailWindowsCall(call, -1);
    }
  }

  // Refreshes with one call failing after a number of successes.
  void Refresh(WindowsCall call, int successes) {
    manager_.emplace(Product("car"));
    standin::FailWindowsCall(call, successes);
    manager_->RefreshStatus(Root("car"));
  }

  std::vector<std::string> FiledKeys(const zrk::cvs::ReportTable& table) {
    std::vector<std::string> keys;
    for (const auto& [key, text] : table) keys.push_back(key.substr(SandboxRoot().size()));
    return keys;
  }

  const CapturedOutput quiet_;
  const DebugMessages messages_;
  std::optional<ZRKECVSManager> manager_;
};

}  // namespace

TEST_F(RefreshFailures, FilesAllWhenThereIsNone) {
  Refresh(WindowsCall::CreateProcess, 100);
  EXPECT_THAT(FiledKeys(manager_->StatusBlockTable), ElementsAre("proj\\first", "proj\\second"));
  EXPECT_THAT(FiledKeys(manager_->EditTable), ElementsAre("proj\\first", "proj\\second"));
}

TEST_F(RefreshFailures, OfTheFirstRunFilesWhatTheOthersSay) {
  for (const WindowsCall call :
       {WindowsCall::CreatePipe, WindowsCall::CreateProcess, WindowsCall::ReadFile}) {
    Refresh(call, 0);
    EXPECT_THAT(FiledKeys(manager_->StatusBlockTable), ElementsAre("proj\\second")) << static_cast<int>(call);
    EXPECT_THAT(FiledKeys(manager_->EditTable), ElementsAre("proj\\first", "proj\\second"));
  }
}

TEST_F(RefreshFailures, OfTheEditPassFilesWhatTheOthersSay) {
  Refresh(WindowsCall::CreateProcess, 3);
  EXPECT_THAT(FiledKeys(manager_->StatusBlockTable), ElementsAre("proj\\first", "proj\\second"));
  EXPECT_THAT(FiledKeys(manager_->EditTable), ElementsAre("proj\\first"));
}

TEST_F(RefreshFailures, IsToldOnTheDebuggerChannelAndTheTimesAllTheSame) {
  Refresh(WindowsCall::CreateProcess, 0);
  ASSERT_EQ(messages_.All().size(), 5u);
  EXPECT_EQ(messages_.All()[0], L"CreateProcess failed\n");
  EXPECT_EQ(messages_.All()[1], L"Create process failed with");
  EXPECT_TRUE(messages_.All()[2].starts_with(L"\nCVS status check time: "));
}
