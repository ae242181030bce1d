#include "commands/SourcedCommand.h"

#include "base/CallError.h"

namespace zrkhost {

void CheckProducts(const std::vector<SourcedCommand>& commands, const HostSession& session) {
  for (const auto& [source, command] : commands) {
    try {
      CheckProduct(command, session);
    } catch (const CallError& error) {
      throw CallError(source + ": " + error.what());
    }
  }
}

}  // namespace zrkhost
