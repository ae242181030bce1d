#pragma once

#include <optional>
#include <string>
#include <vector>

#include "report/LaunchEvents.h"
#include "session/HostSession.h"

namespace zrkhost {

// Why a refresh of the tree below `place` had nothing to show, as far as it can be told from outside: when it
// started no client, or when no product of that tree carries attributes after it; absent when it did show
// something. One line, UTF-8, for a person. `launches` are those of the refresh; where launches are not known
// (LaunchesAreKnown) only the attributes count.
std::optional<std::string> WhyNothingIsShown(const HostSession& session, const Place& place,
                                             const std::vector<LaunchEvent>& launches);

}  // namespace zrkhost
