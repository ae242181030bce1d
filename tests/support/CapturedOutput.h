#pragma once

#include <string>

#include "support/TemporaryFolder.h"

// Sends this process's standard output to a file while it lives: whatever std::cout, printf and wprintf
// write, in the order in which it reaches the stream.
class CapturedOutput {
public:
  CapturedOutput();
  CapturedOutput(const CapturedOutput&) = delete;
  CapturedOutput& operator=(const CapturedOutput&) = delete;
  ~CapturedOutput();

  // The bytes so far. On Windows a line ends in CR LF, as the runtime writes it.
  std::string Bytes() const;

private:
  TemporaryFolder folder_;
  int original_;
};
