// The line that says on a terminal what goes on.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "console/TerminalTest.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

// A client that is at work until the test lets it go on.
class Progress : public TerminalTest {
protected:
  Progress() {
    WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
    WriteFile(folder_ / "proj/car", "car");
    mkfifo(Path("gate").c_str(), 0600);
    client_.When("status -v").File(Path("gate")).Once();
    client_.When("status -v").Out(kUpToDate);
    client_.When("unedit").Out("car has been modified; revert changes? ").Read();
  }

  std::string Car(const std::string& name = "car") const {
    return Session(
        Json{{"root", name},
             {"products", {{name, {{"document", "proj/car"}, {"attributes", {{"Status", "Edit"}}}}}}}}
            .dump());
  }

  // What the client reports from then on.
  void LetTheClientGoOn() const {
    const int gate = open(Path("gate").c_str(), O_WRONLY);
    EXPECT_EQ(write(gate, kUpToDate.data(), kUpToDate.size()), static_cast<ssize_t>(kUpToDate.size()));
    close(gate);
  }

  // Twice as long as it takes to appear.
  static constexpr std::chrono::milliseconds kLongEnough{1000};

  const std::string kUpToDate =
      "File: car \tStatus: Up-to-date\r\n\r\n   Working revision:\t1.3\r\n   Repository "
      "revision:\t1.3\t/cvs/root/proj/car,v\r\n";
  ScriptedClient client_;
};

TEST_F(Progress, ShowsCommandClientRunsAndSecondsAndIsWipedInTheEnd) {
  PseudoTerminal terminal(Program(), {Car(), "-c", "refresh car"}, 80);
  ASSERT_TRUE(terminal.WaitFor("refresh car: 1 client run, ")) << terminal.Written();
  ASSERT_TRUE(terminal.WaitFor(" s"));
  EXPECT_THAT(terminal.Screen(), ElementsAre(testing::MatchesRegex("refresh car: 1 client run, [0-9.]+ s")));
  LetTheClientGoOn();
  EXPECT_EQ(terminal.Finish(), 0);
  EXPECT_THAT(terminal.Screen(),
              ElementsAre("Product  Revision  Status  Release  Comment", "car      1.3       Edit", ""));
}

TEST_F(Progress, StaysOnOneLineOfANarrowTerminal) {
  const std::string name = "a product whose name is longer than a line";
  PseudoTerminal terminal(Program(), {Car(name), "-c", "refresh \"" + name + "\""}, 40);
  for (int drawn = 0; drawn < 3; ++drawn) ASSERT_TRUE(terminal.WaitFor(" s")) << terminal.Written();
  EXPECT_THAT(terminal.Screen(),
              ElementsAre(testing::MatchesRegex("refresh \"a produc\u2026: 1 client run, [0-9.]+ s")));
  LetTheClientGoOn();
  EXPECT_EQ(terminal.Finish(), 0);
  EXPECT_EQ(terminal.Screen().at(0), "Product");
}

TEST_F(Progress, GivesWayToADialog) {
  PseudoTerminal terminal(Program(), {Car(), "-c", "unedit"}, 80);
  ASSERT_TRUE(terminal.WaitFor("unedit: 1 client run, ")) << terminal.Written();
  LetTheClientGoOn();
  ASSERT_TRUE(terminal.WaitFor(" [y/n] "));
  // Not even while the person thinks.
  EXPECT_FALSE(terminal.AppearsWithin("client run", kLongEnough));
  terminal.Type("n\n");
  EXPECT_EQ(terminal.Finish(), 1);
  EXPECT_THAT(terminal.Screen(), ElementsAre("[CVS] car car has been modified; revert changes?   [y/n] n",
                                             "unedit: result 1, now \"Edit\", revision 1.3", ""));
}

// A client that asks at once and, with the answer, is at work until the test lets it go on.
class ProgressBehindAQuestion : public Progress {
protected:
  ProgressBehindAQuestion() {
    client_.ClearRules();
    client_.When("unedit").Out("car has been modified; revert changes? ").Read().File(Path("gate"));
  }
};

TEST_F(ProgressBehindAQuestion, DoesNotCountTheTimeThatThePersonThinks) {
  using std::chrono::steady_clock;
  const auto start = steady_clock::now();
  PseudoTerminal terminal(Program(), {Car(), "-c", "unedit"}, 80);
  ASSERT_TRUE(terminal.WaitFor(" [y/n] ")) << terminal.Written();
  const auto asked = steady_clock::now();
  EXPECT_FALSE(terminal.AppearsWithin("client run", 2 * kLongEnough));
  const auto answered = steady_clock::now();
  terminal.Type("n\n");
  ASSERT_TRUE(terminal.WaitFor("client run")) << terminal.Written();
  ASSERT_TRUE(terminal.WaitFor(" s"));
  const std::chrono::duration<double> mostWork = steady_clock::now() - start - (answered - asked);
  // The first line that is shown: work of half a second, before the question and behind it.
  const auto line = terminal.Written().substr(terminal.Written().find("client run"));
  const auto seconds = std::stod(line.substr(line.find(", ") + 2));
  EXPECT_GE(seconds, 0.5);
  // The line is rounded.
  EXPECT_LE(seconds, mostWork.count() + 0.05);
  LetTheClientGoOn();
  EXPECT_EQ(terminal.Finish(), 1);
}

TEST_F(Progress, IsShownWithoutSequencesOfTheTerminal) {
  const EnvironmentVariable none("NO_COLOR", "1");
  PseudoTerminal terminal(Program(), {Car(), "-c", "refresh"}, 80);
  ASSERT_TRUE(terminal.WaitFor("1 client run"));
  LetTheClientGoOn();
  terminal.Finish();
  EXPECT_THAT(terminal.Written(), Not(HasSubstr("\x1b")));
}

TEST_F(Progress, IsNotShownForShortWork) {
  EXPECT_EQ(Converse({Car(), "-c", "cvsable", "-c", "modifiable"}, {}).Screen, "1\r\n1\r\n");
}

TEST_F(Progress, IsNotShownWithVerbose) {
  PseudoTerminal terminal(Program(), {Car(), "-c", "refresh", "--verbose"}, 80);
  ASSERT_TRUE(terminal.WaitFor("launch: "));
  EXPECT_FALSE(terminal.AppearsWithin("client run", kLongEnough));
  LetTheClientGoOn();
  EXPECT_EQ(terminal.Finish(), 0);
}

TEST_F(Progress, IsNotShownOnADumbTerminal) {
  const EnvironmentVariable dumb("TERM", "dumb");
  PseudoTerminal terminal(Program(), {Car(), "-c", "refresh"}, 80);
  EXPECT_FALSE(terminal.AppearsWithin("client run", kLongEnough));
  LetTheClientGoOn();
  EXPECT_EQ(terminal.Finish(), 0);
}

TEST_F(Progress, IsNotShownWhenStandardErrorIsNoTerminal) {
  PseudoTerminal terminal("/bin/sh", Redirected({Car(), "-c", "refresh"}, "2>'" + Path("errors") + "'"), 80);
  EXPECT_FALSE(terminal.AppearsWithin("client run", kLongEnough));
  LetTheClientGoOn();
  EXPECT_EQ(terminal.Finish(), 0);
  EXPECT_EQ(ReadFile(folder_ / "errors"), "");
}

TEST_F(Progress, IsNotMixedWithAStandardOutputThatIsNoTerminal) {
  PseudoTerminal terminal("/bin/sh", Redirected({Car(), "-c", "refresh"}, ">'" + Path("output") + "'"), 80);
  ASSERT_TRUE(terminal.WaitFor("1 client run"));
  LetTheClientGoOn();
  EXPECT_EQ(terminal.Finish(), 0);
  EXPECT_EQ(ReadFile(folder_ / "output"),
            "Product  Revision  Status  Release  Comment\ncar      1.3       Edit\n");
}

TEST_F(Progress, GoesNowhereWithStandardErrorClosed) {
  const std::string report = Path("report.json");
  PseudoTerminal terminal(
      "/bin/sh", Redirected({Car(), "--answer", "no", "-c", "unedit", "--report", report}, "2>&-"), 80);
  EXPECT_FALSE(terminal.AppearsWithin("client run", kLongEnough));
  LetTheClientGoOn();
  EXPECT_EQ(terminal.Finish(), 1);
  // The dialog went nowhere too: neither into the output nor into the report.
  EXPECT_EQ(terminal.Written(), "unedit: result 1, now \"Edit\", revision 1.3\r\n");
  EXPECT_EQ(CommandOf(Json::parse(ReadFile(report)), 0)["output"], "");
}

}  // namespace
