#include <gtest/gtest.h>

#include "component/tools/ToolRunner.h"
#include "support/CreationFlags.h"
#include "support/HandleCount.h"
#include "windows/LaunchLog.h"

TEST(AHiddenClient, HasAConsoleOfItsOwnWithoutAWindow) {
  ToolRunner tool;
  tool.Client.Otherwise().TellConsole();
  EXPECT_EQ(tool.Run(), "own console, no window");
}

// Where there is no display no console has a window, so what the system is asked for is looked at too.
TEST(AHiddenClient, IsStartedWithoutAWindowAndWithNothingElse) {
  ToolRunner tool;
  tool.Run();
  EXPECT_EQ(LastCreationFlags(), DWORD{CREATE_NO_WINDOW});
}

TEST(AHiddenClient, InheritsTheReadEndOfItsInputAndTheWriteEndOfItsOutputAndNothingElseOfTheRun) {
  ToolRunner tool;
  tool.Run();
  tool.ClosePipes();
  const int before = CountInheritableHandles();
  int atLaunch = 0;
  standin::SetLaunchListener([&](const standin::Launch&) { atLaunch = CountInheritableHandles(); });
  tool.Run();
  standin::SetLaunchListener({});
  EXPECT_EQ(atLaunch, before + 2);
}

TEST(AHiddenClient, LeavesTheHostEndsThatNoOtherClientInherits) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("revert changes? ");
  const int before = CountInheritableHandles();
  tool.Run("unedit");
  EXPECT_EQ(CountInheritableHandles(), before);
}
