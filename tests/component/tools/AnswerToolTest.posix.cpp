#include <gtest/gtest.h>

#include <string>

#include "component/tools/ToolRunner.h"
#include "windows/WindowsControl.h"

// Linux only: there the stand-in counts the children that run.

TEST(AnswerFaults, AClientThatKeepsSilentForTooLongIsLetGo) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("revert changes? ").HangForever();
  const int children = standin::LiveChildCount();
  tool.Run("unedit");
  zrk::tools::AnswerTool(tool.Context(), "yes", 20);
  EXPECT_EQ(standin::LiveChildCount(), children + 1) << "the client was waited for";
  EXPECT_EQ(tool.ChildOutput.Read.Get(), nullptr);
  EXPECT_EQ(tool.ChildInput.Write.Get(), nullptr);
}

TEST(AnswerFaults, AFailedWriteStillLetsTheClientSeeTheEndOfItsInput) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("revert changes? ").ReadAll();
  tool.Run("unedit");
  standin::FailWindowsCall(standin::WindowsCall::WriteFile, 0);
  zrk::tools::AnswerTool(tool.Context(), "yes");
  standin::FailWindowsCall(standin::WindowsCall::WriteFile, -1);
  EXPECT_EQ(tool.ClientInput(), "");
}
