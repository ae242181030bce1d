#include "SVNStatus.h"
#include "SVNWorkingCopies.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::Pair;

// Symbolic links, which belong to the working copy as what they are and not as what they point to.
class SVNLinks : public SVNWorkingCopy {
protected:
  SVNLinks() {
    CheckOutFiles({"car", "sub/axle"});
    Elsewhere({"lock", "sub/axle"});
  }
};

TEST_F(SVNLinks, ToAFileShowTheLink) {
  fs::create_symlink("sub/axle", annasCopy_ / "held");
  fs::create_symlink("sub/axle", annasCopy_ / "not held");
  fs::create_symlink("nowhere", annasCopy_ / "to nothing");
  Client({"add", "held"});
  Client({"add", "to nothing"});
  Client({"commit", "-m", "", ""});
  Elsewhere({"lock", "to nothing"});
  const Json report = AnnaOn({"car", "held", "not held", "to nothing"}, {"refresh"});
  ExpectWhatSVNSays(report, AskSVN(annasCopy_));
  EXPECT_THAT(Statuses(report), ElementsAre(Pair("car", "ReadOnly"), Pair("held", "ReadOnly"),
                                            Pair("not held", "-"), Pair("to nothing", "Locked")));
}

TEST_F(SVNLinks, ToAFolderShowNothingBehindThem) {
  fs::create_directory_symlink("sub", annasCopy_ / "link");
  Client({"add", "link"});
  const Json report = AnnaOn({"car", "link/axle", "sub/axle"}, {"refresh"});
  ExpectWhatSVNSays(report, AskSVN(annasCopy_));
  EXPECT_THAT(Statuses(report),
              ElementsAre(Pair("car", "ReadOnly"), Pair("link/axle", "-"), Pair("sub/axle", "Locked")));
}

TEST_F(SVNLinks, ToAWorkingCopyLeadIntoIt) {
  const fs::path link = folder_ / "link";
  fs::create_directory_symlink(annasCopy_, link);
  anna_.SignOn(repository_.URL() + "/car");
  const Json report = AnnaOn({"../link/car", "../link/sub/axle"}, {"refresh", "edit"});
  EXPECT_THAT(RunsOf(CommandOf(report)), ElementsAre(Pair(folder_.Host("link"), kTreeStatus)));
  const auto attributes = AttributesByFile(report, folder_.Path());
  const SVNAnswer answer = AskSVN(annasCopy_);
  EXPECT_EQ(attributes.at("link/sub/axle"),
            ExpectedAttributes(answer.Entries.at((annasCopy_ / "sub/axle").string()), true));
  EXPECT_EQ(attributes.at("link/car").at("Status"), "Edit");
  EXPECT_TRUE(answer.Entries.at((annasCopy_ / "car").string()).OwnLock);
}

}  // namespace
