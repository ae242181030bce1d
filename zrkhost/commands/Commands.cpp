#include "commands/Commands.h"

#include <algorithm>

#include "base/CallError.h"
#include "base/Encoding.h"
#include "commands/CommandCall.h"
#include "commands/CommandTable.h"
#include "commands/CommandText.h"

namespace zrkhost {

namespace {

// An option is a word that begins so and does not stand in quotes.
bool IsOption(const Word& word) {
  return !word.Quoted && word.Text.starts_with("--");
}

void SetOption(Command& command, const std::string& name) {
  const auto& options = command.Kind->Options;
  const auto option = std::find_if(options.begin(), options.end(),
                                   [&name](const CommandOption& known) { return name == known.Name; });
  if (option == options.end()) {
    throw CallError("unknown option \"" + Utf8FromNative(name) + "\"; use: " + UsageOf(*command.Kind));
  }
  command.*option->Flag = true;
}

}  // namespace

std::optional<Command> ParseCommand(const std::string& line) {
  auto words = SplitCommand(line);
  if (words.empty()) return std::nullopt;
  Command command;
  command.Line = line;
  command.Kind = FindCommand(words[0].Text);
  if (!command.Kind) throw CallError("unknown command \"" + Utf8FromNative(words[0].Text) + "\"");
  words.erase(words.begin());

  for (const Word& word : words) {
    if (IsOption(word)) SetOption(command, word.Text);
  }
  std::erase_if(words, IsOption);
  const std::size_t most = command.Kind->Arguments == Takes::Nothing ? 0 : 1;
  const std::size_t least = command.Kind->Arguments == Takes::File ? 1 : 0;
  if (words.size() < least || words.size() > most) throw CallError("use: " + UsageOf(*command.Kind));
  if (words.empty()) return command;
  if (command.Kind->Arguments == Takes::File) {
    command.File = words[0].Text;
  } else {
    command.ProductPath = words[0].Text;
  }
  return command;
}

void CheckProduct(const Command& command, const HostSession& session) {
  if (command.ProductPath && !session.Find(*command.ProductPath)) {
    throw CallError("there is no product \"" + Utf8FromNative(*command.ProductPath) + "\" in the tree");
  }
}

Outcome RunCommand(const Command& command, const HostSession& session, const Plugin& plugin) {
  const Place* place = command.ProductPath ? session.Find(*command.ProductPath) : &session.Root();
  return command.Kind->Run({command, session, plugin, *place});
}

}  // namespace zrkhost
