#pragma once

namespace standin {

// Ends the process with the message on standard error: what the host was asked for would make it fail.
[[noreturn]] void EndOnMisuse(const char* message);

}  // namespace standin
