#include "SVNWorkingCopies.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

// The commands of zrkhost that change a working copy.
class SVNEdit : public SVNWorkingCopies {
protected:
  SVNEdit() { CheckOut({{kCar, "car\n"}, {kWheel, "wheel\n"}}); }

  static std::vector<std::string> CommandLines(const Json& report) {
    return TextsOf(EventsOf(CommandOf(report), "launch"), "commandLine");
  }
  // What the repository knows of the file.
  std::string Info() const { return repository_.Run({"info", repository_.URL() + "/" + kWheel}); }
};

TEST_F(SVNEdit, UpdatesAndLocks) {
  repository_.Commit(bensCopy_ / kWheel, "newer\n");
  const Json report = Anna({"edit " + kWheelProduct});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(CommandLines(report),
              ElementsAre(" update --non-interactive " + Sent(kWheel),
                          " lock --non-interactive " + Sent(kWheel), kTreeStatus + (" " + Sent(kWheel))));
  EXPECT_EQ(ReadFile(annasCopy_ / kWheel), "newer\n");
  EXPECT_THAT(Info(), HasSubstr("Lock Owner: anna\n"));
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at(kWheel),
            Json({{"Revision", "2"}, {"Status", "Edit"}, {"Release", ""}, {"Comment", "anna\n"}}));
}

TEST_F(SVNEdit, ShowsTheFileLockedToTheOtherUser) {
  Anna({"edit " + kWheelProduct});
  const auto locked = AttributesByFile(Ben({"refresh"}), bensCopy_);
  EXPECT_EQ(locked.at(kWheel).at("Status"), "Locked");
  EXPECT_EQ(locked.at(kWheel).at("Comment"), "Locked by: \nanna\n-------------\n");
  EXPECT_EQ(locked.at(kCar).at("Status"), "ReadOnly");
}

TEST_F(SVNEdit, IsGivenBackForTheOtherUserToTake) {
  Anna({"edit " + kWheelProduct});
  const Json report = Anna({"unedit " + kWheelProduct});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(CommandLines(report),
              ElementsAre(" unlock --non-interactive " + Sent(kWheel), kTreeStatus + (" " + Sent(kWheel))));
  EXPECT_THAT(Info(), Not(HasSubstr("Lock Owner")));
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at(kWheel),
            Json({{"Revision", "1"}, {"Status", "ReadOnly"}, {"Release", ""}, {"Comment", "\n"}}));

  EXPECT_EQ(AttributesByFile(Ben({"refresh"}), bensCopy_).at(kWheel).at("Status"), "ReadOnly");
  Ben({"edit " + kWheelProduct});
  EXPECT_THAT(Info(), HasSubstr("Lock Owner: ben\n"));
}

TEST_F(SVNEdit, LeavesTheLockToWhoeverHasIt) {
  repository_.Lock(bensCopy_ / kWheel, "ben");
  const Json report = Anna({"edit " + kWheelProduct, "refresh"});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(Info(), HasSubstr("Lock Owner: ben\n"));
  const Json attributes = AttributesByFile(report, annasCopy_).at(kWheel);
  EXPECT_EQ(attributes.at("Status"), "Locked");
  EXPECT_EQ(attributes.at("Comment"), "Locked by: \nben\n-------------\n");
}

TEST_F(SVNEdit, SchedulesADeletion) {
  const Json report = Anna({"delete \"" + (annasCopy_ / kWheel).string() + "\""});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(CommandLines(report), ElementsAre(" delete --force --non-interactive " + Sent(kWheel)));
  EXPECT_FALSE(std::filesystem::exists(annasCopy_ / kWheel));
  EXPECT_EQ(repository_.Run({"status", (annasCopy_ / kWheel).string()}),
            "D       " + (annasCopy_ / kWheel).string() + "\n");
}

TEST_F(SVNEdit, RefusesARemovalFromTheOtherSystem) {
  const Json report = Anna({"remove \"" + (annasCopy_ / kWheel).string() + "\""}, 1);
  EXPECT_THAT(EventsOf(CommandOf(report), "launch"), IsEmpty());
  EXPECT_TRUE(std::filesystem::exists(annasCopy_ / kWheel));
}

TEST_F(SVNEdit, ComesToItsEndWithoutAClient) {
  anna_.Set("PATH", folder_.Path().string());
  const Json report = Anna({"edit " + kWheelProduct});
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at(kWheel), nullptr);
  const CommandResult word = anna_.Adapter("svn.exe", {"lock", folder_.Host(annasCopy_ / kWheel)});
  EXPECT_THAT(word.Output, StartsWith("svn.exe: the program \"svn\" is not on the PATH"));
}

}  // namespace
