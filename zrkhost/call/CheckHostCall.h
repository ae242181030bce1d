#pragma once

namespace zrkhost {

// Whether the call is one of the host check: `zrkhost check-host ...`.
bool IsCheckHostCall(int argc, char** argv);

// Carries it out: checks the host of this program on a product of a session and prints a table of the checks.
// Gives the exit status. Throws CallError when nothing could be checked.
int RunCheckHostCall(int argc, char** argv);

}  // namespace zrkhost
