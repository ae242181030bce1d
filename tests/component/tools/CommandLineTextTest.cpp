#include <gtest/gtest.h>

#include <string>

#include "component/tools/ToolRunner.h"
#include "support/Launches.h"
#include "text/NativeText.h"

// The command line character by character, as the system is given it.

namespace {

std::wstring WideOf(const std::string& text) {
  return CATUnicodeString(text.c_str()).ConvertToWideChar();
}

}  // namespace

TEST(CommandLineText, BeginsWithABlankAndKeepsTheArgumentsOwnBlanks) {
  ToolRunner tool;
  const Launches launches;
  tool.Run(" status -v \"a.CATPart\"");
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].CommandLine, L" -d /cvs/root  status -v \"a.CATPart\"");
}

TEST(CommandLineText, OneBlankStandsBetweenTheRootAndTheArguments) {
  ToolRunner tool;
  const Launches launches;
  tool.Run("-n -q update \"a.CATPart\"");
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].CommandLine, L" -d /cvs/root -n -q update \"a.CATPart\"");
}

TEST(CommandLineText, InSVNModeEqualsTheArguments) {
  ToolRunner tool;
  tool.IsSVN = true;
  const Launches launches;
  tool.Run(" delete  \"a.CATPart\"");
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].CommandLine, L" delete  \"a.CATPart\"");
}

TEST(CommandLineText, TheProgramAndTheFolderGoApartFromIt) {
  ToolRunner tool;
  const Launches launches;
  tool.Run();
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].Program, WideOf(tool.Client.HostPath("cvs.exe")));
  EXPECT_EQ(launches.All()[0].Folder, WideOf(tool.Folder.Host()));
  EXPECT_TRUE(launches.All()[0].Started);
}

TEST(CommandLineText, TextBeyondASCIIIsPassedAsItIs) {
  ToolRunner tool;
  const Launches launches;
  tool.Run(("status \"" + standin::NativeFromWide(L"T\u00FCr.CATPart") + "\"").c_str());
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].CommandLine, L" -d /cvs/root status \"T\u00FCr.CATPart\"");
}

TEST(CommandLineText, KeepsThePlaceOfAnEmptyRoot) {
  ToolRunner tool;
  tool.CVSRoot = "";
  const Launches launches;
  tool.Run(" status -v");
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].CommandLine, L" -d   status -v");
}
