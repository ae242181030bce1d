#include <gtest/gtest.h>

#include "component/attributes/AttributeStage.h"

// Rights that there are on Linux alone.

namespace {

class FileModeOfADocument : public testing::Test, protected AttributeStage {};

}  // namespace

TEST_F(FileModeOfADocument, MakesTheProductReadOnlyWhenAllButTheOwnerMayWrite) {
  using std::filesystem::perms;
  Products.Add("part", "proj/part");
  FileBlock("proj/part", "1.5");
  std::filesystem::permissions(Folder / "proj/part",
                               perms::owner_read | perms::group_write | perms::others_write);
  Write(Products.At("part"));
  EXPECT_EQ(ReadStatusAttributes(Products.At("part")), (StatusAttributes{"1.5", "ReadOnly", Tag, ""}));
}
