#include <gtest/gtest.h>

#include <filesystem>

#include "component/tools/ToolRunner.h"

// A client that waits for an answer sees the end of its input although another client, started meanwhile,
// still runs: that one has not inherited the first one's input.
TEST(InheritedHandles, OfOneClientAreNotThoseOfAnother) {
  ToolRunner first;
  first.Client.Otherwise().Out("revert changes? ").ReadAll().Store("done", "x");
  first.Run("unedit");

  ToolRunner second;
  second.Client.Otherwise().Out("revert changes? ").Hang();
  second.Run("unedit");

  zrk::tools::AnswerTool(first.Context(), "yes");
  EXPECT_TRUE(std::filesystem::exists(first.Folder / "done"));
}
