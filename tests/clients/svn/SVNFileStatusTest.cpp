#include "SVNWorkingCopies.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

// The status record of one file.
class SVNFileStatus : public SVNWorkingCopy {
protected:
  SVNFileStatus() {
    CheckOutFiles({"car", "sub/own", "foreign", "deleted"});
    repository_.Lock(annasCopy_ / "sub/own", "anna", "mine");
    Elsewhere({"lock", "-m", "line 1\n<line 2>", "foreign"});
    Client({"delete", "deleted"});
    for (const char* file : {"added", "unversioned", "folder/unversioned"})
      WriteFile(annasCopy_ / file, "new\n");
    Client({"add", "added"});
  }

  // The record of a file that is a child's, and the client's runs for it.
  Json RecordOf(const std::string& file) {
    const Json report = AnnaOn({"car", file}, {Command("status", "all/" + file)});
    runs_ = RunsOf(CommandOf(report));
    EXPECT_EQ(CommandOf(report).at("result"), 0);
    return CommandOf(report).at("record");
  }
  // The fields that are neither empty nor 0.
  Json WrittenFor(const std::string& file) {
    const Json record = RecordOf(file);
    Json written = Json::object();
    for (const auto& [field, value] : record.items()) {
      if (value != Json("") && value != 0) written[field] = value;
    }
    return written;
  }

  static constexpr const char* kOutside = "../outside";
  Runs runs_;
};

TEST_F(SVNFileStatus, TellsOfTheLockAndTheRevision) {
  EXPECT_EQ(WrittenFor("sub/own"), Json({{"File", "own"},
                                         {"Status", "normal"},
                                         {"WorkingRevision", "1"},
                                         {"RevisionNumber", 1},
                                         {"IsVersioned", 1},
                                         {"IsInEntries", 1},
                                         {"IsLockedHere", 1},
                                         {"LockOwner", "anna"},
                                         {"AuxText", "mine"}}));
  EXPECT_THAT(runs_,
              ElementsAre(Pair(folder_.Host(annasCopy_ / "sub"), kTreeStatus + (" " + Sent("sub/own")))));
  EXPECT_EQ(WrittenFor("foreign"), Json({{"File", "foreign"},
                                         {"Status", "normal"},
                                         {"WorkingRevision", "1"},
                                         {"RevisionNumber", 1},
                                         {"IsVersioned", 1},
                                         {"IsInEntries", 1},
                                         {"IsLockedByOther", 1},
                                         {"LockOwner", "ben"},
                                         {"AuxText", "line 1\n<line 2>"}}));
}

TEST_F(SVNFileStatus, TellsOfWhatHasNoRevision) {
  EXPECT_EQ(WrittenFor("added"),
            Json({{"File", "added"}, {"Status", "added"}, {"IsVersioned", 1}, {"IsInEntries", 1}}));
  EXPECT_EQ(WrittenFor("unversioned"), Json({{"File", "unversioned"}, {"Status", "unversioned"}}));
}

TEST_F(SVNFileStatus, TellsTheWordOfWhatIsToBeDeleted) {
  EXPECT_EQ(RecordOf("deleted").at("Status"), "deleted");
}

TEST_F(SVNFileStatus, LeavesTheRecordWhenTheClientDoesNotNameTheFile) {
  EXPECT_EQ(WrittenFor("folder/unversioned"), Json::object());
  EXPECT_THAT(runs_, testing::SizeIs(1));
  EXPECT_EQ(WrittenFor("nowhere"), Json::object());
}

TEST_F(SVNFileStatus, StartsNothingOutsideAnyWorkingCopy) {
  const Json report = AnnaOn({"car", kOutside}, {"status --by-root all/" + std::string(kOutside)});
  EXPECT_THAT(RunsOf(CommandOf(report)), IsEmpty());
}

}  // namespace
