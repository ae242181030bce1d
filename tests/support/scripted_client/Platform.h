#pragma once

#include <string>
#include <string_view>

// What the scripted client needs of the system and standard C++ does not have.

// The standard streams carry bytes as they are.
void SetBinaryStandardStreams();

// With the separators of the host, in the platform's 8-bit encoding.
std::string CurrentFolder();

int ProcessId();

// Appends in one piece, so that the lines of clients that run at the same time do not mix and a line is
// there when the client is killed behind it.
void AppendToFile(const std::string& path, std::string_view bytes);

// Makes an empty file; false when there is one already. Of several at the same time one succeeds.
bool CreateNewFile(const std::string& path);

// 0, 1 or 2.
void CloseStandardStream(int number);

// What console this process is attached to: "no console"; "own" or, when other processes are attached too,
// "shared console", and "window" or "no window".
std::string ConsoleText();

// Ends this process as a fault would: nothing is flushed, nothing is run.
[[noreturn]] void EndAbruptly();
