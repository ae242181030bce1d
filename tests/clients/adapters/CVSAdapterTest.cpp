#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Adapter.h"
#include "support/CVSRepository.h"
#include "support/TemporaryFolder.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::string kFile = "proj/sub/ä b.CATPart";
const std::string kArgument = "proj\\sub\\ä b.CATPart";

// The installed client on a working copy of module "proj". It runs in the folder that holds the working
// copy, where there is no folder "CVS".
class CVSAdapter : public testing::TestWithParam<const char*> {
protected:
  CVSAdapter() {
    repository_.Import("proj", {{"a.CATPart", "a\n"}, {"sub/ä b.CATPart", "b\n"}});
    repository_.WatchOn("proj");
    repository_.Checkout("proj", parent_, Root());
  }

  std::string Root() const { return GetParam() + (folder_ / "repository").string(); }

  CommandResult Call(std::vector<std::string> arguments, const std::string& input = "") const {
    arguments.insert(arguments.begin(), {"-d", Root()});
    return RunAdapter("cvs.exe", arguments,
                      {.Folder = parent_, .Input = input, .Environment = {{"LOGNAME", "anna"}}});
  }

  // A working copy of bob's, with the file in it.
  void EditAsBob() const {
    repository_.Checkout("proj", folder_ / "second", Root());
    repository_.Edit(folder_ / "second/proj/sub", "ä b.CATPart", "bob");
  }

  TemporaryFolder folder_;
  CVSRepository repository_{folder_ / "repository"};
  std::filesystem::path parent_ = folder_ / "first";
};

INSTANTIATE_TEST_SUITE_P(Through, CVSAdapter, testing::Values("", ":fork:"),
                         [](const auto& parameter) { return *parameter.param ? "AServer" : "ALocalRoot"; });

TEST_P(CVSAdapter, ReportsTheStatusWithTheBareRevision) {
  repository_.Tag(parent_ / "proj", "R1");
  const CommandResult result = Call({"status", "-v", kArgument, "proj\\a.CATPart"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Output, HasSubstr("File: ä b.CATPart     \tStatus: Up-to-date\r\n"));
  EXPECT_THAT(result.Output, HasSubstr("   Working revision:\t1.1.1.1\r\n"));
  EXPECT_THAT(result.Output, HasSubstr("   Repository revision:\t1.1.1.1\t" +
                                       (folder_ / "repository").string() + "/" + kFile + ",v\r\n"));
  EXPECT_THAT(result.Output, HasSubstr("Existing Tags:\r\n\tR1 "));
  EXPECT_THAT(result.Output, HasSubstr("File: a.CATPart"));
}

TEST_P(CVSAdapter, ReportsAnUnknownFile) {
  const CommandResult result = Call({"status", "-v", "proj\\none.CATPart"});
  EXPECT_THAT(result.Output, HasSubstr("Status: Unknown\r\n"));
  EXPECT_THAT(result.Output, HasSubstr("   Working revision:\tNo entry for none.CATPart\r\n"));
}

TEST_P(CVSAdapter, NamesEditorsByThePathThatWasAskedFor) {
  EXPECT_THAT(Call({"-n", "edit", kArgument}).Output, IsEmpty());
  EditAsBob();
  EXPECT_THAT(Call({"-n", "edit", kArgument, "proj\\a.CATPart"}).Output, StartsWith(kFile + "\tbob\t"));
  // Without files it is asked for all.
  EXPECT_THAT(Call({"-n", "edit"}).Output, StartsWith(kFile + "\tbob\t"));
}

TEST_P(CVSAdapter, NamesFurtherEditorsBehindATab) {
  EditAsBob();
  EXPECT_EQ(Call({"-q", "-x", "edit", "-z", kArgument}).Output, "");
  const std::string output = Call({"-n", "edit", kArgument}).Output;
  EXPECT_THAT(output, StartsWith(kFile + "\t"));
  EXPECT_THAT(output, HasSubstr("\r\n\t"));
}

TEST_P(CVSAdapter, TakesAFileForEditingWithoutAWord) {
  const CommandResult result = Call({"-q", "-x", "edit", "-z", "-c", kArgument});
  EXPECT_EQ(result.Output, "");
  EXPECT_EQ(result.Status, 0);
  EXPECT_TRUE(IsWritable(parent_ / kFile));
}

TEST_P(CVSAdapter, RefusesAFileThatAnotherEdits) {
  EditAsBob();
  const CommandResult result = Call({"-q", "-x", "edit", "-z", "-c", kArgument});
  EXPECT_THAT(result.Output, HasSubstr("due to existing editors"));
  EXPECT_NE(result.Status, 0);
  EXPECT_FALSE(IsWritable(parent_ / kFile));
}

TEST_P(CVSAdapter, TellsOfANewerRevision) {
  EXPECT_EQ(Call({"-n", "-q", "update", kArgument}).Output, "");
  repository_.Checkout("proj", folder_ / "second", Root());
  repository_.Commit(folder_ / "second/proj/sub", "ä b.CATPart", "c\n");
  EXPECT_EQ(Call({"-n", "-q", "update", kArgument}).Output, "U " + kFile + "\r\n");
}

TEST_P(CVSAdapter, GivesAnUnmodifiedFileBackWithoutAWord) {
  Call({"-q", "-x", "edit", "-z", "-c", kArgument});
  EXPECT_EQ(Call({"-q", "-x", "unedit", kArgument}).Output, "");
  EXPECT_FALSE(IsWritable(parent_ / kFile));
}

TEST_P(CVSAdapter, AsksBeforeItRevertsAndTakesTheAnswerWithItsZero) {
  Call({"-q", "-x", "edit", "-z", "-c", kArgument});
  WriteFile(parent_ / kFile, "changed\n");
  const std::string question = kFile + " has been modified; revert changes? ";

  EXPECT_EQ(Call({"-q", "-x", "unedit", kArgument}, std::string("no\0", 3)).Output, question);
  EXPECT_EQ(ReadFile(parent_ / kFile), "changed\n");
  EXPECT_TRUE(IsWritable(parent_ / kFile));

  EXPECT_EQ(Call({"-q", "-x", "unedit", kArgument}, std::string("yes\0", 4)).Output, question);
  EXPECT_EQ(ReadFile(parent_ / kFile), "b\n");
  EXPECT_FALSE(IsWritable(parent_ / kFile));
  EXPECT_THAT(repository_.Editors(parent_, kFile), IsEmpty());
}

TEST_P(CVSAdapter, RemovesAFileWithTheRootGivenTwice) {
  const CommandResult result =
      RunAdapter("cvs.exe", {"-d", Root(), "-d", Root(), "remove", "-f", "ä b.CATPart"},
                 {.Folder = parent_ / "proj/sub", .Input = "", .Environment = {{"LOGNAME", "anna"}}});
  EXPECT_EQ(result.Status, 0);
  EXPECT_FALSE(std::filesystem::exists(parent_ / kFile));
  EXPECT_THAT(Call({"status", kArgument}).Output, HasSubstr("   Working revision:\t-1.1.1.1\r\n"));
}

}  // namespace
