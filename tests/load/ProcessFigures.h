#pragma once

#include <iosfwd>

// What a long session must not pile up.
struct ProcessFigures {
  // Memory in use, in KiB.
  long Memory = 0;
  // Handles of the stand-in and file descriptors.
  int Handles = 0;
  // Client processes that have not ended.
  int Children = 0;
  long Objects = 0;
};
std::ostream& operator<<(std::ostream& stream, const ProcessFigures& figures);

// Once the clients have ended, for which it waits up to 30 seconds, so that what they hold is not counted.
ProcessFigures TakeFigures();
