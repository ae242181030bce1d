#pragma once

#include <string>

namespace zrkhost {

// All of it. Throws CallError when it cannot be read.
std::string ReadStandardInput();

// The next line, without its end; false when the input ends. An end before that does not count: on a terminal
// more can be typed behind one.
bool ReadLine(std::string& line);

}  // namespace zrkhost
