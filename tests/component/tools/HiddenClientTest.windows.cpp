#include <gtest/gtest.h>

#include "component/tools/ToolRunner.h"

TEST(AHiddenClient, HasAConsoleOfItsOwnWithoutAWindow) {
  ToolRunner tool;
  tool.Client.Otherwise().TellConsole();
  EXPECT_EQ(tool.Run(), "own console, no window");
}
