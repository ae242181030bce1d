#include "SVNStatus.h"
#include "SVNWorkingCopies.h"

namespace {

using testing::Pair;
using testing::UnorderedElementsAre;

// Every state that a lock can be in, each with and without a comment.
class SVNLocks : public SVNWorkingCopy {
protected:
  SVNLocks() {
    CheckOutFiles({"car", "own", "own said", "foreign", "foreign said", "stolen", "stolen said", "broken",
                   "broken said"});
    for (const std::string said : {"", " said"}) {
      const std::string comment = said.empty() ? "" : kComment;
      const auto here = [&](const char* state) { return (annasCopy_ / (state + said)).string(); };
      const auto there = [&](const char* state) { return repository_.URL() + "/" + state + said; };
      repository_.Run({"lock", "-m", comment, here("own"), here("stolen"), here("broken")}, "anna");
      repository_.Run({"lock", "-m", comment, there("foreign")}, "ben");
      repository_.Run({"lock", "--force", "-m", comment, there("stolen")}, "ben hur");
      repository_.Run({"unlock", "--force", there("broken")}, "ben");
    }
  }

  static constexpr const char* kComment = "rounder <edges> & \"corners\",\n  second line \xC3\xBC]]>";
};

TEST_F(SVNLocks, ShowWhoMayEdit) {
  const Json report = Anna({"refresh"});
  ExpectWhatSVNSays(report, AskSVN(annasCopy_));
  EXPECT_THAT(Statuses(report),
              UnorderedElementsAre(Pair("car", "ReadOnly"), Pair("own", "Edit"), Pair("own said", "Edit"),
                                   Pair("foreign", "Locked"), Pair("foreign said", "Locked"),
                                   Pair("stolen", "Locked"), Pair("stolen said", "Locked"),
                                   Pair("broken", "ReadOnly"), Pair("broken said", "ReadOnly")));
  const auto attributes = AttributesByFile(report, annasCopy_);
  EXPECT_EQ(attributes.at("stolen said").at("Comment"),
            std::string("Locked by: \nben hur\n-------------\n") + kComment);
}

// The update takes the tokens away that are worth nothing any more.
TEST_F(SVNLocks, ShowTheSameAfterAnUpdate) {
  const std::string stolen = (annasCopy_ / "stolen").string();
  const Json before = Anna({"refresh"});
  EXPECT_TRUE(AskSVN(annasCopy_).Entries.at(stolen).OwnLock);
  Client({"update", ""});
  const Json after = Anna({"refresh"});
  const SVNAnswer answer = AskSVN(annasCopy_);
  EXPECT_FALSE(answer.Entries.at(stolen).OwnLock);
  ExpectWhatSVNSays(after, answer);
  EXPECT_EQ(after.at("products"), before.at("products"));
}

TEST_F(SVNLocks, AreThoseOfTheWorkingCopyWhenTheRepositoryIsOutOfReach) {
  std::filesystem::rename(folder_ / "repository", folder_ / "elsewhere");
  const Json report = Anna({"refresh"});
  const SVNAnswer answer = AskSVN(annasCopy_);
  EXPECT_FALSE(answer.RepositoryAsked);
  ExpectWhatSVNSays(report, answer);
  EXPECT_THAT(Statuses(report),
              UnorderedElementsAre(Pair("car", "ReadOnly"), Pair("own", "Edit"), Pair("own said", "Edit"),
                                   Pair("foreign", "ReadOnly"), Pair("foreign said", "ReadOnly"),
                                   Pair("stolen", "Edit"), Pair("stolen said", "Edit"),
                                   Pair("broken", "Edit"), Pair("broken said", "Edit")));
}

TEST_F(SVNLocks, AreTakenAndGivenBackWhereTheRepositoryLetsThem) {
  anna_.SignOn(repository_.URL() + "/car");
  const std::vector<std::string> files = {"own",         "own said", "foreign said",
                                          "stolen said", "broken",   "broken said"};
  const auto onEach = [&](const std::string& command) {
    std::vector<std::string> commands = {command};
    for (const std::string& file : files) {
      if (file != files.front()) commands.push_back(Command(command, "all/" + file));
    }
    const Json report = AnnaOn(files, commands);
    ExpectWhatSVNSays(report, AskSVN(annasCopy_), CommentForm::OneFile);
    return Statuses(report);
  };
  EXPECT_THAT(onEach("edit"),
              UnorderedElementsAre(Pair("own", "Edit"), Pair("own said", "Edit"),
                                   Pair("foreign said", "Locked"), Pair("stolen said", "Locked"),
                                   Pair("broken", "Edit"), Pair("broken said", "Edit")));
  EXPECT_THAT(onEach("unedit"),
              UnorderedElementsAre(Pair("own", "ReadOnly"), Pair("own said", "ReadOnly"),
                                   Pair("foreign said", "Locked"), Pair("stolen said", "Locked"),
                                   Pair("broken", "ReadOnly"), Pair("broken said", "ReadOnly")));
}

// Without the update that comes with taking a lock.
TEST_F(SVNLocks, AreGivenBackWhenTheyAreWorthNothingAnyMore) {
  const Json report = AnnaOn({"stolen said", "broken"}, {"unedit", "unedit all/broken"});
  ExpectWhatSVNSays(report, AskSVN(annasCopy_), CommentForm::OneFile);
  EXPECT_THAT(Statuses(report),
              UnorderedElementsAre(Pair("stolen said", "Locked"), Pair("broken", "ReadOnly")));
}

}  // namespace
