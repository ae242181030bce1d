#pragma once

#include <cstdint>

namespace zrk::tools {

// Ticks of the C runtime's clock: milliseconds.
using Ticks = std::int64_t;

// Measures from its making on.
class RunClock {
public:
  RunClock();
  Ticks Elapsed() const;

private:
  std::uint32_t start_;
};

// Writes "\n<label>: <seconds> sec\n" to the debugger channel as one message.
void ReportTime(const char* label, double ticks);

}  // namespace zrk::tools
