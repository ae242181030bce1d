#include "SVNStatus.h"
#include "SVNWorkingCopies.h"

namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::Pair;

// What a file can be to a working copy.
class SVNItems : public SVNWorkingCopy {
protected:
  struct Row {
    std::string File;
    // The client's word for it and what the product shows; "-": no attributes.
    std::string Item;
    std::string Status;
  };

  // Shows each as the row says, and all as the client says; that the client says it, too.
  void ExpectShown(const std::vector<Row>& rows) const {
    std::vector<std::string> documents = {"car"};
    for (const Row& row : rows) documents.push_back(row.File);
    const Json report = AnnaOn(documents, {"refresh"});
    const SVNAnswer answer = AskSVN(annasCopy_);
    ExpectWhatSVNSays(report, answer);
    const auto statuses = Statuses(report);
    for (const Row& row : rows) {
      const auto entry = answer.Entries.find((annasCopy_ / row.File).string());
      EXPECT_EQ(entry == answer.Entries.end() ? "" : entry->second.Item, row.Item) << row.File;
      EXPECT_THAT(statuses, Contains(Pair(row.File, row.Status)));
    }
  }

  void Write(const std::string& file, const std::string& text) const { WriteFile(annasCopy_ / file, text); }
};

TEST_F(SVNItems, ShowWhetherTheWorkingCopyHoldsTheFile) {
  CheckOutFiles({"car", "deleted", "missing", "modified", "modified own", "replaced", "source", "moved",
                 "obstructed", "in list", "list/modified", "list/foreign", "no folder/missing",
                 "deleted folder/file"});
  Client({"propset", "-q", "svn:ignore", "ignored*", ""});
  Client({"delete", "deleted"});
  Client({"delete", "deleted folder"});
  fs::remove(annasCopy_ / "missing");
  fs::remove_all(annasCopy_ / "no folder");
  for (const char* file : {"modified", "modified own", "list/modified"}) Write(file, "changed\n");
  for (const char* file :
       {"added", "added folder/added", "added own", "unversioned", "unversioned folder/file", "ignored",
        "ignored folder/file", "added folder/unversioned"}) {
    Write(file, "new\n");
  }
  Client({"add", "added"});
  Client({"add", "--depth=empty", "added folder"});
  Client({"add", "added folder/added"});
  Client({"delete", "replaced"});
  Write("replaced", "another\n");
  Client({"add", "replaced"});
  repository_.Run({"copy", (annasCopy_ / "source").string(), (annasCopy_ / "copied").string()});
  repository_.Run({"move", (annasCopy_ / "moved").string(), (annasCopy_ / "moved here").string()});
  fs::remove(annasCopy_ / "obstructed");
  fs::create_directory(annasCopy_ / "obstructed");
  Client({"changelist", "spring", "in list"});
  Client({"changelist", "autumn", "list/modified"});
  Client({"changelist", "autumn", "list/foreign"});
  repository_.Lock(annasCopy_ / "modified own", "anna");
  repository_.Lock(annasCopy_ / "in list", "anna", "mine");
  Elsewhere({"lock", "list/foreign"});

  ExpectShown({{"deleted", "deleted", "ReadOnly"},
               {"deleted folder/file", "deleted", "ReadOnly"},
               {"missing", "missing", "ReadOnly"},
               {"no folder/missing", "missing", "ReadOnly"},
               {"modified", "modified", "ReadOnly"},
               {"modified own", "modified", "Edit"},
               {"added", "added", "ReadOnly"},
               {"added folder/added", "added", "ReadOnly"},
               {"added folder/unversioned", "unversioned", "-"},
               {"replaced", "replaced", "ReadOnly"},
               {"copied", "added", "ReadOnly"},
               {"moved", "deleted", "ReadOnly"},
               {"moved here", "added", "ReadOnly"},
               {"obstructed", "obstructed", "ReadOnly"},
               {"in list", "normal", "Edit"},
               {"list/modified", "modified", "ReadOnly"},
               {"list/foreign", "normal", "Locked"},
               {"unversioned", "unversioned", "-"},
               {"unversioned folder/file", "", "-"},
               {"ignored", "", "-"},
               {"ignored folder/file", "", "-"},
               {"nowhere", "", "-"},
               {"nowhere/nothing", "", "-"}});
}

TEST_F(SVNItems, ShowConflictsAndWhatIsNewElsewhere) {
  CheckOutFiles({"car", "conflicted", "gone there", "old"});
  repository_.Checkout(folder_ / "bens");
  repository_.Commit(folder_ / "bens/conflicted", "one\n");
  repository_.Run({"delete", "-m", "", repository_.URL() + "/gone there"});
  for (const char* file : {"conflicted", "gone there"}) Write(file, "changed\n");
  Client({"update", ""});
  repository_.Commit(folder_ / "bens/old", "newer\n");
  repository_.Run({"copy", "-m", "", repository_.URL() + "/car", repository_.URL() + "/only there"});
  Elsewhere({"lock", "only there"});
  Elsewhere({"lock", "old"});
  ExpectShown({{"conflicted", "conflicted", "ReadOnly"},
               {"gone there", "added", "ReadOnly"},
               {"old", "normal", "Locked"},
               {"only there", "none", "-"}});
}

TEST_F(SVNItems, ShowTheSameAfterACommandOnThem) {
  CheckOutFiles({"car", "deleted", "missing"});
  anna_.SignOn(repository_.URL() + "/car");
  Client({"delete", "deleted"});
  fs::remove(annasCopy_ / "missing");
  for (const char* file : {"added", "unversioned", "unversioned folder/file"}) Write(file, "new\n");
  Client({"add", "added"});
  const std::vector<std::string> documents = {
      "car", "deleted", "missing", "added", "unversioned", "unversioned folder/file", "nowhere"};
  std::vector<std::string> commands = {"refresh"};
  for (const std::string& document : documents) {
    commands.push_back(document == "car" ? "edit" : Command("edit", "all/" + document));
  }
  const Json report = AnnaOn(documents, commands);
  ExpectWhatSVNSays(report, AskSVN(annasCopy_), CommentForm::OneFile);
  EXPECT_EQ(Statuses(report), (std::map<std::string, std::string>{{"car", "Edit"},
                                                                  {"deleted", "Edit"},
                                                                  {"missing", "Edit"},
                                                                  {"added", "ReadOnly"},
                                                                  {"unversioned", "-"},
                                                                  {"unversioned folder/file", "-"},
                                                                  {"nowhere", "-"}}));
  // The update that comes with taking a lock has brought it back.
  EXPECT_TRUE(fs::exists(annasCopy_ / "missing"));
}

}  // namespace
