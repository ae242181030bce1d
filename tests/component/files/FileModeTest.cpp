#include "files/FileMode.h"

#include <gtest/gtest.h>

#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

class AFileMode : public testing::Test {
protected:
  TemporaryFolder folder_;
};

}  // namespace

TEST_F(AFileMode, IsWritableWhenItsOwnerMayWriteIt) {
  WriteFile(folder_ / "file", "text");
  EXPECT_TRUE(zrk::files::IsWritable(folder_.Host("file").c_str()));
  SetReadOnly(folder_ / "file");
  EXPECT_FALSE(zrk::files::IsWritable(folder_.Host("file").c_str()));
}

TEST_F(AFileMode, IsNotWritableWhenItIsNotThere) {
  EXPECT_FALSE(zrk::files::IsWritable(folder_.Host("missing").c_str()));
  EXPECT_FALSE(zrk::files::IsWritable(""));
}
