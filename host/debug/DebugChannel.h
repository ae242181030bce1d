#pragma once

#include <functional>
#include <string>

// Control of the stand-in: listening to what this process writes to the debugger with
// OutputDebugStringW.
//
// Older versions of Windows, and Wine 8 with them, hand debuggers 8-bit text only: there a character that
// the active code page lacks arrives as another one, and a message ends after some 32000.
namespace standin {

// Gets each message whole, on the thread that writes it. An empty function: nobody listens.
using DebugListener = std::function<void(const std::wstring& message)>;
void SetDebugListener(DebugListener listener);

}  // namespace standin
