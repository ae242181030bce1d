// Paths whose drive or server is a folder here: "\" separates as "/" does, and "C:" is a name.

#include <gtest/gtest.h>

#include "support/CurrentFolder.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"
#include "svn/WorkingCopyForm.h"

namespace {

using zrk::svn::Form;
using zrk::svn::WorkingCopyForms;

TEST(WorkingCopyFormOnADrive, MayBeTheDatabaseAtItsTopAndNothingFurtherUp) {
  const TemporaryFolder folder;
  const CurrentFolder current(folder.Path());
  WriteFile(folder / "C:/.svn/wc.db", "db");
  WriteFile(folder / ".svn/wc.db", "db");
  EXPECT_EQ(WorkingCopyForms().Of("C:\\a\\b").DatabaseRoot, "C:");
  EXPECT_EQ(WorkingCopyForms().Of("C:").DatabaseRoot, "C:");
  EXPECT_EQ(WorkingCopyForms().Of("D:\\a\\b").Kind, Form::None);
}

// "\\tmp\folder" is the temporary folder as a share.
TEST(WorkingCopyFormOnAShare, MayBeTheDatabaseAtItsTop) {
  const TemporaryFolder folder;
  WriteFile(folder / ".svn/wc.db", "db");
  const std::string share = "\\" + folder.Host();
  EXPECT_EQ(WorkingCopyForms().Of(share + "\\a\\b").DatabaseRoot, share);
  EXPECT_EQ(WorkingCopyForms().Of(share).DatabaseRoot, share);
}

}  // namespace
