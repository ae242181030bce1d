#pragma once

#include <optional>

#include "console/ConsoleTest.h"
#include "console/PseudoTerminal.h"

// Calls of zrkhost by a person at a terminal; on Linux alone.
class TerminalTest : public ConsoleTest {
protected:
  void SetUp() override {
    if (!PseudoTerminal::Available()) GTEST_SKIP() << "this system gives no pseudo terminal";
  }

  struct Result {
    int Status;
    // All that appeared on the screen, what was typed among it; line ends are CR LF.
    std::string Screen;
  };
  // What is typed, and behind what on the screen.
  struct Typed {
    std::string Behind;
    std::string Text;
  };

  static Result Converse(const std::vector<std::string>& arguments, const std::vector<Typed>& conversation,
                         unsigned short columns = 200) {
    PseudoTerminal terminal(Program(), arguments, columns);
    return Converse(terminal, conversation);
  }
  static Result Converse(PseudoTerminal& terminal, const std::vector<Typed>& conversation) {
    for (const auto& [behind, text] : conversation) {
      EXPECT_TRUE(terminal.WaitFor(behind)) << "no \"" << behind << "\" in:\n" << terminal.Written();
      terminal.Type(text);
    }
    const int status = terminal.Finish();
    return {status, terminal.Written()};
  }

  // A line is typed at each prompt.
  static Result Prompted(const std::vector<std::string>& arguments, const std::vector<std::string>& lines,
                         unsigned short columns = 200) {
    std::vector<Typed> conversation;
    for (const auto& line : lines) conversation.push_back({"zrkhost> ", line});
    return Converse(arguments, conversation, columns);
  }

  // Arguments of a shell that makes the call with a redirection such as "2>&-".
  static std::vector<std::string> Redirected(std::vector<std::string> arguments,
                                             const std::string& redirection) {
    const std::string script = "exec \"$0\" \"$@\" " + redirection;
    arguments.insert(arguments.begin(), {"-c", script, Program().string()});
    return arguments;
  }

  const EnvironmentVariable kind_{"TERM", "xterm"};
  const EnvironmentVariable colours_{"NO_COLOR", std::nullopt};
};
