#include "commands/HostFile.h"

#include <gtest/gtest.h>

#include "console/CurrentFolder.h"
#include "support/TemporaryFolder.h"

namespace {

using zrkhost::HostFile;

TEST(HostFile, LeavesAFullPathAsItIsButForItsSeparators) {
  const TemporaryFolder folder;
  const auto file = (folder / "a/../b/./c.CATPart").generic_string();
  const auto host = folder.Host() + "\\a\\..\\b\\.\\c.CATPart";
  EXPECT_EQ(HostFile(file), host);
  EXPECT_EQ(HostFile(host), host);
}

TEST(HostFile, LeavesAPathOfAShareAsItIs) {
  EXPECT_EQ(HostFile("//server/share/../a"), "\\\\server\\share\\..\\a");
}

TEST(HostFile, MeansARelativeFileFromTheCurrentFolder) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "sub");
  const CurrentFolder current(folder / "sub");
  for (const char* file : {"a.CATPart", "./a.CATPart", "x/../a.CATPart", "x\\..\\.\\a.CATPart"}) {
    EXPECT_EQ(HostFile(file), folder.Host("sub/a.CATPart")) << file;
  }
  EXPECT_EQ(HostFile("../a.CATPart"), folder.Host("a.CATPart"));
}

TEST(HostFile, LeavesAnEmptyOneEmpty) {
  EXPECT_EQ(HostFile(""), "");
}

}  // namespace
