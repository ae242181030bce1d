#include "console/ConsoleTest.h"

namespace {

using PageFileOnPosix = ConsoleTest;

TEST_F(PageFileOnPosix, SaysThatItCouldNotBeWrittenInTheEnd) {
  const auto result = Zrkhost({CarSession(), "-c", "tree", "--page", "/dev/full"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Error, testing::HasSubstr("/dev/full: the page cannot be written"));
}

TEST_F(PageFileOnPosix, TakesADeviceForBothReportAndPage) {
  EXPECT_EQ(Zrkhost({CarSession(), "-c", "tree", "--report", "/dev/null", "--page", "/dev/null"}).Status, 0);
}

}  // namespace
