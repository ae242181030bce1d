#include "SVNArguments.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "Slashes.h"

namespace {

constexpr const char* kNonInteractive = "--non-interactive";

// Options whose value stands in the argument behind them unless it is attached ("-mTEXT", "--message=TEXT").
constexpr std::array<std::string_view, 34> kOptionsWithValue = {"-m",
                                                                "--message",
                                                                "-F",
                                                                "--file",
                                                                "-r",
                                                                "--revision",
                                                                "-c",
                                                                "--change",
                                                                "-l",
                                                                "--limit",
                                                                "-x",
                                                                "--extensions",
                                                                "--targets",
                                                                "--depth",
                                                                "--set-depth",
                                                                "--username",
                                                                "--password",
                                                                "--config-dir",
                                                                "--config-option",
                                                                "--encoding",
                                                                "--editor-cmd",
                                                                "--with-revprop",
                                                                "--changelist",
                                                                "--cl",
                                                                "--accept",
                                                                "--diff-cmd",
                                                                "--diff3-cmd",
                                                                "--native-eol",
                                                                "--old",
                                                                "--new",
                                                                "--show-item",
                                                                "--strip",
                                                                "--search",
                                                                "--trust-server-cert-failures"};

enum class Role { Command, Option, Message, Path, URL };

struct Argument {
  Argument(Role itsRole, std::string itsText) : ItsRole(itsRole), Text(std::move(itsText)) {}

  Role ItsRole;
  std::string Text;
  // Value of an option, where it is an argument of its own.
  std::optional<std::string> Value;
};

bool IsURL(std::string_view text) {
  const std::size_t scheme = text.find("://");
  return scheme != std::string_view::npos && text.find_first_of("/\\") > scheme;
}

bool IsMessage(std::string_view option) {
  return option.starts_with("-m") || option.starts_with("-F") || option == "--message" ||
         option == "--file" || option.starts_with("--message=") || option.starts_with("--file=");
}

std::vector<Argument> Parse(const std::vector<std::string>& texts) {
  std::vector<Argument> arguments;
  bool optionsEnded = false;
  bool commandSeen = false;
  for (auto text = texts.begin(); text != texts.end(); ++text) {
    if (!optionsEnded && text->size() > 1 && text->front() == '-') {
      optionsEnded = *text == "--";
      Argument& option = arguments.emplace_back(IsMessage(*text) ? Role::Message : Role::Option, *text);
      const bool hasValue =
          std::find(kOptionsWithValue.begin(), kOptionsWithValue.end(), *text) != kOptionsWithValue.end();
      if (hasValue && text + 1 != texts.end()) option.Value = *++text;
    } else if (!commandSeen) {
      arguments.emplace_back(Role::Command, *text);
      commandSeen = true;
    } else {
      arguments.emplace_back(IsURL(*text) ? Role::URL : Role::Path, *text);
    }
  }
  return arguments;
}

bool IsDeletionOfPaths(const std::vector<Argument>& arguments) {
  constexpr std::array<std::string_view, 4> kNames = {"delete", "del", "remove", "rm"};
  bool deletes = false;
  bool paths = false;
  for (const Argument& argument : arguments) {
    if (argument.ItsRole == Role::URL) return false;
    if (argument.ItsRole == Role::Path) paths = true;
    if (argument.ItsRole == Role::Command) {
      deletes = std::find(kNames.begin(), kNames.end(), argument.Text) != kNames.end();
    }
  }
  return deletes && paths;
}

bool IsNeverAsked(const std::vector<Argument>& arguments) {
  return std::any_of(arguments.begin(), arguments.end(), [](const Argument& argument) {
    return argument.ItsRole == Role::Option && argument.Text == kNonInteractive;
  });
}

std::string Closed(const std::string& path) {
  return path.find('@') == std::string::npos ? path : path + '@';
}

}  // namespace

SVNCall TranslateSVNCall(const std::vector<std::string>& arguments) {
  const std::vector<Argument> parsed = Parse(arguments);
  SVNCall call{{}, IsNeverAsked(parsed)};
  const bool dropMessage = !call.IsForTodaysClient && IsDeletionOfPaths(parsed);

  if (!call.IsForTodaysClient) call.Arguments = {kNonInteractive};
  for (const Argument& argument : parsed) {
    if (dropMessage && argument.ItsRole == Role::Message) continue;
    if (argument.ItsRole == Role::Path) {
      const std::string path = WithSlashes(argument.Text);
      call.Arguments.push_back(call.IsForTodaysClient ? path : Closed(path));
    } else {
      call.Arguments.push_back(argument.Text);
    }
    if (argument.Value) call.Arguments.push_back(*argument.Value);
  }
  return call;
}
