#include "console/TerminalTest.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

using Terminal = TerminalTest;

TEST_F(Terminal, IsAskedForCommandsUntilQuit) {
  const auto result = Prompted({CarSession()}, {"cvsable\n", "quit\n"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("zrkhost> "));
  // The answer of the first `cvsable` and no other.
  EXPECT_THAT(result.Screen, HasSubstr("1\r\n"));
  EXPECT_EQ(result.Screen.find("1\r\n"), result.Screen.rfind("1\r\n"));
}

TEST_F(Terminal, IsAskedForCommandsUntilItsInputEnds) {
  const auto result = Prompted({CarSession()}, {"cvsable\n", "\x04"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("1\r\n"));
}

TEST_F(Terminal, ShowsWhatIsWrongWithALineAndAsksAgain) {
  const auto result =
      Prompted({CarSession()}, {"nonsense\n", "edit car/gone\n", "\n", "storage\n", "quit\n"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("zrkhost: unknown command \"nonsense\"\r\n"));
  EXPECT_THAT(result.Screen, HasSubstr("zrkhost: there is no product \"car/gone\" in the tree\r\n"));
  EXPECT_THAT(result.Screen, HasSubstr(Host("car.CATProduct")));
}

TEST_F(Terminal, LearnsAtTheEndThatACommandGaveAnotherResult) {
  EXPECT_EQ(Prompted({CarSession()}, {"edit\n", "quit\n"}).Status, 1);
}

TEST_F(Terminal, ShowsTheTreeInColours) {
  const auto session = Session(R"({"root": "car", "products": {"car": {"attributes": {"Status": "Edit"}}}})");
  EXPECT_THAT(Converse({session, "-c", "tree"}, {}).Screen, HasSubstr("\x1b[32mEdit\x1b[0m"));
}

TEST_F(Terminal, ShowsNoColoursWithNoColor) {
  const EnvironmentVariable none("NO_COLOR", "1");
  const auto session = Session(R"({"root": "car", "products": {"car": {"attributes": {"Status": "Edit"}}}})");
  const auto result = Converse({session, "-c", "tree"}, {});
  EXPECT_THAT(result.Screen, HasSubstr("Edit"));
  EXPECT_THAT(result.Screen, Not(HasSubstr("\x1b")));
}

TEST_F(Terminal, ShowsNoColoursWhereThereAreNone) {
  const EnvironmentVariable dumb("TERM", "dumb");
  EXPECT_THAT(Converse({CarSession(), "-c", "tree"}, {}).Screen, Not(HasSubstr("\x1b")));
}

TEST_F(Terminal, IsTheOnlyPlaceForColours) {
  const auto session = Session(R"({"root": "car", "products": {"car": {"attributes": {"Status": "Edit"}}}})");
  EXPECT_THAT(Zrkhost({session, "-c", "tree"}).Output, Not(HasSubstr("\x1b")));
}

TEST_F(Terminal, GetsCommentsCutToItsWidth) {
  const EnvironmentVariable none("NO_COLOR", "1");
  std::string comment = "long";
  comment.resize(300, 'x');
  const auto session = Session(
      Json{{"root", "car"}, {"products", {{"car", {{"attributes", {{"Comment", comment}}}}}}}}.dump());
  const auto result = Converse({session, "-c", "tree"}, {}, 60);
  EXPECT_THAT(result.Screen, EndsWith("x\u2026\r\n"));
  std::size_t longest = 0;
  for (std::size_t start = 0; start < result.Screen.size();) {
    const auto end = result.Screen.find("\r\n", start);
    longest = std::max(longest, end - start);
    start = end + 2;
  }
  // The ellipsis takes three bytes and one column.
  EXPECT_EQ(longest, 62u);
  EXPECT_THAT(Zrkhost({session, "-c", "tree"}).Output, HasSubstr(comment));
}

TEST_F(Terminal, ShowsEachProductOnOneOfItsLinesAlsoIn40Columns) {
  const auto session = Session(Json{
      {"root", "car"},
      {"products",
       {{"car",
         {{"attributes", {{"Revision", "1.17"}, {"Status", "ReadOnly"}, {"Release", "release-2 and more"}}},
          {"children", {{{"name", "a door on the left with a window"}, {"reference", nullptr}}}}}}}}}
                                   .dump());
  PseudoTerminal terminal(Program(), {session, "-c", "tree"}, 40);
  EXPECT_EQ(terminal.Finish(), 0);
  EXPECT_THAT(terminal.Screen(), testing::ElementsAre("Product" + std::string(29, ' ') + "Rev\u2026",
                                                      "car" + std::string(33, ' ') + "1.17",
                                                      "  a door on the left with a window", ""));
}

TEST_F(Terminal, OfAnyKindShowsTheReasonOfAnEmptyRefresh) {
  const auto reason =
      "zrkhost: refresh: no working copy beside any document; the first folder looked at is " + Host("");
  for (const auto& [name, value] :
       {std::pair{"TERM", "xterm"}, std::pair{"TERM", "dumb"}, std::pair{"NO_COLOR", "1"}}) {
    const EnvironmentVariable variable(name, value);
    PseudoTerminal terminal(Program(), {CarSession(), "-c", "refresh"}, 40);
    EXPECT_EQ(terminal.Finish(), 0);
    EXPECT_THAT(terminal.Written(), HasSubstr(reason.substr(0, reason.size() - 1))) << name << value;
  }
}

TEST_F(Terminal, GetsNoReasonOfAnEmptyRefreshWithStandardErrorClosed) {
  const auto report = Path("report.json");
  PseudoTerminal terminal("/bin/sh", Redirected({CarSession(), "-c", "refresh", "--report", report}, "2>&-"),
                          80);
  EXPECT_EQ(terminal.Finish(), 0);
  EXPECT_THAT(terminal.Screen(), testing::ElementsAre(testing::StartsWith("Product"), "car", ""));
  EXPECT_EQ(CommandOf(Json::parse(ReadFile(report)), 0)["command"], "refresh");
}

class TerminalQuestion : public Terminal {
protected:
  TerminalQuestion() {
    WriteFile(folder_ / "proj/car.CATProduct", "car");
    WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
    client_.When("status -v")
        .Out(
            "File: car.CATProduct \tStatus: Up-to-date\r\n\r\n   Repository revision:\t1.3\t/cvs/root/proj/"
            "car.CATProduct,v\r\n");
    client_.When("unedit").Out("car.CATProduct has been modified; revert changes? ").Read();
    session_ = Session(R"({"documents": "proj", "root": "car",
        "products": {"car": {"document": "car.CATProduct", "attributes": {"Status": "Edit"}}}})");
  }

  ScriptedClient client_;
  std::string session_;
};

TEST_F(TerminalQuestion, IsAnsweredByThePerson) {
  const auto yes = Converse({session_, "-c", "unedit"}, {{" [y/n] ", "y\n"}});
  EXPECT_EQ(yes.Status, 0);
  EXPECT_THAT(yes.Screen, HasSubstr("[CVS] car.CATProduct "));
  EXPECT_THAT(yes.Screen, HasSubstr(" [y/n] "));
  EXPECT_EQ(Converse({session_, "-c", "unedit"}, {{" [y/n] ", "n\n"}}).Status, 1);
}

TEST_F(TerminalQuestion, IsAskedOnATerminalOfAnyKind) {
  struct {
    const char* Name;
    const char* Value;
  } const kinds[] = {{"TERM", "dumb"}, {"NO_COLOR", "1"}};
  for (const auto& [name, value] : kinds) {
    const EnvironmentVariable variable(name, value);
    const auto result = Converse({session_, "-c", "unedit"}, {{" [y/n] ", "y\n"}}, 40);
    EXPECT_EQ(result.Status, 0) << name;
    EXPECT_THAT(result.Screen, HasSubstr("unedit: result 0, now \"Edit\"\r\n")) << name;
    EXPECT_THAT(result.Screen, Not(HasSubstr("\x1b"))) << name;
  }
}

TEST_F(TerminalQuestion, IsAskedWithStandardErrorClosedThoughItIsNotSeen) {
  PseudoTerminal terminal("/bin/sh", Redirected({session_, "-c", "unedit"}, "2>&-"), 80);
  EXPECT_EQ(Converse(terminal, {{"", "y\n"}}).Status, 0);
  EXPECT_THAT(terminal.Written(), HasSubstr("unedit: result 0, now \"Edit\"\r\n"));
  EXPECT_THAT(terminal.Written(), Not(HasSubstr("[y/n]")));
}

TEST_F(TerminalQuestion, IsAskedAgainUntilItIsAnswered) {
  EXPECT_EQ(Converse({session_, "-c", "unedit"},
                     {{" [y/n] ", "perhaps\n"}, {" [y/n] ", "\n"}, {" [y/n] ", "yes\n"}})
                .Status,
            0);
}

TEST_F(TerminalQuestion, IsAnsweredNoByTheEndOfTheInput) {
  EXPECT_EQ(Converse({session_, "-c", "unedit"}, {{" [y/n] ", "\x04"}}).Status, 1);
}

TEST_F(TerminalQuestion, IsAskedAfterCommandsThatWereTypedToTheirEnd) {
  const auto result = Converse({session_, "--commands", "-"}, {{"", "unedit\n\x04"}, {" [y/n] ", "y\n"}});
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("unedit: result 0, now \"Edit\"\r\n"));
}

TEST_F(TerminalQuestion, IsAllThatEndsWithTheEndOfTheInput) {
  const auto result = Converse(
      {session_},
      {{"zrkhost> ", "unedit\n"}, {" [y/n] ", "\x04"}, {"zrkhost> ", "storage\n"}, {"zrkhost> ", "quit\n"}});
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Screen, HasSubstr("unedit: result 1, now \"Edit\"\r\n"));
  EXPECT_THAT(result.Screen, HasSubstr(Host("proj/car.CATProduct")));
}

TEST_F(TerminalQuestion, IsNotAskedWhenTheCallHoldsTheAnswer) {
  EXPECT_EQ(Converse({session_, "-c", "unedit", "--answer", "yes"}, {}).Status, 0);
}

TEST_F(TerminalQuestion, IsAskedBetweenCommands) {
  const auto result = Converse(
      {session_},
      {{"zrkhost> ", "unedit\n"}, {" [y/n] ", "y\n"}, {"zrkhost> ", "cvsable\n"}, {"zrkhost> ", "quit\n"}});
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("unedit: result 0, now \"Edit\"\r\n"));
}

}  // namespace
