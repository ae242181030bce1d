#pragma once

#include "commands/CommandCall.h"

// The commands that ask ZRKICVS and the two predicates about a product.
namespace zrkhost {

Outcome RunStorage(const CommandCall& call);
Outcome RunCVSable(const CommandCall& call);
Outcome RunModifiable(const CommandCall& call);

}  // namespace zrkhost
