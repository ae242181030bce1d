#include "SVNStatus.h"
#include "SVNWorkingCopies.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::Pair;

// A repository that cannot be reached for a while.
class SVNReach : public SVNWorkingCopy {
protected:
  SVNReach() {
    CheckOutFiles({"car", "own", "foreign"});
    anna_.SignOn(repository_.URL() + "/car");
    repository_.Lock(annasCopy_ / "own", "anna", "mine");
    Elsewhere({"lock", "foreign"});
    Leave();
  }

  void Leave() const { fs::rename(folder_ / "repository", folder_ / "elsewhere"); }
  void ComeBack() const { fs::rename(folder_ / "elsewhere", folder_ / "repository"); }

  std::string Folder() const { return folder_.Host(annasCopy_); }
};

TEST_F(SVNReach, TakesTwoRunsWithoutTheRepositoryAndOneWithItAgain) {
  const Json without = Anna({"refresh"});
  EXPECT_THAT(RunsOf(CommandOf(without)),
              ElementsAre(Pair(Folder(), kTreeStatus), Pair(Folder(), kTreeStatusHere)));
  ExpectWhatSVNSays(without, AskSVN(annasCopy_));
  EXPECT_THAT(Statuses(without),
              ElementsAre(Pair("car", "ReadOnly"), Pair("foreign", "ReadOnly"), Pair("own", "Edit")));

  ComeBack();
  const Json with = Anna({"refresh"});
  EXPECT_THAT(RunsOf(CommandOf(with)), ElementsAre(Pair(Folder(), kTreeStatus)));
  ExpectWhatSVNSays(with, AskSVN(annasCopy_));
  EXPECT_THAT(Statuses(with),
              ElementsAre(Pair("car", "ReadOnly"), Pair("foreign", "Locked"), Pair("own", "Edit")));
}

TEST_F(SVNReach, ShowsTheFileAsTheWorkingCopyHasItAfterACommand) {
  const Json report = AnnaOn({"car", "own"}, {"edit", "unedit all/own", "status all/own"});
  const auto status = [&](const char* command, const std::string& file) {
    return Pair(Folder(), command + (" " + Sent(file)));
  };
  EXPECT_THAT(
      RunsOf(CommandOf(report, 0)),
      ElementsAre(status(" update --non-interactive", "car"), status(" lock --non-interactive", "car"),
                  status(kTreeStatus, "car"), status(kTreeStatusHere, "car")));
  EXPECT_THAT(RunsOf(CommandOf(report, 1)),
              ElementsAre(status(" unlock --non-interactive", "own"), status(kTreeStatus, "own"),
                          status(kTreeStatusHere, "own")));
  EXPECT_THAT(RunsOf(CommandOf(report, 2)),
              ElementsAre(status(kTreeStatus, "own"), status(kTreeStatusHere, "own")));
  EXPECT_THAT(Statuses(report), ElementsAre(Pair("car", "ReadOnly"), Pair("own", "Edit")));
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at("own").at("Comment"), "anna\nmine");
}

}  // namespace
