#include <gtest/gtest.h>

#include "component/tools/ToolRunner.h"

TEST(ToolCommandLine, InCVSModeTheRootStandsInFrontOfTheArguments) {
  ToolRunner tool;
  tool.Run(" status -v \"sub\\a.CATPart\"");
  const auto runs = tool.Client.Runs();
  ASSERT_EQ(runs.size(), 1u);
  EXPECT_EQ(runs[0].Program, "cvs.exe");
  EXPECT_EQ(runs[0].Arguments,
            (std::vector<std::string>{"-d", "/cvs/root", "status", "-v", "sub\\a.CATPart"}));
}

TEST(ToolCommandLine, QuotedArgumentsReachTheClientWhole) {
  ToolRunner tool;
  tool.Run("remove -f \"a b.txt\" \"c d.txt\"");
  ASSERT_EQ(tool.Client.Runs().size(), 1u);
  EXPECT_EQ(tool.Client.Runs()[0].Arguments,
            (std::vector<std::string>{"-d", "/cvs/root", "remove", "-f", "a b.txt", "c d.txt"}));
}

TEST(ToolCommandLine, TheRootIsNotQuoted) {
  ToolRunner tool;
  tool.CVSRoot = "/cvs/my root";
  tool.Run("status");
  ASSERT_EQ(tool.Client.Runs().size(), 1u);
  EXPECT_EQ(tool.Client.Runs()[0].Arguments, (std::vector<std::string>{"-d", "/cvs/my", "root", "status"}));
}

TEST(ToolCommandLine, InSVNModeTheArgumentsStandAlone) {
  ToolRunner tool;
  tool.IsSVN = true;
  tool.Run(" status -v -u \"a b.txt\"");
  const auto runs = tool.Client.Runs();
  ASSERT_EQ(runs.size(), 1u);
  EXPECT_EQ(runs[0].Program, "svn.exe");
  EXPECT_EQ(runs[0].Arguments, (std::vector<std::string>{"status", "-v", "-u", "a b.txt"}));
}

TEST(ToolCommandLine, TheClientRunsInTheWorkingFolder) {
  ToolRunner tool;
  std::filesystem::create_directories(tool.Folder / "with blank");
  tool.RunIn(tool.Folder.Host("with blank"));
  tool.RunIn(tool.Folder.Host("with blank") + "\\");
  const auto runs = tool.Client.Runs();
  ASSERT_EQ(runs.size(), 2u);
  EXPECT_EQ(runs[0].Folder, tool.Folder.Host("with blank"));
  EXPECT_EQ(runs[1].Folder, tool.Folder.Host("with blank"));
}
