#pragma once

#include <cstdint>

// Control of the stand-in: making its Windows functions fail, and counting what is left open.
namespace standin {

enum class WindowsCall {
  CreatePipe,
  SetHandleInformation,
  CreateProcess,
  ReadFile,
  WriteFile,
  // The same function. Succeeds without a byte, as when the other end writes none.
  ReadFileEmpty,
  // Fails, but closes the handle all the same.
  CloseHandle,
  // The same function. Fails and leaves the handle open.
  CloseHandleInVain
};

// Lets `successes` further calls of that function succeed, and the one after them fail, once. Negative:
// none fails.
void FailWindowsCall(WindowsCall call, int successes);

// Whether fopen opens a file as binary when its mode says neither "t" nor "b"; at first as text.
void OpenFilesInBinary(bool binary);

// Moves the time that clock gives on by so many milliseconds, or back.
void MoveClock(std::int64_t milliseconds);

// Handles of pipes, processes and threads that are open.
int OpenHandleCount();
// Those among them that a child inherits.
int InheritableHandleCount();

// Child processes started and not ended yet; one that has ended is no longer counted, and leaves no
// zombie behind.
int LiveChildCount();

}  // namespace standin
