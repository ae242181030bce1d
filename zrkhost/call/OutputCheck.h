#pragma once

#include "call/CommandLine.h"
#include "session/SessionDescription.h"

// Nothing that is there already may be lost by a slip in the call: what the report and the page must not
// overwrite. Files are compared by what they are, not by their names.
namespace zrkhost {

// What the call reads, standard output, a client's own files in a working copy, and each other. Throws
// CallError.
void CheckOutputs(const Options& options);
// The documents of the session. Throws CallError.
void CheckOutputs(const Options& options, const SessionDescription& description);

}  // namespace zrkhost
