#include <gtest/gtest.h>

#include "commands/HostFile.h"
#include "console/CurrentFolder.h"
#include "support/TemporaryFolder.h"

namespace {

using zrkhost::HostFile;

TEST(HostFileOnWindows, LeavesADriveWithItsRootAsItIs) {
  EXPECT_EQ(HostFile("C:\\wc\\..\\a"), "C:\\wc\\..\\a");
  EXPECT_EQ(HostFile("c:/wc/a"), "c:\\wc\\a");
}

TEST(HostFileOnWindows, MeansAPathWithoutADriveFromTheCurrentOne) {
  const TemporaryFolder folder;
  const CurrentFolder current(folder.Path());
  const auto drive = folder.Host().substr(0, 2);
  EXPECT_EQ(HostFile("\\wc\\..\\a"), drive + "\\a");
  EXPECT_EQ(HostFile(drive + "a"), folder.Host("a"));
}

}  // namespace
