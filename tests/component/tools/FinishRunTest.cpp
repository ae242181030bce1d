#include <gtest/gtest.h>

#include <filesystem>

#include "component/tools/ToolRunner.h"
#include "support/HandleCount.h"
#include "windows/WindowsControl.h"

namespace {

// A client that asks its question, waits for the end of its input and then does something.
class AWaitingClient : public testing::Test {
protected:
  AWaitingClient() {
    tool_.Client.When("unedit")
        .Out("revert changes? ")
        .ReadAll()
        .Repeat(10'000, "a line\r\n")
        .Store("done", "x");
    tool_.Client.Otherwise().Out("text");
    tool_.Run("unedit");
  }
  bool HasEnded() const { return std::filesystem::exists(tool_.Folder / "done"); }

  ToolRunner tool_;
};

}  // namespace

TEST_F(AWaitingClient, IsNotWaitedForByTheRun) {
  EXPECT_FALSE(HasEnded());
}

TEST_F(AWaitingClient, HasEndedWhenItsRunIsFinished) {
  zrk::tools::FinishRun(tool_.Context());
  EXPECT_TRUE(HasEnded());
}

TEST_F(AWaitingClient, HasEndedAlsoWhenItWritesNoByteInBetween) {
  standin::FailWindowsCall(standin::WindowsCall::ReadFileEmpty, 0);
  zrk::tools::FinishRun(tool_.Context());
  EXPECT_TRUE(HasEnded());
}

TEST_F(AWaitingClient, HasEndedWhenTheNextOneStarts) {
  EXPECT_EQ(tool_.Run("status"), "text");
  EXPECT_TRUE(HasEnded());
}

TEST_F(AWaitingClient, HasEndedWhenTheOperationIsOver) {
  { const zrk::tools::RunScope run(tool_.Context()); }
  EXPECT_TRUE(HasEnded());
}

TEST(FinishRunAgain, MayBeDoneWithoutOneAndTwice) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("text");
  const int handles = CountOpenHandles();
  zrk::tools::FinishRun(tool.Context());
  EXPECT_EQ(tool.Run("status"), "text");
  zrk::tools::FinishRun(tool.Context());
  zrk::tools::FinishRun(tool.Context());
  EXPECT_EQ(CountOpenHandles(), handles);
}
