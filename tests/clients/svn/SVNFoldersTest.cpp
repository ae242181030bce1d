#include "SVNStatus.h"
#include "SVNWorkingCopies.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;

// Working copies whose folders are not simply those of the repository.
class SVNFolders : public SVNWorkingCopy {
protected:
  // Refreshes the documents, the first of them the root's, and gives the folders that the client ran in, from
  // the one that holds Anna's copy.
  std::vector<std::string> Refresh(const std::vector<std::string>& documents) {
    report_ = AnnaOn(documents, {"refresh"});
    std::vector<std::string> folders;
    for (const auto& [folder, commandLine] : RunsOf(CommandOf(report_))) {
      EXPECT_EQ(commandLine, kTreeStatus);
      folders.push_back(folder.substr(folder_.Host().size()));
    }
    return folders;
  }

  Json report_;
};

TEST_F(SVNFolders, MayBeExternals) {
  CheckOutFiles({"trunk/car", "lib/screw", "lib/nut", "lib/bolt"});
  const std::string trunk = "trunk";
  Client({"propset", "-q", "svn:externals", "^/lib parts\n^/lib/bolt bolt", trunk});
  Client({"commit", "-m", "", trunk});
  Client({"update", trunk});
  repository_.Lock(annasCopy_ / "trunk/parts/nut", "anna", "in the external");
  Elsewhere({"lock", "lib/screw"});
  const std::vector<std::string> runs =
      Refresh({"trunk/car", "trunk/bolt", "trunk/parts/nut", "trunk/parts/screw"});
  ExpectWhatSVNSays(report_, AskSVN(annasCopy_ / "trunk"));
  EXPECT_THAT(Statuses(report_),
              UnorderedElementsAre(Pair("trunk/car", "ReadOnly"), Pair("trunk/bolt", "ReadOnly"),
                                   Pair("trunk/parts/nut", "Edit"), Pair("trunk/parts/screw", "Locked")));
  EXPECT_THAT(runs, ElementsAre("\\ännas documents\\trunk", "\\ännas documents\\trunk\\parts"));
}

TEST_F(SVNFolders, MayBeSwitched) {
  CheckOutFiles(
      {"trunk/car", "trunk/sub/part", "trunk/wheel", "branch/part", "branch/other", "wheels/wheel"});
  const auto switched = [&](const std::string& to, const std::string& path) {
    repository_.Run({"switch", "--ignore-ancestry", repository_.URL() + to, (annasCopy_ / path).string()});
  };
  switched("/branch", "trunk/sub");
  switched("/wheels/wheel", "trunk/wheel");
  repository_.Lock(annasCopy_ / "trunk/sub/other", "anna");
  Elsewhere({"lock", "-m", "on the branch", "branch/part"});
  Elsewhere({"lock", "wheels/wheel"});
  EXPECT_THAT(Refresh({"trunk/car", "trunk/sub/part", "trunk/sub/other", "trunk/wheel"}),
              ElementsAre("\\ännas documents\\trunk"));
  ExpectWhatSVNSays(report_, AskSVN(annasCopy_));
  EXPECT_THAT(Statuses(report_),
              UnorderedElementsAre(Pair("trunk/car", "ReadOnly"), Pair("trunk/sub/part", "Locked"),
                                   Pair("trunk/sub/other", "Edit"), Pair("trunk/wheel", "Locked")));
}

TEST_F(SVNFolders, MayBeSparse) {
  CheckOutFiles({"car", "full/part", "files/part", "files/sub/part", "away/part"});
  Client({"update", "--set-depth=files", "files"});
  Client({"update", "--set-depth=exclude", "away"});
  Elsewhere({"lock", "files/sub/part"});
  Refresh({"car", "full/part", "files/part", "files/sub/part", "away/part"});
  ExpectWhatSVNSays(report_, AskSVN(annasCopy_));
  EXPECT_THAT(Statuses(report_), UnorderedElementsAre(Pair("car", "ReadOnly"), Pair("full/part", "ReadOnly"),
                                                      Pair("files/part", "ReadOnly"),
                                                      Pair("files/sub/part", "-"), Pair("away/part", "-")));
}

// The run is in the deepest folder of the documents, whatever this is to the working copy.
TEST_F(SVNFolders, MayBeNewOrDeletedWhereTheClientRuns) {
  CheckOutFiles({"car", "deleted/part", "gone/sub/part"});
  for (const char* file : {"added/part", "unversioned/part", "unversioned/sub/part"}) {
    WriteFile(annasCopy_ / file, "new\n");
  }
  Client({"add", "added"});
  Client({"delete", "deleted"});
  fs::remove_all(annasCopy_ / "gone");
  const SVNAnswer answer = AskSVN(annasCopy_);
  const std::map<std::string, std::string> foldersOfRuns = {{"added/part", "\\added"},
                                                            {"unversioned/part", "\\unversioned"},
                                                            {"unversioned/sub/part", "\\unversioned\\sub"},
                                                            {"deleted/part", ""},
                                                            {"gone/sub/part", ""}};
  for (const auto& [document, folder] : foldersOfRuns) {
    EXPECT_THAT(Refresh({document}), ElementsAre("\\ännas documents" + folder)) << document;
    ExpectWhatSVNSays(report_, answer);
  }
}

TEST_F(SVNFolders, MayLieBelowTheTopOfTheWorkingCopy) {
  CheckOutFiles({"top", "proj/car", "proj/sub/deep/part", "proj/sub/other/part", "proj@2/x/part"});
  Elsewhere({"lock", "proj/sub/other/part"});
  repository_.Lock(annasCopy_ / "proj@2/x/part", "anna");
  const SVNAnswer answer = AskSVN(annasCopy_);
  EXPECT_THAT(Refresh({"proj/sub/deep/part", "proj/sub/other/part"}),
              ElementsAre("\\ännas documents\\proj\\sub"));
  ExpectWhatSVNSays(report_, answer);
  EXPECT_THAT(Refresh({"proj@2/x/part"}), ElementsAre("\\ännas documents\\proj@2\\x"));
  ExpectWhatSVNSays(report_, answer);
  EXPECT_THAT(Statuses(report_), ElementsAre(Pair("proj@2/x/part", "Edit")));
}

}  // namespace
