// Each call to the system that an operation makes fails, one after the other, until there is none left to
// fail: the operation ends with the result and the messages that are promised, and leaves nothing behind.

#include <gtest/gtest.h>

#include <numeric>
#include <ostream>
#include <tuple>

#include "component/faults/FaultedOperations.h"
#include "dialogs/UserInterface.h"
#include "framework/FrameworkControl.h"
#include "windows/WindowsControl.h"

namespace faults {

using standin::WindowsCall;

void PrintTo(const Operation& operation, std::ostream* stream) {
  *stream << operation.Name;
}

namespace {

struct NamedCall {
  const char* Name;
  WindowsCall Call;
};

void PrintTo(const NamedCall& call, std::ostream* stream) {
  *stream << call.Name;
}

constexpr NamedCall kWindowsCalls[] = {{"CreatePipe", WindowsCall::CreatePipe},
                                       {"SetHandleInformation", WindowsCall::SetHandleInformation},
                                       {"CreateProcess", WindowsCall::CreateProcess},
                                       {"ReadFile", WindowsCall::ReadFile},
                                       {"WriteFile", WindowsCall::WriteFile},
                                       {"CloseHandle", WindowsCall::CloseHandle}};

using Messages = std::vector<std::wstring>;

// One use of each call but CreateProcess; whether all succeeded.
bool UsePipe() {
  HANDLE readEnd = nullptr;
  HANDLE writeEnd = nullptr;
  if (!CreatePipe(&readEnd, &writeEnd, nullptr, 0)) return false;
  char byte = 0;
  DWORD count = 0;
  bool succeeded = SetHandleInformation(writeEnd, HANDLE_FLAG_INHERIT, 0) != 0;
  const bool written = WriteFile(writeEnd, &byte, 1, &count, nullptr) != 0;
  succeeded = succeeded && written && ReadFile(readEnd, &byte, 1, &count, nullptr);
  const bool readClosed = CloseHandle(readEnd) != 0;
  const bool writeClosed = CloseHandle(writeEnd) != 0;
  return succeeded && readClosed && writeClosed;
}

// Whether the failure that was ordered behind so many successes has come; if not, it is called off.
bool HasFailed(WindowsCall call, int successes, const FaultStage& stage) {
  bool failed = true;
  if (call == WindowsCall::CreateProcess) {
    failed = stage.LaunchFailed();
  } else {
    for (int use = 0; use <= successes && failed; ++use) failed = UsePipe();
  }
  standin::FailWindowsCall(call, -1);
  return failed;
}

Messages ExpectedMessages(WindowsCall call, int successes) {
  if (call == WindowsCall::CreateProcess) return {L"CreateProcess failed\n", L"Create process failed with"};
  if (call != WindowsCall::CreatePipe) return {};
  return {successes % 2 == 0 ? L"Stdout pipe creation failed\n" : L"Stdin pipe creation failed\n"};
}

// The run whose first reading is the one with that number.
std::optional<int> RunBegunByRead(const std::vector<int>& reads, int number) {
  int first = 0;
  for (std::size_t run = 0; run < reads.size(); ++run) {
    if (first == number) return static_cast<int>(run);
    first += reads[run];
  }
  return std::nullopt;
}

class SystemFaults : public testing::TestWithParam<std::tuple<Operation, NamedCall>> {
protected:
  ~SystemFaults() override { standin::FailWindowsCall(call_, -1); }

  // False when the operation was over before the call could fail.
  bool PerformWithFailureAfter(int successes) {
    FaultStage stage(operation_.Kind);
    operation_.Prepare(stage);
    const long objects = standin::LiveObjectCount();
    const auto shownBefore = stage.Shown();

    standin::FailWindowsCall(call_, successes);
    const HRESULT result = operation_.Perform(stage);
    const bool failed = HasFailed(call_, successes, stage);

    EXPECT_EQ(standin::OpenHandleCount(), 0);
    // What a client has read stands in its log when it has ended.
    EXPECT_TRUE(AllClientsEnd());
    ExpectOutcome(stage, result, failed, successes);
    EXPECT_EQ(standin::LiveDialogCount(), 0);
    // An instance that was put onto the product is there to stay: itself and its parts.
    const bool instanceAdded = !shownBefore && stage.Shown();
    EXPECT_TRUE(instanceAdded || standin::LiveObjectCount() == objects);
    return failed;
  }

  // How often the operation uses the call when nothing fails; nothing when that is not laid down.
  std::optional<int> Uses() const {
    switch (call_) {
      case WindowsCall::CreatePipe:
      case WindowsCall::SetHandleInformation:
        return 2 * operation_.Runs();
      case WindowsCall::CreateProcess:
        return operation_.Runs();
      case WindowsCall::ReadFile:
        return std::accumulate(operation_.Reads.begin(), operation_.Reads.end(), 0);
      case WindowsCall::WriteFile:
        return operation_.Writes;
      default:
        return std::nullopt;
    }
  }

private:
  void ExpectOutcome(const FaultStage& stage, HRESULT result, bool failed, int successes) {
    if (!failed) {
      EXPECT_TRUE(stage.Messages().empty());
      operation_.Expect(stage, result, {});
    } else if (call_ == WindowsCall::CloseHandle) {
      // Only one of the handles of a run must close; which it is does not matter.
      const bool told = !stage.Messages().empty();
      if (told) {
        EXPECT_EQ(stage.Messages(), Messages{L"Closing handle failed\n"});
        ++closingsTold_;
      }
      operation_.Expect(stage, result,
                        {told ? std::optional(stage.LaunchesBeforeMessages() - 1) : std::nullopt});
    } else {
      EXPECT_EQ(stage.Messages(), ExpectedMessages(call_, successes));
      operation_.Expect(stage, result, Lost(successes));
    }
  }

  Loss Lost(int successes) const {
    switch (call_) {
      case WindowsCall::CreatePipe:
        return {successes / 2};
      case WindowsCall::CreateProcess:
        return {successes};
      case WindowsCall::ReadFile:
        return {RunBegunByRead(operation_.Reads, successes)};
      case WindowsCall::WriteFile:
        return {std::nullopt, true};
      default:
        return {};
    }
  }

protected:
  const Operation operation_ = std::get<0>(GetParam());
  const WindowsCall call_ = std::get<1>(GetParam()).Call;
  int closingsTold_ = 0;
};

std::string FaultName(const testing::TestParamInfo<SystemFaults::ParamType>& info) {
  return std::get<0>(info.param).Name + "_" + std::get<1>(info.param).Name;
}

}  // namespace

TEST_P(SystemFaults, EndsWithThePromisedResultAndMessagesAndLeavesNothingBehind) {
  constexpr int kMostUses = 200;
  const long objects = standin::LiveObjectCount();
  int uses = 0;
  for (bool failed = true; failed && uses < kMostUses;) {
    SCOPED_TRACE("after " + std::to_string(uses) + " successes");
    failed = PerformWithFailureAfter(uses);
    EXPECT_EQ(standin::LiveObjectCount(), objects);
    if (failed) ++uses;
  }
  EXPECT_LT(uses, kMostUses);
  EXPECT_EQ(uses, Uses().value_or(uses));
  EXPECT_EQ(closingsTold_, call_ == WindowsCall::CloseHandle ? operation_.Runs() : 0);
}

INSTANTIATE_TEST_SUITE_P(, SystemFaults,
                         testing::Combine(testing::ValuesIn(Operations()), testing::ValuesIn(kWindowsCalls)),
                         FaultName);

}  // namespace faults
