#pragma once

#include <span>
#include <string>
#include <string_view>

#include "commands/CommandCall.h"

// Every command of the console: what it is called, what it takes and what runs it. A new one is a row here.
namespace zrkhost {

enum class Takes { Nothing, Product, File };

// A word such as --instance, which sets a flag of the command.
struct CommandOption {
  const char* Name;
  bool Command::*Flag;
};

struct CommandKind {
  const char* Name;
  Takes Arguments;
  std::span<const CommandOption> Options;
  Outcome (*Run)(const CommandCall&);
  // A line for the help.
  const char* Explanation;
};

std::span<const CommandKind> AllCommands();
// Null when no command has this name.
const CommandKind* FindCommand(std::string_view name);

// Such as "status [--by-root] [--instance] [PATH]".
std::string UsageOf(const CommandKind& kind);
// Every command with what it takes and what it does, a line each.
std::string CommandsHelp();

}  // namespace zrkhost
