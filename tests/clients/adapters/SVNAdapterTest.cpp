#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Adapter.h"
#include "support/SVNRepository.h"
#include "support/TemporaryFolder.h"

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class SVNAdapter : public testing::Test {
protected:
  SVNAdapter() {
    repository_.Import({{file_, "a\n"}});
    repository_.Checkout(folder_ / "first");
    repository_.Checkout(folder_ / "second");
  }

  CommandResult Call(const std::vector<std::string>& arguments) const {
    // No UTF-8 in the caller's own locale.
    return RunAdapter("svn.exe", arguments,
                      {.Folder = folder_ / "first", .Input = "", .Environment = {{"LC_ALL", "C"}}});
  }

  std::filesystem::path Path() const { return folder_ / "first" / file_; }
  std::string Argument() const { return folder_.Host(std::filesystem::path("first") / file_); }

  const std::string file_ = "ä b@c.CATPart";
  TemporaryFolder folder_;
  SVNRepository repository_{folder_ / "repository"};
};

TEST_F(SVNAdapter, ReportsTheStatusOfANameWithBlankAtSignAndUmlaut) {
  const CommandResult result = Call({"status", "-v", "-u", Argument()});
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Output, HasSubstr(Path().string() + "\r\n"));
  EXPECT_THAT(result.Output, HasSubstr("Status against revision:      1\r\n"));
}

TEST_F(SVNAdapter, ReportsTheStatusAsXMLToItsEnd) {
  repository_.Lock(folder_ / "second" / file_, "bob");
  const CommandResult result = Call({"status", "-v", "-u", "--xml", Argument()});
  EXPECT_THAT(result.Output, HasSubstr("<owner>bob</owner>\r\n"));
  EXPECT_THAT(result.Output, HasSubstr("</status>\r\n"));
}

TEST_F(SVNAdapter, UpdatesLocksAndUnlocks) {
  repository_.Commit(folder_ / "second" / file_, "b\n");
  EXPECT_EQ(Call({"update", Argument()}).Status, 0);
  EXPECT_EQ(ReadFile(Path()), "b\n");

  EXPECT_EQ(Call({"lock", Argument()}).Status, 0);
  EXPECT_THAT(Call({"status", "-v", "-u", Argument()}).Output, HasSubstr("     K "));
  EXPECT_EQ(Call({"unlock", Argument()}).Status, 0);
  EXPECT_THAT(Call({"status", "-v", "-u", Argument()}).Output, Not(HasSubstr(" K ")));
}

TEST_F(SVNAdapter, RefusesTheLockOfAnother) {
  repository_.Lock(folder_ / "second" / file_, "bob");
  EXPECT_THAT(Call({"lock", Argument()}).Output, HasSubstr("locked by user 'bob'"));
}

TEST_F(SVNAdapter, DeletesAPathDespiteTheMessage) {
  const CommandResult result = Call({"delete", "-mzq", "--force", Argument()});
  EXPECT_EQ(result.Status, 0) << result.Output;
  EXPECT_FALSE(std::filesystem::exists(Path()));
  EXPECT_THAT(Call({"status", Argument()}).Output, StartsWith("D "));
}

TEST_F(SVNAdapter, WarnsOutsideAWorkingCopyAndSucceeds) {
  const CommandResult result = Call({"status", "-v", "-u", folder_.Host("none.CATPart")});
  EXPECT_THAT(result.Output, HasSubstr("svn: warning: W155"));
  EXPECT_EQ(result.Status, 0);
}

TEST_F(SVNAdapter, PassesOnWhatACallThatNeverAsksGivesAsItIs) {
  const CommandResult result = Call({"status", "-v", "--xml", "--non-interactive", Argument() + "@"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Output, HasSubstr(file_));
  EXPECT_THAT(result.Output, HasSubstr("</status>\n"));
  EXPECT_THAT(result.Output, Not(HasSubstr("\r")));
}

}  // namespace
