#pragma once

#include <string>
#include <vector>

#include "commands/Commands.h"

namespace zrkhost {

// A command and where it was given, for messages: such as "-c" or "FILE: line 3".
struct SourcedCommand {
  std::string Source;
  Command Given;
};

// Throws CallError when a command is about a product that is not in the tree.
void CheckProducts(const std::vector<SourcedCommand>& commands, const HostSession& session);

}  // namespace zrkhost
