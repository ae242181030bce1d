#include "component/operations/OperationTest.h"
#include "support/HandleCount.h"
#include "windows/WindowsControl.h"

// Every call to the system that an operation makes is made to fail, each in turn. Linux only: it takes
// hundreds of runs, and minutes under Wine; tools/ToolFaultsTest does the same there with single runs.

namespace {

using standin::WindowsCall;

struct Fault {
  WindowsCall Call;
  // More calls of the kind than any operation here makes.
  int Calls;
};

constexpr Fault kFaults[] = {{WindowsCall::CreatePipe, 11},   {WindowsCall::SetHandleInformation, 11},
                             {WindowsCall::CreateProcess, 6}, {WindowsCall::ReadFile, 14},
                             {WindowsCall::WriteFile, 2},     {WindowsCall::CloseHandle, 40}};

class OperationFaults : public OperationTest {
protected:
  ~OperationFaults() override {
    for (const Fault& fault : kFaults) standin::FailWindowsCall(fault.Call, -1);
  }

  template <class Operation>
  void MakeEachCallFail(Operation operation) {
    operation();
    const int handles = CountOpenHandles();
    for (const Fault& fault : kFaults) {
      for (int successes = 0; successes < fault.Calls; ++successes) {
        standin::FailWindowsCall(fault.Call, successes);
        operation();
        standin::FailWindowsCall(fault.Call, -1);
        EXPECT_EQ(CountOpenHandles(), handles) << static_cast<int>(fault.Call) << ' ' << successes;
      }
    }
  }

  // The lines about a document that the reports do not know.
  CapturedOutput output_;
};

}  // namespace

TEST_F(OperationFaults, EditEndsWithAResultAndLeavesNoHandleOpen) {
  Client.When("status -v").Out(StatusReport());
  MakeEachCallFail([this] { EXPECT_EQ(Manager().Edit(), 0); });
}

TEST_F(OperationFaults, UneditEndsWithAResultAndLeavesNoHandleOpen) {
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Out("has been modified; revert changes?").ReadAll();
  MakeEachCallFail([this] {
    WriteStatusAttributes(Car(), {"", "Edit", "", ""});
    AnswerQuestions({standin::DialogAnswer::Yes});
    EXPECT_EQ(Manager().Unedit(), 0);
  });
}

TEST_F(OperationFaults, CVSRemoveEndsWithSuccessAndLeavesNoHandleOpen) {
  Client.When("remove").Out("text");
  MakeEachCallFail([this] { EXPECT_EQ(Manager().CVSRemove(Folder.Host("a.txt").c_str()), 0); });
}
