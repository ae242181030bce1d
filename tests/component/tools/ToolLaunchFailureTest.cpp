#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/tools/ToolRunner.h"
#include "support/DebugMessages.h"
#include "support/Files.h"
#include "support/HandleCount.h"

namespace {

const std::vector<std::wstring> kNotCreated = {L"CreateProcess failed\n", L"Create process failed with"};

}  // namespace

TEST(ToolLaunchFailure, WithoutAPathOfCVSNothingIsRunAndNothingSaid) {
  ToolRunner tool;
  tool.CVSExePath = "";
  const DebugMessages messages;
  const int handles = CountOpenHandles();
  EXPECT_EQ(tool.Run("status", "old"), "old");
  EXPECT_EQ(CountOpenHandles(), handles) << "no pipe is made";
  EXPECT_TRUE(tool.Client.Runs().empty());
  EXPECT_TRUE(messages.All().empty());
}

TEST(ToolLaunchFailure, WithAnyPathOfCVSTheLaunchIsTried) {
  ToolRunner tool;
  tool.CVSExePath = "x";
  const DebugMessages messages;
  tool.Run();
  EXPECT_EQ(messages.All(), kNotCreated);
}

TEST(ToolLaunchFailure, WithoutAPathOfSVNTheLaunchIsTriedAndFails) {
  ToolRunner tool;
  tool.IsSVN = true;
  tool.SVNExePath = "";
  const DebugMessages messages;
  EXPECT_EQ(tool.Run("status", "old"), "old");
  EXPECT_EQ(messages.All(), kNotCreated);
}

TEST(ToolLaunchFailure, InSVNModeThePathOfCVSIsNotNeeded) {
  ToolRunner tool;
  tool.IsSVN = true;
  tool.CVSExePath = "";
  tool.Client.Otherwise().Out("text");
  EXPECT_EQ(tool.Run(), "text");
}

TEST(ToolLaunchFailure, AProgramThatIsNotThereIsToldInTwoMessages) {
  ToolRunner tool;
  tool.CVSExePath = tool.Folder.Host("cvs.exe").c_str();
  const DebugMessages messages;
  EXPECT_EQ(tool.Run("status", "old"), "old");
  EXPECT_EQ(messages.All(), kNotCreated);
}

TEST(ToolLaunchFailure, AFileThatIsNoProgramIsToldInTwoMessages) {
  ToolRunner tool;
  WriteFile(tool.Folder / "cvs.exe", "only text");
  tool.CVSExePath = tool.Folder.Host("cvs.exe").c_str();
  const DebugMessages messages;
  EXPECT_EQ(tool.Run("status", "old"), "old");
  EXPECT_EQ(messages.All(), kNotCreated);
}

TEST(ToolLaunchFailure, AnEmptyWorkingFolderFails) {
  ToolRunner tool;
  const DebugMessages messages;
  EXPECT_EQ(tool.RunIn("", "status", "old"), "old");
  EXPECT_EQ(messages.All(), kNotCreated);
  EXPECT_TRUE(tool.Client.Runs().empty());
}

TEST(ToolLaunchFailure, AWorkingFolderThatIsNotThereFails) {
  ToolRunner tool;
  const DebugMessages messages;
  EXPECT_EQ(tool.RunIn(tool.Folder.Host("missing"), "status", "old"), "old");
  EXPECT_EQ(messages.All(), kNotCreated);
}

TEST(ToolLaunchFailure, TheNextRunWorks) {
  ToolRunner tool;
  tool.Client.Otherwise().Out("text");
  tool.RunIn("");
  EXPECT_EQ(tool.Run(), "text");
}
