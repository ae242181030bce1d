#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <string>
#include <utility>
#include <vector>

#include "component/tools/ToolRunner.h"
#include "support/DebugMessages.h"
#include "support/HandleCount.h"
#include "windows/LaunchLog.h"
#include "windows/WindowsControl.h"

// Every call to the system that can fail is made to, and is reported in the words that are promised.

using standin::WindowsCall;

namespace {

using Messages = std::vector<std::wstring>;

class ToolFaults : public testing::Test {
protected:
  ToolFaults() { tool_.Client.Otherwise().Out("text"); }
  ~ToolFaults() override {
    for (const WindowsCall call : {WindowsCall::CreatePipe, WindowsCall::SetHandleInformation,
                                   WindowsCall::CreateProcess, WindowsCall::ReadFile, WindowsCall::WriteFile,
                                   WindowsCall::CloseHandle, WindowsCall::CloseHandleInVain}) {
      standin::FailWindowsCall(call, -1);
    }
    standin::SetLaunchListener({});
  }

  // Closes the handle itself once the client has its own, so that the run cannot.
  static void CloseWhenStarted(const zrk::tools::UniqueHandle& handle) {
    standin::SetLaunchListener([&](const standin::Launch&) { EXPECT_TRUE(CloseHandle(handle.Get())); });
  }

  // What stands in an output that held "old " when that call fails.
  std::string RunFailing(WindowsCall call, int successes) {
    const int handles = CountOpenHandles();
    standin::FailWindowsCall(call, successes);
    const std::string output = tool_.Run("status", "old ");
    standin::FailWindowsCall(call, -1);
    tool_.ClosePipes();
    EXPECT_EQ(CountOpenHandles(), handles) << "handles left open";
    return output;
  }

  // Whether the runs so far have left the first read to be made, which then fails: all that they wrote is
  // still to be read.
  bool HasReadNothing() {
    const std::string next = tool_.Run("status", "old ");
    standin::FailWindowsCall(WindowsCall::ReadFile, -1);
    tool_.ClosePipes();
    return next == "old ";
  }

  ToolRunner tool_;
  DebugMessages messages_;
};

}  // namespace

TEST_F(ToolFaults, NoPipeForTheOutput) {
  EXPECT_EQ(RunFailing(WindowsCall::CreatePipe, 0), "old ");
  EXPECT_EQ(messages_.All(), Messages{L"Stdout pipe creation failed\n"});
  EXPECT_TRUE(tool_.Client.Runs().empty());
}

TEST_F(ToolFaults, NoPipeForTheInput) {
  EXPECT_EQ(RunFailing(WindowsCall::CreatePipe, 1), "old ");
  EXPECT_EQ(messages_.All(), Messages{L"Stdin pipe creation failed\n"});
  EXPECT_TRUE(tool_.Client.Runs().empty());
}

TEST_F(ToolFaults, NoProcessIsToldByTheLaunchAndThenByTheRun) {
  EXPECT_EQ(RunFailing(WindowsCall::CreateProcess, 0), "old ");
  EXPECT_EQ(messages_.All(), (Messages{L"CreateProcess failed\n", L"Create process failed with"}));
}

TEST_F(ToolFaults, TheWriteEndOfTheOutputMustClose) {
  CloseWhenStarted(tool_.ChildOutput.Write);
  EXPECT_EQ(tool_.Run("status", "old "), "old ");
  EXPECT_EQ(messages_.All(), Messages{L"Closing handle failed\n"});
}

TEST_F(ToolFaults, AWriteEndThatStaysOpenIsNotReadToAnEndItDoesNotHave) {
  HANDLE writeEnd = nullptr;
  standin::SetLaunchListener([&](const standin::Launch&) { writeEnd = tool_.ChildOutput.Write.Get(); });
  // The first three are of the process, its thread and the read end of its input.
  standin::FailWindowsCall(WindowsCall::CloseHandleInVain, 3);
  auto run = std::async(std::launch::async, [&] {
    const std::string output = tool_.Run("status", "old ");
    tool_.ClosePipes();
    return output;
  });
  const bool ends = run.wait_for(std::chrono::minutes(1)) == std::future_status::ready;
  EXPECT_TRUE(CloseHandle(writeEnd)) << "it was closed";
  EXPECT_TRUE(ends);
  EXPECT_EQ(run.get(), "old ");
  EXPECT_EQ(messages_.All(), Messages{L"Closing handle failed\n"});
}

TEST_F(ToolFaults, NothingIsReadWithoutAClient) {
  for (const auto& [call, successes] : {std::pair{WindowsCall::CreatePipe, 0},
                                        {WindowsCall::CreatePipe, 1},
                                        {WindowsCall::CreateProcess, 0}}) {
    standin::FailWindowsCall(WindowsCall::ReadFile, 0);
    RunFailing(call, successes);
    EXPECT_TRUE(HasReadNothing()) << static_cast<int>(call) << " " << successes;
  }
}

TEST_F(ToolFaults, NothingIsReadWhenTheWriteEndDoesNotClose) {
  standin::FailWindowsCall(WindowsCall::ReadFile, 0);
  RunFailing(WindowsCall::CloseHandle, 3);
  EXPECT_EQ(messages_.All(), Messages{L"Closing handle failed\n"});
  EXPECT_TRUE(HasReadNothing());
}

TEST_F(ToolFaults, TheReadEndOfTheInputNeedNotClose) {
  CloseWhenStarted(tool_.ChildInput.Read);
  EXPECT_EQ(tool_.Run("status", "old "), "old text");
  EXPECT_TRUE(messages_.All().empty());
}

TEST_F(ToolFaults, OnlyOneOfTheClosingsIsLookedAt) {
  int told = 0;
  for (int successes = 0; successes < 8; ++successes) {
    messages_.Clear();
    const std::string output = RunFailing(WindowsCall::CloseHandle, successes);
    if (messages_.All().empty()) {
      EXPECT_EQ(output, "old text") << successes;
    } else {
      EXPECT_EQ(output, "old ") << successes;
      EXPECT_EQ(messages_.All(), Messages{L"Closing handle failed\n"}) << successes;
      ++told;
    }
  }
  EXPECT_EQ(told, 1);
}

TEST_F(ToolFaults, HandlesThatStayInheritableDoNotStopTheRun) {
  EXPECT_EQ(RunFailing(WindowsCall::SetHandleInformation, 0), "old text");
  EXPECT_EQ(RunFailing(WindowsCall::SetHandleInformation, 1), "old text");
  EXPECT_TRUE(messages_.All().empty());
}

TEST_F(ToolFaults, AReadThatFailsIsTheEndOfTheOutput) {
  EXPECT_EQ(RunFailing(WindowsCall::ReadFile, 0), "old ");
  EXPECT_TRUE(messages_.All().empty());
}

TEST_F(ToolFaults, WhatWasReadBeforeAReadFailsIsKept) {
  tool_.Client.ClearRules();
  tool_.Client.Otherwise().Out(std::string(4096, 'x') + "lost");
  EXPECT_EQ(RunFailing(WindowsCall::ReadFile, 1), "old " + std::string(4096, 'x'));
}

TEST_F(ToolFaults, TheRunAfterAFailureIsAsEver) {
  for (const WindowsCall call : {WindowsCall::CreatePipe, WindowsCall::CreateProcess, WindowsCall::ReadFile,
                                 WindowsCall::CloseHandle}) {
    RunFailing(call, 0);
    EXPECT_EQ(tool_.Run(), "text");
    tool_.ClosePipes();
  }
}
