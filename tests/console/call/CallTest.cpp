#include "call/Surroundings.h"
#include "commands/CommandText.h"
#include "console/ConsoleTest.h"
#include "support/Files.h"
#include "support/Platform.h"

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Call : public ConsoleTest {
protected:
  // The call is refused, with all of it on standard error, and nothing was run.
  void ExpectRefused(const ProgramResult& result, const std::string& what) const {
    EXPECT_EQ(result.Status, 2);
    EXPECT_THAT(result.Error, HasSubstr(what));
    EXPECT_EQ(result.Output, "");
  }
};

TEST_F(Call, EndsWith0WhenEveryCommandHasResult0OrNone) {
  const auto result = Zrkhost({CarSession(), "-c", "tree", "-c", "commtime"});
  EXPECT_EQ(result.Status, 0) << result.Error;
  EXPECT_THAT(result.Output, HasSubstr(" Total CVS Comm Time: 0\n"));
}

TEST_F(Call, EndsWith1WhenACommandGivesAnotherResult) {
  EXPECT_EQ(Zrkhost({CarSession(), "--clients", "none", "-c", "edit", "-c", "tree"}).Status, 1);
}

TEST_F(Call, GoesOnAfterACommandWithAnotherResult) {
  const auto result = Zrkhost({CarSession(), "-c", "edit", "-c", "cvsable"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Output, HasSubstr("edit: result 0x80004005, now no status\n1\n"));
}

TEST_F(Call, NeedsASession) {
  ExpectRefused(Zrkhost({"-c", "tree"}), "session file or --folder");
}

TEST_F(Call, RefusesASessionFileTogetherWithAFolder) {
  ExpectRefused(Zrkhost({CarSession(), "--folder", Path("")}), "--folder");
}

TEST_F(Call, RefusesARootWithoutAFolder) {
  ExpectRefused(Zrkhost({CarSession(), "--root", "a"}), "--root");
}

TEST_F(Call, RefusesUnknownOptionsAndMissingValues) {
  ExpectRefused(Zrkhost({CarSession(), "--colour"}), "--colour");
  ExpectRefused(Zrkhost({CarSession(), "second.json"}), "second.json");
  ExpectRefused(Zrkhost({CarSession(), "-c"}), "-c");
  ExpectRefused(Zrkhost({CarSession(), "--report"}), "--report");
}

TEST_F(Call, RefusesEmptyValuesByTheNameOfTheOption) {
  ExpectRefused(Zrkhost({"", "-c", "tree"}), "SESSION: must not be empty");
  for (const char* option : {"--commands", "--report", "--page", "--plugin", "--clients"}) {
    ExpectRefused(Zrkhost({CarSession(), "-c", "tree", option, ""}),
                  std::string(option) + ": must not be empty");
  }
  ExpectRefused(Zrkhost({"--folder", "", "-c", "tree"}), "--folder: must not be empty");
  ExpectRefused(Zrkhost({"--folder", Path(""), "--root", "", "-c", "tree"}), "--root: must not be empty");
}

TEST_F(Call, RefusesAnAnswerThatIsNeitherYesNorNo) {
  ExpectRefused(Zrkhost({CarSession(), "--answer", "maybe"}), "maybe");
}

TEST_F(Call, PrintsItsVersion) {
  const auto version = Zrkhost({"--version"});
  EXPECT_EQ(version.Status, 0);
  EXPECT_EQ(version.Output, "zrkhost " PROJECT_VERSION "\n");
}

TEST_F(Call, PrintsHelpThatFitsOneScreen) {
  const auto help = Zrkhost({"--help"});
  EXPECT_EQ(help.Status, 0);
  for (const char* named :
       {"SESSION", "--folder", "--root", "-c ", "--commands", "--answer", "--verbose", "--report", "--page",
        "--plugin", "--clients", "refresh", "status", "unedit", "Exit status"}) {
    EXPECT_THAT(help.Output, HasSubstr(named));
  }
  EXPECT_THAT(help.Output, testing::ContainsRegex("Examples:\n  zrkhost .*\n  zrkhost .*\n  zrkhost "));
  const auto lines = zrkhost::SplitLines(help.Output);
  // One line stays for the prompt of the shell.
  EXPECT_LT(lines.size(), 40u);
  for (const auto& line : lines) EXPECT_LE(line.size(), 80u) << line;
}

TEST_F(Call, NamesTheSessionFileThePlaceAndWhatIsWrong) {
  const auto session = Session(R"({"root": "car", "products": {
      "car": {}, "wheel": {"children": [{"name": "x", "reference": "wheel"}]}}})");
  ExpectRefused(Zrkhost({session, "-c", "tree"}), "session.json: /products/wheel/children/0/reference: ");
  ExpectRefused(Zrkhost({Session("{"), "-c", "tree"}), "session.json: not JSON: ");
  ExpectRefused(Zrkhost({Session(std::string(500'000, '[')), "-c", "tree"}), "session.json: /0/0/");
}

TEST_F(Call, NamesASessionFileThatCannotBeRead) {
  ExpectRefused(Zrkhost({Path("gone.json"), "-c", "tree"}), "gone.json: there is no such file");
  ExpectRefused(Zrkhost({folder_.Path().string(), "-c", "tree"}), "is a folder");
}

TEST_F(Call, ChecksAllCommandsBeforeItRunsTheFirst) {
  ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "-c", "trees"}), "unknown command \"trees\"");
  ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "-c", "edit car/gone"}), "car/gone");
  ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "-c", "edit \"car"}), "not closed");
  ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "-c", "remove"}), "remove FILE");
  ExpectRefused(Zrkhost({CarSession()}, "tree\n\ntrees\n"),
                "standard input: line 3: unknown command \"trees\"");
  WriteFile(folder_ / "commands.txt", "tree\nedit gone\n");
  ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "--commands", Path("commands.txt")}),
                "commands.txt: line 2: there is no product \"gone\"");
}

TEST_F(Call, ChecksCommandsBehindQuitToo) {
  ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "-c", "quit", "-c", "trees"}), "trees");
}

TEST_F(Call, NamesACommandFileThatCannotBeRead) {
  ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "--commands", Path("gone.txt")}), "gone.txt");
}

TEST_F(Call, NamesAReportThatCannotBeWritten) {
  ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "--report", Path("no/folder/report.json")}),
                "report.json");
}

TEST_F(Call, LeavesAnEarlierReportAloneWhenNothingIsRun) {
  WriteFile(folder_ / "report.json", "earlier");
  Zrkhost({CarSession(), "-c", "trees", "--report", Path("report.json")});
  EXPECT_EQ(ReadFile(folder_ / "report.json"), "earlier");
}

TEST_F(Call, RefusesAReportInPlaceOfWhatItReads) {
  const auto session = CarSession();
  const auto before = ReadFile(session);
  ExpectRefused(Zrkhost({session, "-c", "tree", "--report", Path("./session.json")}),
                "session.json: the report would overwrite");
  EXPECT_EQ(ReadFile(session), before);
  WriteFile(folder_ / "commands.txt", "tree\n");
  ExpectRefused(Zrkhost({session, "--commands", Path("commands.txt"), "--report", Path("commands.txt")}),
                "commands.txt: the report would overwrite");
  EXPECT_EQ(ReadFile(folder_ / "commands.txt"), "tree\n");
}

TEST_F(Call, RefusesAReportOrPageInPlaceOfTheLibrary) {
  WriteFile(folder_ / "library", "machine code");
  const auto beside = (ExecutableFolder() / zrkhost::LibraryFileName("ZRKCVSManager")).string();
  for (const char* option : {"--report", "--page"}) {
    ExpectRefused(Zrkhost({CarSession(), "-c", "tree", "--plugin", Path("library"), option, Path("library")}),
                  "library: the " + std::string(option + 2) + " would overwrite what the call reads");
    // Were it not refused, the call would still end without writing anything.
    ExpectRefused(Zrkhost({CarSession(), "-c", "trees", option, beside}),
                  "would overwrite what the call reads");
  }
  EXPECT_EQ(ReadFile(folder_ / "library"), "machine code");
}

TEST_F(Call, RefusesAReportOrPageInPlaceOfAClient) {
  WriteFile(folder_ / "clients/svn.exe", "machine code");
  for (const char* option : {"--report", "--page"}) {
    ExpectRefused(
        Zrkhost({CarSession(), "-c", "tree", "--clients", Path("clients"), option, Path("clients/svn.exe")}),
        "svn.exe: the " + std::string(option + 2) + " would overwrite what the call reads");
  }
  EXPECT_EQ(ReadFile(folder_ / "clients/svn.exe"), "machine code");
}

TEST_F(Call, RefusesAReportOrPageInPlaceOfWhatAClientKeeps) {
  for (const char* file : {"wc/CVS/Entries", "wc/.svn/wc.db", "wc/.svn/pristine/00/00.svn-base"}) {
    WriteFile(folder_ / file, "kept");
    for (const char* option : {"--report", "--page"}) {
      ExpectRefused(Zrkhost({CarSession(), "-c", "tree", option, Path(file)}),
                    "would overwrite what a client keeps of a working copy");
    }
    EXPECT_EQ(ReadFile(folder_ / file), "kept");
  }
}

TEST_F(Call, LeavesNoNewReportWhenNothingIsRun) {
  ExpectRefused(
      Zrkhost({CarSession(), "-c", "tree", "--report", Path("report.json"), "--page", Path("no/page")}),
      "the page cannot be written");
  ExpectRefused(Zrkhost({CarSession(), "-c", "status none", "--report", Path("report.json")}), "none");
  EXPECT_FALSE(std::filesystem::exists(folder_ / "report.json"));
}

TEST_F(Call, LeavesAnEarlierReportAloneWhenThePageCannotBeWritten) {
  WriteFile(folder_ / "report.json", "earlier");
  ExpectRefused(
      Zrkhost({CarSession(), "-c", "tree", "--report", Path("report.json"), "--page", Path("no/page")}),
      "the page cannot be written");
  EXPECT_EQ(ReadFile(folder_ / "report.json"), "earlier");
}

TEST_F(Call, RefusesAReportOrPageInPlaceOfADocument) {
  WriteFile(folder_ / "wc" / "car.CATProduct", "geometry");
  for (const char* option : {"--report", "--page"}) {
    ExpectRefused(Zrkhost({"--folder", Path("wc"), "-c", "tree", option, Path("wc/car.CATProduct")}),
                  "would overwrite a document of the session");
  }
  EXPECT_EQ(ReadFile(folder_ / "wc" / "car.CATProduct"), "geometry");
}

TEST_F(Call, OverwritesAnEarlierReport) {
  WriteFile(folder_ / "report.json", "earlier");
  EXPECT_EQ(Report({CarSession(), "-c", "tree"})["commands"].size(), 1u);
}

TEST_F(Call, EscapesControlCharactersInWhatItSays) {
  const auto result = Zrkhost({CarSession(), "-c", "\x1b[2J"});
  EXPECT_EQ(result.Status, 2);
  EXPECT_THAT(result.Error, HasSubstr("\\x1b[2J"));
  EXPECT_THAT(result.Error, Not(HasSubstr("\x1b")));
}

TEST_F(Call, RunsNothingWhenNothingIsAskedFor) {
  const auto result = Zrkhost({CarSession()});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output + result.Error, "");
}

TEST_F(Call, ReadsCommandsFromStandardInputWithoutAPrompt) {
  const auto result = Zrkhost({CarSession()}, "cvsable # is it?\r\n\r\n# no command\r\nstorage");
  EXPECT_EQ(result.Status, 0) << result.Error;
  EXPECT_EQ(result.Output, "1\n" + Host("car.CATProduct") + "\n");
  EXPECT_EQ(result.Error, "");
}

TEST_F(Call, ReadsCommandsFromStandardInputThatIsNamedByADash) {
  EXPECT_EQ(Zrkhost({CarSession(), "--commands", "-"}, "cvsable\n").Output, "1\n");
}

TEST_F(Call, RunsTheCommandsOfAFileAfterThoseOfTheOptions) {
  WriteFile(folder_ / "commands.txt", "# first\nstorage \"car\" # where\n");
  const auto result =
      Zrkhost({CarSession(), "--commands", Path("commands.txt"), "-c", "cvsable", "-c", "modifiable"},
              "this is not read\n");
  EXPECT_EQ(result.Status, 0) << result.Error;
  EXPECT_EQ(result.Output, "1\n1\n" + Host("car.CATProduct") + "\n");
}

TEST_F(Call, EndsAtQuit) {
  const auto result = Zrkhost({CarSession(), "-c", "cvsable", "-c", "quit", "-c", "edit"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "1\n");
}

TEST_F(Call, TakesTheSessionBehindTheOptions) {
  EXPECT_EQ(Zrkhost({"-c", "cvsable", CarSession()}).Output, "1\n");
}

TEST_F(Call, FindsDocumentsFromTheSessionsFolder) {
  const auto session = Session(R"({"documents": "../wc\\proj", "root": "car",
                                   "products": {"car": {"document": "./a b.CATPart"}}})",
                               "sessions/car.json");
  EXPECT_EQ(Zrkhost({session, "-c", "storage"}).Output, Host("wc/proj/a b.CATPart") + "\n");
}

TEST_F(Call, MakesASessionOfAFolder) {
  WriteFile(folder_ / "wc/car.CATProduct", "x");
  WriteFile(folder_ / "wc/sub/my axle.CATPart", "x");
  WriteFile(folder_ / "wc/CVS/Root", "x");
  const auto result = Zrkhost({"--folder", Path("wc"), "-c", "storage", "-c",
                               "storage \"car.CATProduct/sub/my axle.CATPart\"", "-c", "tree"});
  EXPECT_EQ(result.Status, 0) << result.Error;
  EXPECT_THAT(result.Output,
              StartsWith(Host("wc/car.CATProduct") + "\n" + Host("wc/sub/my axle.CATPart") + "\n"));
  EXPECT_THAT(result.Output, HasSubstr("\ncar.CATProduct\n  sub/my axle.CATPart\n"));
}

TEST_F(Call, TakesTheRootThatIsNamedInAFolder) {
  WriteFile(folder_ / "wc/a.CATPart", "x");
  WriteFile(folder_ / "wc/sub/car.CATProduct", "x");
  EXPECT_EQ(Zrkhost({"--folder", Path("wc"), "--root", "sub/car.CATProduct", "-c", "storage"}).Output,
            Host("wc/sub/car.CATProduct") + "\n");
  ExpectRefused(Zrkhost({"--folder", Path("wc"), "--root", "gone", "-c", "tree"}), "gone");
}

TEST_F(Call, RefusesAFolderThatIsNone) {
  ExpectRefused(Zrkhost({"--folder", Path("gone"), "-c", "tree"}), "gone: is not a folder");
}

}  // namespace
