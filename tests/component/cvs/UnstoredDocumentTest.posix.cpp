// A document that was never stored has an empty path. Taken for one, that would lead to the root folder of
// the system, which here is one of the test's own, with a CVS working copy in it.

#include <gtest/gtest.h>
#include <sched.h>
#include <unistd.h>

#include <cstdlib>

#include "component/cvs/ArgumentChunks.h"
#include "support/Files.h"

namespace {

constexpr int kNoRoot = 77;

// Needs a right that this process, or its user in a namespace of its own, may have.
bool EnterRoot(const std::filesystem::path& folder) {
  return chroot(folder.c_str()) == 0 || (unshare(CLONE_NEWUSER) == 0 && chroot(folder.c_str()) == 0);
}

// Exits with 0 when the document gives no argument.
[[noreturn]] void CollectInRoot(ArgumentChunks& stage) {
  const ZRKIAttClass_var attributeClass = StatusClass();
  if (!EnterRoot(stage.Folder.Path())) std::_Exit(kNoRoot);
  CATUnicodeString tail;
  zrk::cvs::AppendCVSFileArgument({stage.SandboxRoot, attributeClass}, stage.Tree.At("new"), tail);
  const bool none = tail == "" && stage.Collected(stage.Tree.At("new")) == std::vector<std::string>{""};
  std::_Exit(none ? 0 : 1);
}

}  // namespace

TEST(AnUnstoredDocumentDeathTest, GivesNoArgumentWhateverTheRootFolderHolds) {
  ArgumentChunks stage;
  WriteFile(stage.Folder / "CVS/Repository", "proj\n");
  stage.Tree.Add({.Name = "new", .Document = ""});
  int status = -1;
  const auto keepStatus = [&](int ended) {
    status = WEXITSTATUS(ended);
    return WIFEXITED(ended) && (status == 0 || status == kNoRoot);
  };
  EXPECT_EXIT(CollectInRoot(stage), keepStatus, "");
  if (status == kNoRoot) GTEST_SKIP() << "this user cannot have a root folder of his own";
}
