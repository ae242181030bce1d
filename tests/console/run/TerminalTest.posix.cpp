#include <fcntl.h>
#include <pty.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

#include "console/ConsoleTest.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

// Calls with a person's terminal as standard input, output and error.
class Terminal : public ConsoleTest {
protected:
  struct Result {
    int Status;
    // All that appeared on the screen, what was typed among it; line ends are CR LF.
    std::string Screen;
  };

  // What is typed waits in the terminal until the program reads it.
  Result Type(std::vector<std::string> arguments, const std::string& typed,
              unsigned short columns = 200) const {
    arguments.insert(arguments.begin(), Program().string());
    std::vector<char*> pointers;
    for (auto& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);

    winsize size{.ws_row = 50, .ws_col = columns, .ws_xpixel = 0, .ws_ypixel = 0};
    int terminal = -1;
    const pid_t process = forkpty(&terminal, nullptr, nullptr, &size);
    if (process < 0) throw std::system_error(errno, std::generic_category(), "forkpty");
    if (process == 0) {
      execv(pointers[0], pointers.data());
      _exit(127);
    }
    if (write(terminal, typed.data(), typed.size()) != static_cast<ssize_t>(typed.size())) {
      throw std::system_error(errno, std::generic_category(), "write");
    }
    Result result{};
    std::array<char, 4096> buffer;
    for (;;) {
      // Reading fails once the program and its terminal are gone.
      const ssize_t count = read(terminal, buffer.data(), buffer.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) break;
      result.Screen.append(buffer.data(), static_cast<std::size_t>(count));
    }
    close(terminal);
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    result.Status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
  }

  const EnvironmentVariable kind_{"TERM", "xterm"};
  const EnvironmentVariable colours_{"NO_COLOR", std::nullopt};
};

TEST_F(Terminal, IsAskedForCommandsUntilQuit) {
  const auto result = Type({CarSession()}, "cvsable\nquit\ncvsable\n");
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("zrkhost> "));
  // The answer of the first `cvsable` and no other.
  EXPECT_THAT(result.Screen, HasSubstr("1\r\n"));
  EXPECT_EQ(result.Screen.find("1\r\n"), result.Screen.rfind("1\r\n"));
}

TEST_F(Terminal, IsAskedForCommandsUntilItsInputEnds) {
  const auto result = Type({CarSession()}, "cvsable\n\x04");
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("1\r\n"));
}

TEST_F(Terminal, IsToldWhatIsWrongWithALineAndAskedAgain) {
  const auto result = Type({CarSession()}, "nonsense\nedit car/gone\n\nstorage\nquit\n");
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("zrkhost: unknown command \"nonsense\"\r\n"));
  EXPECT_THAT(result.Screen, HasSubstr("zrkhost: there is no product \"car/gone\" in the tree\r\n"));
  EXPECT_THAT(result.Screen, HasSubstr(Host("car.CATProduct")));
}

TEST_F(Terminal, LearnsAtTheEndThatACommandGaveAnotherResult) {
  EXPECT_EQ(Type({CarSession()}, "edit\nquit\n").Status, 1);
}

TEST_F(Terminal, ShowsTheTreeInColours) {
  const auto session = Session(R"({"root": "car", "products": {"car": {"attributes": {"Status": "Edit"}}}})");
  EXPECT_THAT(Type({session, "-c", "tree"}, "").Screen, HasSubstr("\x1b[32mEdit\x1b[0m"));
}

TEST_F(Terminal, ShowsNoColoursWithNoColor) {
  const EnvironmentVariable none("NO_COLOR", "1");
  const auto session = Session(R"({"root": "car", "products": {"car": {"attributes": {"Status": "Edit"}}}})");
  const auto result = Type({session, "-c", "tree"}, "");
  EXPECT_THAT(result.Screen, HasSubstr("Edit"));
  EXPECT_THAT(result.Screen, Not(HasSubstr("\x1b")));
}

TEST_F(Terminal, ShowsNoColoursWhereThereAreNone) {
  const EnvironmentVariable dumb("TERM", "dumb");
  EXPECT_THAT(Type({CarSession(), "-c", "tree"}, "").Screen, Not(HasSubstr("\x1b")));
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
  const auto result = Type({session, "-c", "tree"}, "", 60);
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
  const auto yes = Type({session_, "-c", "unedit"}, "y\n");
  EXPECT_EQ(yes.Status, 0);
  EXPECT_THAT(yes.Screen, HasSubstr("[CVS] car.CATProduct "));
  EXPECT_THAT(yes.Screen, HasSubstr(" [y/n] "));
  EXPECT_EQ(Type({session_, "-c", "unedit"}, "n\n").Status, 1);
}

TEST_F(TerminalQuestion, IsAskedAgainUntilItIsAnswered) {
  EXPECT_EQ(Type({session_, "-c", "unedit"}, "perhaps\n\nyes\n").Status, 0);
}

TEST_F(TerminalQuestion, IsAnsweredNoByTheEndOfTheInput) {
  EXPECT_EQ(Type({session_, "-c", "unedit"}, "\x04").Status, 1);
}

TEST_F(TerminalQuestion, IsAskedAfterCommandsThatWereTypedToTheirEnd) {
  const auto result = Type({session_, "--commands", "-"}, "unedit\n\x04y\n");
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("unedit: result 0, now \"Edit\"\r\n"));
}

TEST_F(TerminalQuestion, IsAllThatEndsWithTheEndOfTheInput) {
  const auto result = Type({session_}, "unedit\n\x04storage\nquit\n");
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Screen, HasSubstr("unedit: result 1, now \"Edit\"\r\n"));
  EXPECT_THAT(result.Screen, HasSubstr(Host("proj/car.CATProduct")));
}

TEST_F(TerminalQuestion, IsNotAskedWhenTheCallHoldsTheAnswer) {
  EXPECT_EQ(Type({session_, "-c", "unedit", "--answer", "yes"}, "").Status, 0);
}

TEST_F(TerminalQuestion, IsAskedBetweenCommands) {
  const auto result = Type({session_}, "unedit\ny\ncvsable\nquit\n");
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Screen, HasSubstr("unedit: result 0, now \"Edit\"\r\n"));
}

}  // namespace
