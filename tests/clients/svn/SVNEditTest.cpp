#include "SVNWorkingCopies.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const std::string car = "Auto größe.CATProduct";
const std::string wheel = "Räder vorn/Rad links größe.CATPart";
const std::string wheelProduct = "\"" + car + "/" + wheel + "\"";

// The commands of zrkhost that change a working copy.
class SVNEdit : public SVNWorkingCopies {
protected:
  SVNEdit() { CheckOut({{car, "car\n"}, {wheel, "wheel\n"}}); }

  static std::vector<std::string> CommandLines(const Json& report) {
    return TextsOf(EventsOf(CommandOf(report), "launch"), "commandLine");
  }
  // What the repository knows of the file.
  std::string Info() const { return repository_.Run({"info", repository_.URL() + "/" + wheel}); }
};

TEST_F(SVNEdit, UpdatesAndLocks) {
  repository_.Commit(bensCopy_ / wheel, "newer\n");
  const Json report = Anna({"edit " + wheelProduct});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(CommandLines(report),
              ElementsAre(" update --non-interactive " + Sent(wheel),
                          " lock --non-interactive " + Sent(wheel), kTreeStatus + (" " + Sent(wheel))));
  EXPECT_EQ(ReadFile(annasCopy_ / wheel), "newer\n");
  EXPECT_THAT(Info(), HasSubstr("Lock Owner: anna\n"));
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at(wheel),
            Json({{"Revision", "2"}, {"Status", "Edit"}, {"Release", ""}, {"Comment", "anna\n"}}));
}

TEST_F(SVNEdit, ShowsTheFileLockedToTheOtherUser) {
  Anna({"edit " + wheelProduct});
  const auto locked = AttributesByFile(Ben({"refresh"}), bensCopy_);
  EXPECT_EQ(locked.at(wheel).at("Status"), "Locked");
  EXPECT_EQ(locked.at(wheel).at("Comment"), "Locked by: \nanna\n-------------\n");
  EXPECT_EQ(locked.at(car).at("Status"), "ReadOnly");
}

TEST_F(SVNEdit, IsGivenBackForTheOtherUserToTake) {
  Anna({"edit " + wheelProduct});
  const Json report = Anna({"unedit " + wheelProduct});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(CommandLines(report),
              ElementsAre(" unlock --non-interactive " + Sent(wheel), kTreeStatus + (" " + Sent(wheel))));
  EXPECT_THAT(Info(), Not(HasSubstr("Lock Owner")));
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at(wheel),
            Json({{"Revision", "1"}, {"Status", "ReadOnly"}, {"Release", ""}, {"Comment", "\n"}}));

  EXPECT_EQ(AttributesByFile(Ben({"refresh"}), bensCopy_).at(wheel).at("Status"), "ReadOnly");
  Ben({"edit " + wheelProduct});
  EXPECT_THAT(Info(), HasSubstr("Lock Owner: ben\n"));
}

TEST_F(SVNEdit, LeavesTheLockToWhoeverHasIt) {
  repository_.Lock(bensCopy_ / wheel, "ben");
  const Json report = Anna({"edit " + wheelProduct, "refresh"});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(Info(), HasSubstr("Lock Owner: ben\n"));
  const Json attributes = AttributesByFile(report, annasCopy_).at(wheel);
  EXPECT_EQ(attributes.at("Status"), "Locked");
  EXPECT_EQ(attributes.at("Comment"), "Locked by: \nben\n-------------\n");
}

TEST_F(SVNEdit, SchedulesADeletion) {
  const Json report = Anna({"delete \"" + (annasCopy_ / wheel).string() + "\""});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(CommandLines(report), ElementsAre(" delete --force --non-interactive " + Sent(wheel)));
  EXPECT_FALSE(std::filesystem::exists(annasCopy_ / wheel));
  EXPECT_EQ(repository_.Run({"status", (annasCopy_ / wheel).string()}),
            "D       " + (annasCopy_ / wheel).string() + "\n");
}

TEST_F(SVNEdit, RefusesARemovalFromTheOtherSystem) {
  const Json report = Anna({"remove \"" + (annasCopy_ / wheel).string() + "\""}, 1);
  EXPECT_THAT(EventsOf(CommandOf(report), "launch"), IsEmpty());
  EXPECT_TRUE(std::filesystem::exists(annasCopy_ / wheel));
}

TEST_F(SVNEdit, ComesToItsEndWithoutAClient) {
  anna_.Set("PATH", folder_.Path().string());
  const Json report = Anna({"edit " + wheelProduct});
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at(wheel), nullptr);
  const CommandResult word = anna_.Adapter("svn.exe", {"lock", folder_.Host(annasCopy_ / wheel)});
  EXPECT_THAT(word.Output, StartsWith("svn.exe: the program \"svn\" is not on the PATH"));
}

}  // namespace
