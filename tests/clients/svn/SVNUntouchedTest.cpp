#include <array>
#include <set>
#include <sstream>

#include "FolderContents.h"
#include "SVNStatus.h"
#include "SVNWorkingCopies.h"

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::Pair;
using testing::UnorderedElementsAre;

// Nobody may write a folder and what it holds while this lives.
class WritesTakenAway {
public:
  explicit WritesTakenAway(const fs::path& folder) : folder_(folder) { Set(fs::perm_options::remove); }
  WritesTakenAway(const WritesTakenAway&) = delete;
  WritesTakenAway& operator=(const WritesTakenAway&) = delete;
  ~WritesTakenAway() { Set(fs::perm_options::add); }

private:
  void Set(fs::perm_options option) const {
    fs::permissions(folder_, fs::perms::owner_write, option);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder_)) {
      if (!entry.is_symlink()) fs::permissions(entry.path(), fs::perms::owner_write, option);
    }
  }

  fs::path folder_;
};

// That nothing is written into a working copy but by the commands that the user asks for.
class SVNUntouched : public SVNWorkingCopy {
protected:
  SVNUntouched() {
    CheckOut({{"car", "car\n"},
              {"wheel", "wheel\n"},
              {"sub/axle", "axle\n"},
              {"sub/deep/nut", "nut\n"},
              {"away/part", "part\n"}});
    Client({"propset", "-q", "svn:needs-lock", "*", "wheel"});
    Client({"commit", "-m", "", ""});
    Client({"update", ""});
    anna_.SignOn(repository_.URL() + "/car");
    WriteFile(annasCopy_ / "new/unversioned", "new\n");
    WriteFile(annasCopy_ / "sub/axle", "changed\n");
    fs::create_symlink("car", annasCopy_ / "link");
  }

  static constexpr std::array<const char*, 7> kCommands = {
      "refresh", "status car/wheel", "edit car/wheel",     "edit car/sub/axle",
      "refresh", "unedit car/wheel", "unedit car/sub/axle"};
  static std::vector<std::string> AllCommands() { return {kCommands.begin(), kCommands.end()}; }

  // The lines, which stand in no order, that the client says in a working copy, and its exit status.
  static std::multiset<std::string> SaidIn(const fs::path& copy, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "svn");
    const CommandResult result =
        RunCommand(arguments, {.Folder = copy, .Input = "", .Environment = {{"LC_ALL", "C.UTF-8"}}});
    std::multiset<std::string> said = {"status " + std::to_string(result.Status)};
    std::istringstream lines(result.Output);
    for (std::string line; std::getline(lines, line);) said.insert(line);
    return said;
  }
};

TEST_F(SVNUntouched, TheWorkingCopyHoldsTheSameBytes) {
  const auto before = ContentsOf(annasCopy_);
  const std::string status = Client({"status", "-v", ""});
  std::vector<std::string> commands = AllCommands();
  commands.insert(commands.end(), 5, "refresh");
  Anna(commands);
  EXPECT_EQ(ContentsOf(annasCopy_), before);
  EXPECT_EQ(Client({"status", "-v", ""}), status);
}

// The same is done in a working copy that never met us.
TEST_F(SVNUntouched, TheClientDoesAllAsItDidBefore) {
  fs::copy(annasCopy_, folder_ / "twin", fs::copy_options::recursive | fs::copy_options::copy_symlinks);
  Anna(AllCommands());
  repository_.Checkout(folder_ / "bens");
  WriteFile(folder_ / "bens/brought/part", "part\n");
  repository_.Run({"add", (folder_ / "bens/brought").string()});
  repository_.Run({"delete", (folder_ / "bens/away").string()});
  WriteFile(folder_ / "bens/car", "newer\n");
  repository_.Run({"commit", "-m", "", (folder_ / "bens").string()});

  const std::vector<std::vector<std::string>> calls = {{"status", "-v"},  {"update"}, {"status", "-v", "-u"},
                                                       {"update", "-r1"}, {"update"}, {"status", "-u"}};
  std::multiset<std::string> all;
  for (const std::vector<std::string>& call : calls) {
    const auto said = SaidIn(annasCopy_, call);
    EXPECT_EQ(said, SaidIn(folder_ / "twin", call)) << call.front();
    all.insert(said.begin(), said.end());
  }
  EXPECT_THAT(
      all, AllOf(Contains("A    brought/part"), Contains("D    away"), Not(Contains(HasSubstr("onflict")))));
  EXPECT_EQ(ContentsOf(annasCopy_), ContentsOf(folder_ / "twin"));

  EXPECT_THAT(SaidIn(annasCopy_, {"lock", "sub/axle"}), Contains("status 0"));
  EXPECT_THAT(SaidIn(annasCopy_, {"commit", "-m", "axle"}), Contains("Committed revision 4."));
  EXPECT_THAT(SaidIn(annasCopy_, {"status"}),
              UnorderedElementsAre("?       link", "?       new", "status 0"));
}

TEST_F(SVNUntouched, AReadOnlyWorkingCopyIsShownAsEveryOther) {
  Elsewhere({"lock", "sub/deep/nut"});
  const WritesTakenAway here(annasCopy_);
  anna_.ObeyFileModes();
  const auto before = ContentsOf(annasCopy_);
  const Json report = Anna({"refresh", "edit car/wheel", "refresh"});
  ExpectWhatSVNSays(report, AskSVN(annasCopy_));
  EXPECT_THAT(Statuses(report),
              AllOf(Contains(Pair("sub/deep/nut", "Locked")), Contains(Pair("wheel", "ReadOnly"))));
  EXPECT_EQ(ContentsOf(annasCopy_), before);
}

}  // namespace
