// Lines typed at the prompt of a terminal: edited, remembered, completed.

#include <csignal>

#include "console/TerminalTest.h"
#include "support/Files.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kUp = "\x1b[A";
constexpr const char* kLeft = "\x1b[D";
constexpr const char* kEnd = "\x04";

class Prompt : public TerminalTest {
protected:
  // A car with a door whose name holds a blank, an umlaut and an emoji.
  std::string Car() const {
    return Session(R"({"root": "car", "products": {
        "car": {"document": "car.CATProduct",
                "children": [{"name": "T\u00fcr \ud83d\ude97", "reference": "door"},
                             {"name": "hood.1", "reference": "door"}]},
        "door": {"document": "door.CATPart"}}})");
  }

  // What stands on the screen when each line was typed at a prompt, or behind what is named, and the input
  // ended behind the last. The editor shows that end as "^D".
  std::vector<std::string> ScreenOf(const std::vector<std::string>& lines,
                                    unsigned short columns = 200) const {
    std::vector<Typed> conversation;
    for (const auto& line : lines) conversation.push_back({"zrkhost> ", line});
    return ScreenOfConversation(conversation, columns);
  }
  std::vector<std::string> ScreenOfConversation(std::vector<Typed> conversation,
                                                unsigned short columns = 200) const {
    conversation.push_back({"zrkhost> ", kEnd});
    PseudoTerminal terminal(Program(), {Car()}, columns);
    EXPECT_EQ(Converse(terminal, conversation).Status, 0);
    return terminal.Screen();
  }
};

TEST_F(Prompt, LetsALineBeEdited) {
  EXPECT_THAT(ScreenOf({std::string("cvsabe") + kLeft + "l\x01\x04" + "c\n"}),
              ElementsAre("zrkhost> cvsable", "1", "zrkhost> ^D", ""));
}

TEST_F(Prompt, RemembersLines) {
  EXPECT_THAT(ScreenOf({"cvsable\n", "storage\n", std::string(kUp) + kUp + "\n"}),
              ElementsAre("zrkhost> cvsable", "1", "zrkhost> storage", Host("car.CATProduct"),
                          "zrkhost> cvsable", "1", "zrkhost> ^D", ""));
}

TEST_F(Prompt, CompletesCommandsOptionsAndProductPaths) {
  EXPECT_THAT(ScreenOf({"cvsa\tc\t\n", "stor\tcar/h\t\n"}),
              ElementsAre("zrkhost> cvsable car", "1", "zrkhost> storage car/hood.1", Host("door.CATPart"),
                          "zrkhost> ^D", ""));
  EXPECT_THAT(ScreenOf({"status --i\tcar\n"}).at(0), "zrkhost> status --instance car");
}

TEST_F(Prompt, PutsAPathWithBlanksInQuotes) {
  EXPECT_THAT(ScreenOf({"storage car/T\t\n"}), ElementsAre("zrkhost> storage \"car/T\u00fcr \U0001F697\"",
                                                           Host("door.CATPart"), "zrkhost> ^D", ""));
}

TEST_F(Prompt, ListsWhatThereIsToChooseFrom) {
  EXPECT_THAT(ScreenOfConversation({Typed{"zrkhost> ", "st\t"}, Typed{"zrkhost> st", "orage\n"}}),
              ElementsAre("zrkhost> st", "status   storage", "zrkhost> storage", Host("car.CATProduct"),
                          "zrkhost> ^D", ""));
}

TEST_F(Prompt, ErasesWideCharactersWhole) {
  EXPECT_THAT(ScreenOf({"storage \"car/T\u00fcr \U0001F697\x7f\x7f\x7f\x7f\x7fhood.1\"\n"}),
              ElementsAre("zrkhost> storage \"car/hood.1\"", Host("door.CATPart"), "zrkhost> ^D", ""));
}

TEST_F(Prompt, GoesOnInTheNextLineOfANarrowTerminal) {
  EXPECT_THAT(ScreenOf({"cvsable \"car/hood.1\" # which is its bonnet, really\n"}, 40),
              ElementsAre("zrkhost> cvsable \"car/hood.1\" # which is", " its bonnet, really", "1",
                          "zrkhost> ^D", ""));
}

TEST_F(Prompt, ListsInOneColumnOfANarrowTerminal) {
  EXPECT_THAT(ScreenOfConversation(
                  {Typed{"zrkhost> ", "cvsable car/\t"}, Typed{"zrkhost> cvsable car/", "hood.1\n"}}, 23),
              ElementsAre("zrkhost> cvsable car/", "car/T\u00fcr \U0001F697", "car/hood.1",
                          "zrkhost> cvsable car/ho", "od.1", "1", "zrkhost> ^D", ""));
}

TEST_F(Prompt, GivesTheTerminalBackWhenItIsInterrupted) {
  PseudoTerminal terminal(Program(), {Car()}, 80);
  ASSERT_TRUE(terminal.WaitFor("zrkhost> "));
  terminal.Type("cvsa\x03");
  EXPECT_EQ(terminal.Finish(), 128 + SIGINT);
}

TEST_F(Prompt, HasNoColoursWithNoColor) {
  const EnvironmentVariable none("NO_COLOR", "1");
  const auto result = Prompted({Car()}, {"tree\n", kEnd});
  EXPECT_THAT(result.Screen, HasSubstr("Product"));
  EXPECT_THAT(result.Screen, Not(testing::ContainsRegex("\x1b\\[[0-9;]*m")));
}

TEST_F(Prompt, TakesLinesAsTheyComeOnADumbTerminal) {
  const EnvironmentVariable dumb("TERM", "dumb");
  const auto result = Prompted({Car()}, {"cvsable\n", kEnd});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Screen, "zrkhost> cvsable\r\n1\r\nzrkhost> \r\n");
}

TEST_F(Prompt, GoesToStandardErrorAlsoWhereThatIsAFile) {
  PseudoTerminal terminal("/bin/sh", Redirected({Car()}, "2>'" + Path("errors") + "'"), 80);
  EXPECT_EQ(Converse(terminal, {{"", "cvsable\nquit\n"}}).Status, 0);
  EXPECT_THAT(terminal.Screen(), testing::Contains("1"));
  EXPECT_EQ(ReadFile(folder_ / "errors"), "zrkhost> zrkhost> ");
}

TEST_F(Prompt, TakesLinesWithStandardErrorClosed) {
  PseudoTerminal terminal("/bin/sh", Redirected({Car()}, "2>&-"), 80);
  EXPECT_EQ(Converse(terminal, {{"", "cvsable\nquit\n"}}).Status, 0);
  EXPECT_THAT(terminal.Screen(), testing::Contains("1"));
  EXPECT_THAT(terminal.Written(), Not(HasSubstr("zrkhost>")));
}

}  // namespace
