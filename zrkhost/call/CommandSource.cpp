#include "call/CommandSource.h"

#include "base/CallError.h"
#include "base/Encoding.h"
#include "base/TextFile.h"
#include "commands/CommandText.h"
#include "terminal/StandardInput.h"

namespace zrkhost {

namespace {

void AddCommand(std::vector<SourcedCommand>& commands, const std::string& source, const std::string& line) {
  try {
    if (auto command = ParseCommand(line)) commands.push_back({source, std::move(*command)});
  } catch (const CallError& error) {
    throw CallError(source + ": " + error.what());
  }
}

void AddLines(std::vector<SourcedCommand>& commands, const std::string& name, const std::string& text) {
  int number = 0;
  for (const auto& line : SplitLines(text)) {
    AddCommand(commands, name + ": line " + std::to_string(++number), line);
  }
}

}  // namespace

bool ReadsStandardInput(const Options& options) {
  return options.CommandFile ? *options.CommandFile == "-" : options.Commands.empty();
}

std::vector<SourcedCommand> ReadCommands(const Options& options) {
  std::vector<SourcedCommand> commands;
  for (const auto& line : options.Commands) AddCommand(commands, "-c " + Utf8FromNative(line), line);
  if (ReadsStandardInput(options)) {
    AddLines(commands, "standard input", ReadStandardInput());
  } else if (options.CommandFile) {
    const auto file = PathFromNative(*options.CommandFile);
    AddLines(commands, Utf8FromPath(file), ReadTextFile(file));
  }
  return commands;
}

}  // namespace zrkhost
