#pragma once

#include "commands/CommandCall.h"

// The commands that call ZRKICVSManager.
namespace zrkhost {

Outcome RunRefresh(const CommandCall& call);
Outcome RunStatus(const CommandCall& call);
Outcome RunEdit(const CommandCall& call);
Outcome RunUnedit(const CommandCall& call);
Outcome RunRemove(const CommandCall& call);
Outcome RunDelete(const CommandCall& call);
Outcome RunCommTime(const CommandCall& call);

}  // namespace zrkhost
