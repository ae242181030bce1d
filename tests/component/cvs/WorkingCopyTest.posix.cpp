#include <gtest/gtest.h>

#include "cvs/WorkingCopy.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"

// Administrative files and paths are both in UTF-8.
TEST(WorkingCopyDiscoveryInUTF8, FindsAWorkingCopyWhoseNamesAreNotASCII) {
  TemporaryFolder folder;
  Assembly assembly(folder);
  WriteCVSFolder(folder / "w\xC3\xB6/pr\xC3\xB6j", "/cvs/r\xC3\xB6\xC3\xB6t", "pr\xC3\xB6j");
  assembly.Add("part", "w\xC3\xB6/pr\xC3\xB6j/a");
  zrk::cvs::WorkingCopy found;
  zrk::cvs::DiscoverWorkingCopy(CATIProduct_var(assembly.At("part")), found);
  EXPECT_EQ(found.SandboxRoot.ConvertToChar(), folder.Host() + "\\w\xC3\xB6\\");
  EXPECT_STREQ(found.CVSRoot.ConvertToChar(), "/cvs/r\xC3\xB6\xC3\xB6t");
}
