// What the system is asked for when a client is started.

#include <gtest/gtest.h>

#include "component/tools/ToolRunner.h"
#include "support/HandleCount.h"
#include "support/Launches.h"

// Where there is no display no console has a window, so that only this shows it.
TEST(AHiddenClient, IsStartedWithoutAWindowAndWithNothingElse) {
  ToolRunner tool;
  const Launches launches;
  tool.Run();
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].CreationFlags, DWORD{CREATE_NO_WINDOW});
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
