#include <gtest/gtest.h>

#include <string>

#include "component/tools/ToolRunner.h"
#include "support/Launches.h"

// In UTF-8, which has all characters.
TEST(ToolCommandLine, CharactersOfAnyLengthArePassedAsTheyAre) {
  ToolRunner tool;
  const Launches launches;
  tool.Run("status \"T\xC3\xBCr \xF0\x9D\x84\x9E.CATPart\"");
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].CommandLine, L" -d /cvs/root status \"T\u00FCr \U0001D11E.CATPart\"");
}

// Wine's CreateProcessW copies the path into a buffer of its own that has no room for it.
TEST(ToolCommandLine, APathOfAnyLengthReachesTheSystemWhole) {
  ToolRunner tool;
  const std::string path = tool.Folder.Host(std::string(3000, 'x'));
  tool.CVSExePath = path.c_str();
  const Launches launches;
  tool.Run();
  ASSERT_EQ(launches.All().size(), 1u);
  EXPECT_EQ(launches.All()[0].Program, CATUnicodeString(path.c_str()).ConvertToWideChar());
  EXPECT_FALSE(launches.All()[0].Started);
}
