#pragma once

#include <algorithm>
#include <string>

#include "support/CapturedOutput.h"

// What was written to standard output, with every line end a line feed on every platform.
inline std::string OutputText(const CapturedOutput& output) {
  std::string text = output.Bytes();
  std::erase(text, '\r');
  return text;
}
