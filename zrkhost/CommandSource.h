#pragma once

#include <string>
#include <vector>

#include "CommandLine.h"
#include "Commands.h"

namespace zrkhost {

// A command and where it was given, for messages: such as "-c" or "FILE: line 3".
struct SourcedCommand {
  std::string Source;
  Command Given;
};

// All commands of the call, those of -c first; without any such option those of standard input. Throws
// CallError when a file cannot be read or a line is no command.
std::vector<SourcedCommand> ReadCommands(const Options& options);

// Throws CallError when a command is about a product that is not in the tree.
void CheckProducts(const std::vector<SourcedCommand>& commands, const HostSession& session);

}  // namespace zrkhost
