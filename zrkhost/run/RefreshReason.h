#pragma once

#include <optional>
#include <string>
#include <vector>

#include "commands/Commands.h"
#include "report/LaunchEvents.h"
#include "session/HostSession.h"

namespace zrkhost {

// Why a refresh had nothing to show, as far as it can be seen from outside: when it started no client, or
// when no product of the tree that it is about carries attributes after it; absent when it did show
// something. One line, UTF-8, for a person. `launches` are those of the refresh; where launches are not known
// (LaunchesAreKnown) only the attributes count.
std::optional<std::string> WhyNothingIsShown(const HostSession& session, const Refresh& refresh,
                                             const std::vector<LaunchEvent>& launches);

}  // namespace zrkhost
