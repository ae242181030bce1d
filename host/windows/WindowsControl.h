#pragma once

#include <string>

// Control of the stand-in: making its Windows functions fail, and counting what is left open.
namespace standin {

enum class WindowsCall { CreatePipe, SetHandleInformation, CreateProcess, ReadFile, WriteFile, CloseHandle };

// Lets `successes` further calls of that function succeed, and the one after them fail, once. Negative:
// none fails. A CloseHandle that is made to fail closes the handle all the same.
void FailWindowsCall(WindowsCall call, int successes);

// Handles of pipes, processes and threads that are open.
int OpenHandleCount();
// Those among them that a child inherits.
int InheritableHandleCount();

// Child processes started and not ended yet; one that has ended is no longer counted, and leaves no
// zombie behind.
int LiveChildCount();

}  // namespace standin
