#include "session/WorkingCopyFolder.h"

#include <gtest/gtest.h>

#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

using zrkhost::WorkingCopyKind;
using zrkhost::WorkingCopyKindOf;

class WorkingCopyFolder : public testing::Test {
protected:
  WorkingCopyKind Kind(const std::string& folder) const { return WorkingCopyKindOf(folder_ / folder); }
  void Write(const std::string& file, const std::string& text = "") const { WriteFile(folder_ / file, text); }

  TemporaryFolder folder_;
};

TEST_F(WorkingCopyFolder, IsNoneWithoutFilesOfAClient) {
  Write("a/file");
  EXPECT_EQ(Kind("a"), WorkingCopyKind::None);
  EXPECT_EQ(Kind("gone"), WorkingCopyKind::None);
}

TEST_F(WorkingCopyFolder, IsOfCVSWithItsOwnRepositoryOnly) {
  Write("a/CVS/Repository");
  EXPECT_EQ(Kind("a"), WorkingCopyKind::CVS);
  EXPECT_EQ(Kind("a/b"), WorkingCopyKind::None);
}

TEST_F(WorkingCopyFolder, IsOfSubversionWithItsOwnEntries) {
  Write("a/.svn/entries", "10\n\ndir\n");
  EXPECT_EQ(Kind("a"), WorkingCopyKind::Subversion);
  EXPECT_EQ(Kind("a/b"), WorkingCopyKind::None);
}

TEST_F(WorkingCopyFolder, IsOfSubversionAtOrBelowADatabase) {
  Write("a/.svn/wc.db");
  Write("a/.svn/entries", "12\n");
  EXPECT_EQ(Kind("a"), WorkingCopyKind::Subversion);
  EXPECT_EQ(Kind("a/b/c"), WorkingCopyKind::Subversion);
}

TEST_F(WorkingCopyFolder, IsNotThatOfADatabaseBeyondAnotherWorkingCopy) {
  Write("a/.svn/wc.db");
  Write("a/cvs/CVS/Repository");
  Write("a/text/.svn/entries", "10\n\ndir\n");
  EXPECT_EQ(Kind("a/cvs"), WorkingCopyKind::CVS);
  EXPECT_EQ(Kind("a/cvs/b"), WorkingCopyKind::None);
  EXPECT_EQ(Kind("a/text/b"), WorkingCopyKind::None);
}

TEST_F(WorkingCopyFolder, EndsTheSearchInCVSAndWithADatabase) {
  Write("cvs/CVS/Repository");
  Write("database/.svn/wc.db");
  Write("text/.svn/entries", "10\n\ndir\n");
  EXPECT_TRUE(zrkhost::EndsSearch(folder_ / "cvs"));
  EXPECT_TRUE(zrkhost::EndsSearch(folder_ / "database/a"));
  EXPECT_FALSE(zrkhost::EndsSearch(folder_ / "text"));
  EXPECT_FALSE(zrkhost::EndsSearch(folder_ / "none"));
}

}  // namespace
