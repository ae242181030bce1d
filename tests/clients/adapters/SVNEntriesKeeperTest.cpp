#include "SVNEntriesKeeper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "Adapter.h"
#include "support/SVNRepository.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class SVNEntriesKeeper : public testing::Test {
protected:
  SVNEntriesKeeper() {
    repository_.Import({{"a.CATPart", "a\n"},
                        {"größe sub/b c.CATPart", "b\n"},
                        {"größe sub/d@e.CATPart", "d\n"},
                        {"größe sub/tief/f.CATPart", "f\n"}});
    repository_.Checkout(copy_);
  }

  void Keep(const fs::path& path) {
    KeepSVNEntries({path.string()}, [&](const auto& arguments) {
      runs_.push_back(arguments);
      return repository_.Run(arguments);
    });
  }

  static fs::path EntriesFile(const fs::path& folder) { return folder / ".svn/entries"; }
  std::string Entries(const std::string& folder) const { return ReadFile(EntriesFile(copy_ / folder)); }

  // Lets all changes so far be older than the texts that are kept next.
  void LetTimePass() const {
    const fs::path database = copy_ / ".svn/wc.db";
    fs::last_write_time(database, fs::last_write_time(database) - std::chrono::hours(1));
  }

  std::string Status() const { return repository_.Run({"status", copy_.string()}); }

  TemporaryFolder folder_;
  SVNRepository repository_{folder_ / "repository"};
  const fs::path copy_ = folder_ / "ä wc";
  const fs::path sub_ = copy_ / "größe sub";
  std::vector<std::vector<std::string>> runs_;
};

TEST_F(SVNEntriesKeeper, KeepsTheTextsOfAllFoldersBelowAFolder) {
  Keep(copy_);
  EXPECT_THAT(runs_, SizeIs(1));
  EXPECT_THAT(Entries(""), HasSubstr("\na.CATPart\nfile\n"));
  EXPECT_THAT(Entries("größe sub"), HasSubstr("\nb c.CATPart\nfile\n"));
  EXPECT_THAT(Entries("größe sub/tief"), HasSubstr("\nf.CATPart\nfile\n"));
}

TEST_F(SVNEntriesKeeper, KeepsTheTextOfTheFolderOfAFileOnly) {
  Keep(sub_ / "b c.CATPart");
  EXPECT_THAT(Entries("größe sub"), HasSubstr("\nb c.CATPart\nfile\n"));
  EXPECT_FALSE(fs::exists(EntriesFile(sub_ / "tief")));
  EXPECT_THAT(Entries(""), Not(HasSubstr("a.CATPart")));
}

TEST_F(SVNEntriesKeeper, KeepsTheTextOfTheFolderOfAFileWithAnAtSignInItsName) {
  Keep(sub_ / "d@e.CATPart");
  EXPECT_THAT(Entries("größe sub"), HasSubstr("\nd@e.CATPart\nfile\n"));
}

TEST_F(SVNEntriesKeeper, KeepsTheTextsOfAFolderWithAnAtSignInItsName) {
  repository_.Run({"mkdir", "--parents", (copy_ / "g@h/i").string() + "@"});
  Keep(copy_ / "g@h");
  EXPECT_TRUE(fs::exists(EntriesFile(copy_ / "g@h/i")));
}

TEST_F(SVNEntriesKeeper, AsksNothingWhileTheDatabaseIsTheSame) {
  LetTimePass();
  Keep(sub_ / "b c.CATPart");
  ASSERT_THAT(runs_, SizeIs(1));
  Keep(sub_ / "b c.CATPart");
  Keep(sub_ / "d@e.CATPart");
  EXPECT_THAT(runs_, SizeIs(1));
  repository_.Lock(sub_ / "b c.CATPart", "anna");
  Keep(sub_ / "b c.CATPart");
  EXPECT_THAT(runs_, SizeIs(2));
  EXPECT_THAT(Entries("größe sub"), HasSubstr("opaquelocktoken:"));
}

TEST_F(SVNEntriesKeeper, AsksAgainWhenTheDatabaseMayHaveChangedSince) {
  Keep(sub_ / "b c.CATPart");
  fs::last_write_time(EntriesFile(sub_), fs::last_write_time(copy_ / ".svn/wc.db"));
  Keep(sub_ / "b c.CATPart");
  EXPECT_THAT(runs_, SizeIs(2));
}

TEST_F(SVNEntriesKeeper, FollowsAFileThatHasGone) {
  Keep(copy_);
  fs::remove(sub_ / "b c.CATPart");
  Keep(sub_ / "b c.CATPart");
  EXPECT_THAT(Entries("größe sub"), HasSubstr("\nb c.CATPart\nfile\n"));
}

TEST_F(SVNEntriesKeeper, LeavesTheTextWhereTheClientTellsNothing) {
  Keep(copy_);
  const std::string before = Entries("größe sub");
  KeepSVNEntries({copy_.string()}, [](const auto&) { return std::string("svn: E155037"); });
  EXPECT_EQ(Entries("größe sub"), before);
}

// The client tells paths in the folder it runs in without that folder, and the folder itself as ".".
TEST_F(SVNEntriesKeeper, KeepsTheTextWhereverTheAdapterRuns) {
  const std::string file = (sub_ / "b c.CATPart").string();
  for (const fs::path& folder : {folder_.Path(), copy_, sub_, sub_ / "tief"}) {
    fs::remove(EntriesFile(sub_));
    RunAdapter("svn.exe", {"status", file}, {.Folder = folder, .Input = "", .Environment = {}});
    EXPECT_TRUE(fs::exists(EntriesFile(sub_))) << folder;
  }
  for (const std::string argument : {".", "tief", "../größe sub/", "b c.CATPart"}) {
    fs::remove(EntriesFile(sub_));
    fs::remove(EntriesFile(sub_ / "tief"));
    RunAdapter("svn.exe", {"status", argument}, {.Folder = sub_, .Input = "", .Environment = {}});
    EXPECT_EQ(fs::exists(EntriesFile(sub_)), argument != "tief") << argument;
    EXPECT_EQ(fs::exists(EntriesFile(sub_ / "tief")), argument != "b c.CATPart") << argument;
  }
}

TEST_F(SVNEntriesKeeper, DoesNothingOutsideAWorkingCopy) {
  WriteFile(folder_ / "outside/a.CATPart", "a\n");
  Keep(folder_ / "outside/a.CATPart");
  Keep(folder_ / "outside");
  Keep(folder_ / "gone/a.CATPart");
  EXPECT_THAT(runs_, IsEmpty());
  EXPECT_FALSE(fs::exists(folder_ / "outside/.svn"));
}

// A limit of no bytes stands for a full disk.
TEST_F(SVNEntriesKeeper, LeavesTheTextWhereTheDiskTakesNoOther) {
  Keep(copy_);
  const std::string before = Entries("größe sub");
  repository_.Lock(sub_ / "b c.CATPart", "anna");
  const std::string adapter = (ExecutableFolder() / "clients/svn.exe").string();
  RunCommand({"sh", "-c", "trap '' XFSZ; ulimit -f 0; exec \"$@\"", "sh", adapter, "status", sub_.string()});
  EXPECT_EQ(Entries("größe sub"), before);
  for (const fs::path& left : fs::directory_iterator(sub_ / ".svn")) EXPECT_EQ(left.filename(), "entries");
}

TEST_F(SVNEntriesKeeper, LeavesTheWorkingCopyAsTheClientKnowsIt) {
  Keep(copy_);
  EXPECT_EQ(Status(), "");

  const SVNRepository& repository = repository_;
  repository.Commit(sub_ / "b c.CATPart", "second\n");
  repository.Commit(copy_ / "a.CATPart", "third\n");
  repository.Lock(sub_ / "tief/f.CATPart", "anna");
  repository.Run({"unlock", (sub_ / "tief/f.CATPart").string()});
  EXPECT_THAT(repository.Run({"update", (sub_ / "tief").string()}), HasSubstr("At revision 3."));
  EXPECT_THAT(repository.Run({"update", copy_.string()}), HasSubstr("At revision 3."));
  EXPECT_EQ(Status(), "");
  // Asked from inside a folder that has a text.
  const std::string inside = RunCommandOrThrow({"svn", "info", "--show-item", "wc-root"},
                                               {.Folder = sub_ / "tief", .Input = "", .Environment = {}});
  EXPECT_THAT(inside, StartsWith(copy_.string()));
}

TEST_F(SVNEntriesKeeper, DoesNotKeepTheClientFromDeletingAFolder) {
  Keep(copy_);
  repository_.Run({"delete", (sub_ / "tief").string()});
  EXPECT_EQ(Status(), "D       " + (sub_ / "tief").string() + "\n");
  EXPECT_FALSE(fs::exists(sub_ / "tief"));
  repository_.Run({"commit", "-m", "gone", copy_.string()});
  repository_.Run({"update", copy_.string()});
  EXPECT_EQ(Status(), "");
}

TEST_F(SVNEntriesKeeper, IsCalledByTheAdapterAfterEveryCommand) {
  EXPECT_EQ(RunAdapter("svn.exe", {"status", copy_.string()}).Status, 0);
  EXPECT_THAT(Entries("größe sub"), Not(HasSubstr("opaquelocktoken:")));
  EXPECT_EQ(RunAdapter("svn.exe", {"lock", (sub_ / "d@e.CATPart").string()}).Status, 0);
  EXPECT_THAT(Entries("größe sub"), HasSubstr("opaquelocktoken:"));
  EXPECT_EQ(RunAdapter("svn.exe", {"unlock", (sub_ / "d@e.CATPart").string()}).Status, 0);
  EXPECT_THAT(Entries("größe sub"), Not(HasSubstr("opaquelocktoken:")));
}

}  // namespace
