#pragma once

#include <vector>

#include "call/CommandLine.h"
#include "commands/SourcedCommand.h"

namespace zrkhost {

// Whether the call takes commands from standard input, or from a person there.
bool ReadsStandardInput(const Options& options);

// All commands of the call, those of -c first; without any such option those of standard input. Throws
// CallError when a file cannot be read or a line is no command.
std::vector<SourcedCommand> ReadCommands(const Options& options);

}  // namespace zrkhost
