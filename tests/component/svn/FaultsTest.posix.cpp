// Every system call that a Subversion operation makes fails once, each in turn. Linux only: it takes
// hundreds of runs, and minutes under Wine; tools/ToolFaultsTest does the same there with single runs.

#include <gtest/gtest.h>

#include <functional>

#include "SVNStage.h"
#include "ZRKICVSManager.h"
#include "support/HandleCount.h"
#include "windows/WindowsControl.h"

namespace {

using namespace entries;
using standin::WindowsCall;

class SVNFaults : public SVNStage {
protected:
  SVNFaults() {
    Products.Add("car", "wc/car.CATProduct")
        .Add("wheel", "wc/wheel.CATPart")
        .Place("car", "wheel.1", "wheel");
    WriteEntries("wc", File(10, "car.CATProduct", "9", "bert", {kToken, "anna", "", ""}) +
                           File(10, "wheel.CATPart", "5", "bert"));
  }
  ~SVNFaults() override {
    for (const WindowsCall call : Calls) standin::FailWindowsCall(call, -1);
  }

  // The operation is done once for each call and each of its first uses.
  void EachInTurn(const std::function<void(ZRKICVSManager&)>& operation) {
    const ZRKICVSManager_var manager = Products.At("car");
    operation(*manager);
    const int before = CountOpenHandles();
    for (const WindowsCall call : Calls) {
      for (int successes = 0; successes < 8; ++successes) {
        standin::FailWindowsCall(call, successes);
        operation(*manager);
        standin::FailWindowsCall(call, -1);
        EXPECT_EQ(CountOpenHandles(), before) << static_cast<int>(call) << " after " << successes;
      }
    }
  }

  const std::vector<WindowsCall> Calls{WindowsCall::CreatePipe,    WindowsCall::SetHandleInformation,
                                       WindowsCall::CreateProcess, WindowsCall::ReadFile,
                                       WindowsCall::WriteFile,     WindowsCall::CloseHandle};
};

TEST_F(SVNFaults, OfARefreshLeaveNoHandleOpenAndWhatTheEntriesFileTells) {
  EachInTurn([&](ZRKICVSManager& manager) {
    manager.RefreshStatus(Products.At("car"));
    EXPECT_EQ(ReadStatusAttributes(Products.At("car")),
              (StatusAttributes{"9", "Edit", "", "Locked by: \nanna\n-------------\n"}));
    EXPECT_EQ(ReadStatusAttributes(Products.At("car/wheel.1")), (StatusAttributes{"5", "ReadOnly", "", ""}));
  });
}

TEST_F(SVNFaults, OfALockLeaveNoHandleOpenAndNoFailure) {
  EachInTurn([&](ZRKICVSManager& manager) {
    EXPECT_EQ(manager.Edit(), S_OK);
    EXPECT_EQ(ReadStatusAttributes(Products.At("car")), (StatusAttributes{"9", "Edit", "", "anna\n"}));
  });
}

TEST_F(SVNFaults, OfAnUnlockLeaveNoHandleOpenAndNoFailure) {
  EachInTurn([&](ZRKICVSManager& manager) { EXPECT_EQ(manager.Unedit(), S_OK); });
}

TEST_F(SVNFaults, OfADeletionLeaveNoHandleOpenAndNoFailure) {
  EachInTurn([&](ZRKICVSManager& manager) {
    EXPECT_EQ(manager.SVNDelete(Folder.Host("wc/car.CATProduct").c_str()), S_OK);
  });
}

TEST_F(SVNFaults, OfTheFirstRunOfALockDoNotKeepTheSecondFromBeingTried) {
  const ZRKICVSManager_var manager = Products.At("car");
  standin::FailWindowsCall(WindowsCall::CreateProcess, 0);
  EXPECT_EQ(manager->Edit(), S_OK);
  EXPECT_EQ(Arguments().at(0).at(0), "lock");
}

}  // namespace
