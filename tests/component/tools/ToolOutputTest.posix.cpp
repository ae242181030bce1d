// Under Wine the system itself keeps a child's output open for as long as the child lives.

#include <gtest/gtest.h>

#include "component/tools/ToolRunner.h"

TEST(ToolOutput, EndsWhenTheClientClosesItsStreams) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("all").CloseOutput().Hang();
  EXPECT_EQ(tool.Run(), "all");
}
