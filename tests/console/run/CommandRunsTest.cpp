#include "console/ConsoleTest.h"
#include "console/CurrentFolder.h"
#include "core/HostPath.h"
#include "support/CVSFolder.h"
#include "support/ClientReports.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

std::string Block(const std::string& file, const std::string& revision) {
  return zrk::sample::ReportBlock("proj/" + file, revision);
}

// The commands on a CVS working copy with a client that plays a script.
class CommandRuns : public ConsoleTest {
protected:
  CommandRuns() {
    WriteFile(folder_ / "proj/car.CATProduct", "car");
    WriteFile(folder_ / "proj/axle.CATPart", "axle");
    WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
  }

  std::string Assembly() const {
    return Session(R"({
      "documents": "proj", "root": "car",
      "products": {
        "car": {"document": "car.CATProduct",
                "children": [{"name": "axle.1", "reference": "axle"}, {"name": "gone", "reference": null}]},
        "axle": {"document": "axle.CATPart"}
      }})");
  }

  void ReportRevisions() {
    client_.When("status -v").Out(Block("car.CATProduct", "1.3")).Out(Block("axle.CATPart", "1.7"));
  }

  ScriptedClient client_;
};

TEST_F(CommandRuns, RefreshBringsTheTreeUpToDateAndPrintsIt) {
  ReportRevisions();
  const auto result = Zrkhost({Assembly(), "-c", "refresh"});
  EXPECT_EQ(result.Status, 0) << result.Error;
  EXPECT_EQ(result.Output,
            "Product   Revision  Status  Release                    Comment\n"
            "car       1.3       Edit    release-2 (revision: 1.4)\n"
            "  axle.1  1.7       Edit    release-2 (revision: 1.4)\n"
            "  gone\n");
}

TEST_F(CommandRuns, RefreshTakesThePartOfTheTreeThatIsNamed) {
  ReportRevisions();
  const auto report = Report({Assembly(), "-c", "refresh car/axle.1"});
  EXPECT_EQ(report["products"][0]["attributes"], nullptr);
  EXPECT_EQ(report["products"][1]["attributes"]["Revision"], "1.7");
}

TEST_F(CommandRuns, StatusAsksAboutTheReferenceOfAnInstance) {
  client_.When("axle.CATPart").Out(Block("axle.CATPart", "1.7"));
  const auto report = Report({Assembly(), "-c", "status car/axle.1"});
  const auto& command = CommandOf(report, 0);
  EXPECT_EQ(command["result"], 0);
  EXPECT_EQ(command["record"]["File"], "axle.CATPart\t");
  EXPECT_EQ(command["record"]["Status"], "Up-to-date\r");
  EXPECT_EQ(command["record"]["WorkingRevision"], "1.7");
  EXPECT_EQ(command["record"]["ExistingTags"], "release-2 (revision: 1.4)");
}

TEST_F(CommandRuns, StatusPrintsWhatIsKnown) {
  client_.When("axle.CATPart").Out(Block("axle.CATPart", "1.7"));
  const auto known = Zrkhost({Assembly(), "-c", "status car/axle.1"});
  EXPECT_THAT(known.Output, HasSubstr("Status: Up-to-date\\r\nWorkingRevision: 1.7\n"));
  EXPECT_EQ(Zrkhost({Assembly(), "-c", "status car/gone"}).Output, "nothing is known\n");
}

TEST_F(CommandRuns, StatusOfAnInstanceItselfIsLeftEmpty) {
  client_.Otherwise().Out(Block("axle.CATPart", "1.7"));
  const auto report = Report({Assembly(), "-c", "status --instance car/axle.1"});
  EXPECT_EQ(CommandOf(report, 0)["record"]["WorkingRevision"], "");
  EXPECT_TRUE(client_.Runs().empty());
}

TEST_F(CommandRuns, StatusWithoutALoadedReferenceIsAnEmptyRecordAndResult0) {
  const auto report = Report({Assembly(), "-c", "status car/gone", "-c", "status --instance car/gone"});
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(CommandOf(report, i)["result"], 0);
    EXPECT_EQ(CommandOf(report, i)["record"]["File"], "");
  }
}

TEST_F(CommandRuns, StatusReportsEveryFieldOfTheRecord) {
  const auto report = Report({Assembly(), "-c", "status car/gone"});
  const Json expected = {{"File", ""},
                         {"Status", ""},
                         {"WorkingRevision", ""},
                         {"RepositoryRevision", ""},
                         {"ExpansionOption", ""},
                         {"CommitIdentifier", ""},
                         {"StickyTag", ""},
                         {"StickyDate", ""},
                         {"StickyOptions", ""},
                         {"MergeFrom", ""},
                         {"ExistingTags", ""},
                         {"AuxText", ""},
                         {"LockOwner", ""},
                         {"IsVersioned", 0},
                         {"Flag2", 0},
                         {"IsInEntries", 0},
                         {"IsLockedHere", 0},
                         {"IsLockedByOther", 0},
                         {"Text1", ""},
                         {"Text2", ""},
                         {"Text3", ""},
                         {"RevisionNumber", 0}};
  EXPECT_EQ(CommandOf(report, 0)["record"], expected);
}

// An axle from another repository than the car's.
class CommandsOfTwoWorkingCopies : public CommandRuns {
protected:
  CommandsOfTwoWorkingCopies() {
    WriteFile(folder_ / "parts/axle.CATPart", "axle");
    WriteCVSFolder(folder_ / "parts", "/cvs/parts", "parts");
  }

  std::string TwoRepositories() const {
    return Session(R"({"root": "car", "products": {
        "car": {"document": "proj/car.CATProduct", "children": [{"name": "axle.1", "reference": "axle"}]},
        "axle": {"document": "parts/axle.CATPart"}}})");
  }

  // The repository that each run of the client was sent to by this command.
  std::vector<std::string> RepositoriesOf(const std::string& command) {
    client_.ClearRuns();
    Zrkhost({TwoRepositories(), "-c", command});
    std::vector<std::string> repositories;
    for (const auto& run : client_.Runs()) repositories.push_back(run.Arguments.at(1));
    return repositories;
  }
};

TEST_F(CommandsOfTwoWorkingCopies, RefreshAsksTheManagerOfTheProduct) {
  EXPECT_THAT(RepositoriesOf("refresh car/axle.1"), ElementsAre("/cvs/parts", "/cvs/parts"));
  EXPECT_THAT(RepositoriesOf("refresh"), ElementsAre("/cvs/root", "/cvs/root"));
}

TEST_F(CommandsOfTwoWorkingCopies, RefreshAsksTheManagerOfTheRootByRoot) {
  EXPECT_THAT(RepositoriesOf("refresh --by-root car/axle.1"), ElementsAre("/cvs/root", "/cvs/root"));
}

TEST_F(CommandsOfTwoWorkingCopies, StatusAsksTheManagerOfTheProduct) {
  EXPECT_THAT(RepositoriesOf("status car/axle.1"), ElementsAre("/cvs/parts"));
  EXPECT_THAT(RepositoriesOf("status --by-root car/axle.1"), ElementsAre("/cvs/root"));
}

TEST_F(CommandsOfTwoWorkingCopies, RemoveAsksTheManagerOfTheRoot) {
  EXPECT_THAT(RepositoriesOf("remove \"" + Host("parts/axle.CATPart") + "\""), ElementsAre("/cvs/root"));
}

TEST_F(CommandRuns, RefreshInSubversionTakesThePartOfTheTreeThatIsNamed) {
  WriteFile(folder_ / "wc/.svn/entries", "10\n");
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"document": "wc/car.CATProduct", "attributes": {"Status": "Edit"},
              "children": [{"name": "axle.1", "reference": "axle", "attributes": {"Status": "Edit"}}]},
      "axle": {"document": "wc/axle.CATPart"}}})");
  // A document that the entries do not list loses its attributes when it is refreshed.
  const auto part = Report({session, "-c", "refresh car/axle.1"});
  EXPECT_NE(part["products"][0]["attributes"], nullptr);
  EXPECT_EQ(part["products"][1]["attributes"], nullptr);
  const auto whole = Report({session, "-c", "refresh car/axle.1 --by-root"});
  EXPECT_EQ(whole["products"][0]["attributes"], nullptr);
}

TEST_F(CommandRuns, EditWorksOnTheProductThatIsNamed) {
  client_.When("status -v").Out(Block("axle.CATPart", "1.7"));
  const auto report = Report({Assembly(), "-c", "edit car/axle.1"});
  EXPECT_EQ(CommandOf(report, 0)["result"], 0);
  EXPECT_EQ(report["products"][0]["attributes"], nullptr);
  EXPECT_EQ(report["products"][1]["attributes"]["Status"], "Edit");
  EXPECT_THAT(client_.Runs().at(0).Joined(), HasSubstr("axle.CATPart"));
}

TEST_F(CommandRuns, EditEndsWithWhatTheProductShowsNow) {
  ReportRevisions();
  const auto free = Zrkhost({Assembly(), "-c", "refresh", "-c", "edit car/axle.1"});
  EXPECT_THAT(free.Output, EndsWith("\nedit car/axle.1: result 0, now \"Edit\", revision 1.7\n"));
  SetReadOnly(folder_ / "proj/axle.CATPart");
  client_.When("-n edit").Out("proj/axle.CATPart\tben\tMon Mar  2 10:00:00 2020 GMT\thost\r\n");
  const auto locked = Zrkhost({Assembly(), "-c", "refresh", "-c", "unedit \"car/axle.1\""});
  EXPECT_THAT(
      locked.Output,
      EndsWith("\nunedit \"car/axle.1\": result 0x80004005, now \"Locked\" (proj/axle.CATPart ben Mon "
               "Mar  2 10:00:00 2020 GMT host), revision 1.7\n"));
}

TEST_F(CommandRuns, EditShowsTheNoticeInTheSessionsOwnWords) {
  client_.When("update").Out("U car.CATProduct");
  const auto session = Session(R"({"documents": "proj", "root": "car",
      "catalogs": {"ZRKCVSEditCmd": {"warning": "Attention", "updatewarning": "Please update first: /P1"}},
      "products": {"car": {"document": "car.CATProduct"}}})");
  const auto report = Report({session, "-c", "edit"}, 1);
  const auto& command = CommandOf(report, 0);
  EXPECT_EQ(command["result"], -2147467259);
  EXPECT_EQ(command["output"], "do update first\n");
  EXPECT_EQ(command["events"].back(), Json({{"event", "redraw"}, {"product", "car"}}));
  Json dialog;
  for (const auto& event : command["events"]) {
    if (event["event"] == "dialog") dialog = event;
  }
  EXPECT_EQ(dialog, Json({{"event", "dialog"},
                          {"title", "Attention"},
                          {"message", "Please update first: car.CATProduct"},
                          {"style", "0x4100200"},
                          {"identifier", "Warning"},
                          {"answer", 1}}));
}

TEST_F(CommandRuns, ShowsNoDialogWithoutAWindow) {
  client_.When("update").Out("U car.CATProduct");
  const auto session = Session(R"({"documents": "proj", "root": "car", "window": false,
      "products": {"car": {"document": "car.CATProduct"}}})");
  const auto report = Report({session, "-c", "edit"}, 1);
  for (const auto& event : CommandOf(report, 0)["events"]) EXPECT_NE(event["event"], "dialog");
}

TEST_F(CommandRuns, AnsweringTheRevertQuestionTakesTheAnswerOfTheCall) {
  client_.When("status -v").Out(Block("car.CATProduct", "1.3"));
  client_.When("unedit").Out("car.CATProduct has been modified; revert changes? ").Read();
  const auto session = Session(R"({"documents": "proj", "root": "car",
      "products": {"car": {"document": "car.CATProduct", "attributes": {"Status": "Edit"}}}})");
  struct {
    std::vector<std::string> Option;
    int Answer;
    int Result;
    std::string Sent;
  } const cases[] = {{{"--answer", "yes"}, 3, 0, "yes"}, {{"--answer", "no"}, 4, 1, "no"}, {{}, 4, 1, "no"}};
  for (const auto& [option, answer, expected, sent] : cases) {
    client_.ClearRuns();
    std::vector<std::string> arguments = {session, "-c", "unedit"};
    arguments.insert(arguments.end(), option.begin(), option.end());
    const auto report = Report(arguments, expected);
    EXPECT_EQ(CommandOf(report, 0)["result"], expected);
    int dialogs = 0;
    for (const auto& event : CommandOf(report, 0)["events"]) {
      if (event["event"] != "dialog") continue;
      ++dialogs;
      EXPECT_EQ(event["title"], "CVS");
      EXPECT_EQ(event["answer"], answer);
    }
    EXPECT_EQ(dialogs, 1);
    std::string input;
    for (const auto& run : client_.Runs()) input += run.Input;
    EXPECT_EQ(input.substr(0, sent.size()), sent);
  }
}

TEST_F(CommandRuns, DialogsAreShownOnStandardError) {
  client_.When("status -v").Out(Block("car.CATProduct", "1.3"));
  client_.When("unedit").Out("car.CATProduct\x1b[2J has been modified; revert changes? ").Read();
  const auto session = Session(R"({"documents": "proj", "root": "car",
      "products": {"car": {"document": "car.CATProduct", "attributes": {"Status": "Edit"}}}})");
  const auto result = Zrkhost({session, "-c", "unedit", "--answer", "no"});
  EXPECT_THAT(result.Error, HasSubstr("[CVS] car.CATProduct\\x1b[2J "));
  EXPECT_THAT(result.Error, EndsWith(" [y/n] n\n"));
}

TEST_F(CommandRuns, RemoveGivesTheFileAsItIsButForItsSeparators) {
  const auto file = (folder_ / "proj/axle.CATPart").generic_string();
  const auto result = Zrkhost({Assembly(), "-c", "remove \"" + file + "\""});
  EXPECT_EQ(result.Status, 0) << result.Error;
  const auto runs = client_.Runs();
  ASSERT_EQ(runs.size(), 1u);
  EXPECT_THAT(runs[0].Joined(), EndsWith("remove -f axle.CATPart"));
  EXPECT_EQ(runs[0].Folder, Host("proj"));
}

TEST_F(CommandRuns, RemoveMeansARelativeFileFromTheCurrentFolder) {
  const CurrentFolder current(folder_ / "proj");
  const auto result = Zrkhost({Assembly(), "-c", "remove sub/../axle.CATPart"});
  EXPECT_EQ(result.Status, 0) << result.Error;
  const auto runs = client_.Runs();
  ASSERT_EQ(runs.size(), 1u);
  EXPECT_THAT(runs[0].Joined(), EndsWith("remove -f axle.CATPart"));
  EXPECT_EQ(runs[0].Folder, Host("proj"));
}

TEST_F(CommandRuns, DeleteMeansARelativeFileFromTheCurrentFolder) {
  WriteFile(folder_ / "wc/.svn/entries", "");
  const auto session = Session(R"({"root": "car", "products": {"car": {"document": "wc/car.CATProduct"}}})");
  const CurrentFolder current(folder_ / "proj");
  const auto result = Zrkhost({session, "-c", "delete \"..\\wc\\sub/axle.CATPart\""});
  EXPECT_EQ(result.Status, 0) << result.Error;
  const auto runs = client_.Runs();
  ASSERT_EQ(runs.size(), 1u);
  EXPECT_THAT(runs[0].Arguments, ElementsAre("delete", "-mzq", "--force", Host("wc/sub/axle.CATPart")));
}

TEST_F(CommandRuns, StorageGivesThePathOfAnInstancesReference) {
  const auto report = Report({Assembly(), "-c", "storage car/axle.1", "-c", "storage car/gone"});
  EXPECT_EQ(CommandOf(report, 0)["text"], Host("proj/axle.CATPart"));
  EXPECT_EQ(CommandOf(report, 0)["result"], nullptr);
  EXPECT_EQ(CommandOf(report, 1)["text"], "");
}

TEST_F(CommandRuns, PredicatesAnswerWithoutFailing) {
  const auto session = Session(R"({"root": "car", "attributeClass": {"modifiable": false},
      "products": {"car": {"document": "x", "children": [{"name": "p", "reference": "plain"}]},
                   "plain": {"linkable": false}}})");
  const auto report = Report({session, "-c", "cvsable", "-c", "cvsable car/p", "-c", "modifiable"});
  EXPECT_EQ(CommandOf(report, 0)["result"], 1);
  EXPECT_EQ(CommandOf(report, 1)["result"], 0);
  EXPECT_EQ(CommandOf(report, 2)["result"], 0);
}

TEST_F(CommandRuns, NothingIsModifiableWithoutADictionaryOrAClass) {
  for (const char* key : {R"("dictionary": false)", R"("attributeClass": null)"}) {
    const auto session =
        Session(std::string("{") + key +
                R"(, "root": "car", "products": {"car": {"attributes": {"Status": "Edit"}}}})");
    const auto report = Report({session, "-c", "modifiable"});
    EXPECT_EQ(CommandOf(report, 0)["result"], 0) << key;
    EXPECT_EQ(report["products"][0]["attributes"], nullptr) << key;
  }
  EXPECT_EQ(CommandOf(Report({Assembly(), "-c", "modifiable"}), 0)["result"], 1);
}

TEST_F(CommandRuns, CommTimePrintsAndResets) {
  const auto report = Report({Assembly(), "-c", "commtime"});
  EXPECT_EQ(CommandOf(report, 0)["output"], " Total CVS Comm Time: 0\n");
  EXPECT_EQ(CommandOf(report, 0)["result"], 0);
}

TEST_F(CommandRuns, ShareOneSession) {
  ReportRevisions();
  const auto report = Report({Assembly(), "-c", "refresh", "-c", "tree", "-c", "unedit car/axle.1"});
  // The attribute that the refresh wrote lets the product be given back.
  EXPECT_EQ(CommandOf(report, 2)["result"], 0);
}

TEST_F(CommandRuns, HelpListsTheCommands) {
  EXPECT_THAT(Zrkhost({Assembly(), "-c", "help"}).Output,
              HasSubstr("  status [--by-root] [--instance] [PATH] "));
}

TEST_F(CommandRuns, TheLibrarysOutputComesInItsPlaceOnStandardOutput) {
  client_.When("status -v").Out("nothing about any file");
  const auto result = Zrkhost({Assembly(), "-c", "cvsable", "-c", "refresh", "-c", "modifiable"});
  const auto line = [this](const std::string& file) { return "File " + Host(file) + " not found!\n"; };
  EXPECT_THAT(result.Output, testing::StartsWith("1\n" + line("proj/car.CATProduct") +
                                                 line("proj/axle.CATPart") + "Product"));
  EXPECT_THAT(result.Output, EndsWith("  gone\n1\n"));
}

TEST_F(CommandRuns, VerboseShowsDebuggerMessagesOnStandardError) {
  ReportRevisions();
  const auto result = Zrkhost({Assembly(), "-c", "refresh", "--verbose"});
  EXPECT_THAT(result.Error, HasSubstr("debug: \\nCVS status check time: "));
  EXPECT_THAT(result.Error, testing::Not(HasSubstr("\nCVS status check time: ")));
  EXPECT_EQ(Zrkhost({Assembly(), "-c", "refresh"}).Error, "");
}

TEST_F(CommandRuns, AMissingClientIsReportedInADialog) {
  const ScriptedClient none(InstalledClients::None);
  const auto report = Report({Assembly(), "--clients", "none", "-c", "refresh"});
  ASSERT_EQ(CommandOf(report, 0)["events"].size(), 1u);
  const auto& dialog = CommandOf(report, 0)["events"][0];
  EXPECT_EQ(dialog["title"], "Version Control");
  EXPECT_EQ(dialog["message"], "Path of cvs.exe is not specified");
  EXPECT_EQ(dialog["answer"], 1);
}

TEST_F(CommandRuns, ClientsAreLookedForInTheFolderThatIsNamedLast) {
  const auto folder = standin::FilePath(client_.HostPath("cvs.exe")).parent_path().string();
  const ScriptedClient none(InstalledClients::None);
  EXPECT_THAT(EventKinds(CommandOf(Report({Assembly(), "--clients", "none", "-c", "refresh"}), 0)),
              ElementsAre("dialog"));
  const auto kinds = EventKinds(CommandOf(Report({Assembly(), "--clients", folder, "-c", "refresh"}), 0));
  EXPECT_THAT(kinds, testing::Not(testing::Contains("dialog")));
  EXPECT_EQ(none.Runs().size(), 2u);
}

TEST_F(CommandRuns, AClientsFolderThatIsNoneIsRefused) {
  const auto result = Zrkhost({Assembly(), "--clients", Path("nowhere"), "-c", "tree"});
  EXPECT_EQ(result.Status, 2);
  EXPECT_THAT(result.Error, HasSubstr("nowhere: is not a folder"));
}

}  // namespace
