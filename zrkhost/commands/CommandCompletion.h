#pragma once

#include <string_view>

#include "session/HostSession.h"
#include "terminal/LineEditor.h"

namespace zrkhost {

// How a command that is being typed can go on where it ends: with the name of a command, an option that it
// has and that was not given yet, or a product path. Paths are offered level by level, in double quotes where
// they must stand in them. Nothing to choose from: the word cannot be completed.
Completion CompleteCommand(std::string_view line, const HostSession& session);

}  // namespace zrkhost
