#include "SVNStatus.h"
#include "SVNWorkingCopies.h"

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Pair;

// Folders that a plain `svn update` takes away and brings while the host runs. The client is a script: told
// to delete "to N", which is not there, it updates the working copy to revision N.
class SVNComingAndGoing : public SVNWorkingCopy {
protected:
  SVNComingAndGoing() {
    CheckOutFiles({"car", "away/part", "away/sub/deep/part", "sub/part"});
    Client({"delete", "away"});
    for (const char* file : {"brought/part", "sub/brought/part"}) WriteFile(annasCopy_ / file, "new\n");
    Client({"add", "brought"});
    Client({"add", "sub/brought"});
    Client({"commit", "-m", "", ""});

    const fs::path script = folder_ / "bin/svn";
    WriteFile(script,
              "#!/bin/sh\nPATH=${PATH#*:}\nfor last do :; done\n"
              "case $last in */\"to \"*) svn update -q -r \"${last##*to }\" '" +
                  annasCopy_.string() +
                  "';; esac\n"
                  "exec svn \"$@\"\n");
    fs::permissions(script, fs::perms::owner_exec, fs::perm_options::add);
    anna_.Set("PATH", script.parent_path().string() + ":" + std::getenv("PATH"));
  }

  std::string UpdateTo(const std::string& revision) const {
    return Command("delete", (annasCopy_ / ("to " + revision)).string());
  }
};

TEST_F(SVNComingAndGoing, AreShownAsTheyAre) {
  std::vector<std::string> commands = {"refresh"};
  for (const std::string revision : {"1", "2", "1"}) {
    commands.insert(commands.end(), {UpdateTo(revision), "refresh"});
    Client({"update", "-r2", ""});
    const Json report = AnnaOn(
        {"car", "away/part", "away/sub/deep/part", "sub/part", "brought/part", "sub/brought/part"}, commands);
    ExpectWhatSVNSays(report, AskSVN(annasCopy_));
    const bool isFirst = revision == "1";
    EXPECT_THAT(Statuses(report), AllOf(Contains(Pair("away/sub/deep/part", isFirst ? "ReadOnly" : "-")),
                                        Contains(Pair("sub/brought/part", isFirst ? "-" : "ReadOnly"))));
    EXPECT_EQ(Client({"status", ""}), "");
    EXPECT_EQ(fs::exists(annasCopy_ / "away"), isFirst);
    EXPECT_EQ(fs::exists(annasCopy_ / "brought"), !isFirst);
  }
}

// The client runs in what there is of it.
TEST_F(SVNComingAndGoing, MayBeTheFolderOfAllDocuments) {
  const Json report = AnnaOn({"away/sub/deep/part", "away/sub/part"},
                             {"refresh", UpdateTo("1"), "refresh", UpdateTo("2"), "refresh"});
  const std::string copy = folder_.Host(annasCopy_);
  EXPECT_THAT(RunsOf(CommandOf(report, 0)), ElementsAre(Pair(copy, kTreeStatus)));
  EXPECT_THAT(RunsOf(CommandOf(report, 2)), ElementsAre(Pair(copy + "\\away\\sub", kTreeStatus)));
  EXPECT_THAT(RunsOf(CommandOf(report, 4)), ElementsAre(Pair(copy, kTreeStatus)));
  ExpectWhatSVNSays(report, AskSVN(annasCopy_));
}

}  // namespace
