#include "component/operations/OperationTest.h"
#include "windows/WindowsControl.h"

// Every call to the system that an operation makes is made to fail, each in turn.

namespace {

using standin::WindowsCall;

constexpr WindowsCall kCalls[] = {WindowsCall::CreatePipe,    WindowsCall::SetHandleInformation,
                                  WindowsCall::CreateProcess, WindowsCall::ReadFile,
                                  WindowsCall::WriteFile,     WindowsCall::CloseHandle};
// More than any operation here makes of one kind.
constexpr int kCallsOfAKind = 40;

class OperationFaults : public OperationTest {
protected:
  ~OperationFaults() override {
    for (const WindowsCall call : kCalls) standin::FailWindowsCall(call, -1);
  }

  template <class Operation>
  void MakeEachCallFail(Operation operation) {
    operation();
    const int handles = CountOpenHandles();
    for (const WindowsCall call : kCalls) {
      for (int successes = 0; successes < kCallsOfAKind; ++successes) {
        standin::FailWindowsCall(call, successes);
        operation();
        standin::FailWindowsCall(call, -1);
        EXPECT_EQ(CountOpenHandles(), handles) << static_cast<int>(call) << ' ' << successes;
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
