#include "tools/RunClock.h"

#include <windows.h>

#include <ctime>

#include "CATUnicodeString.h"

namespace zrk::tools {
namespace {

constexpr double kTicksPerSecond = 1000.0;

// The clock has 32 bits on Windows. Its differences are taken in unsigned arithmetic, which survives a
// clock that runs over, and read as signed numbers, so that one set back by a little gives a little.
std::uint32_t Now() {
  return static_cast<std::uint32_t>(clock());
}

}  // namespace

RunClock::RunClock() : start_(Now()) {}

Ticks RunClock::Elapsed() const {
  return static_cast<std::int32_t>(Now() - start_);
}

void ReportTime(const char* label, double ticks) {
  CATUnicodeString line("\n");
  line += label;
  line += ": ";
  line += CATUnicodeString::BuildFromNum(ticks / kTicksPerSecond, "%g");
  line += " sec\n";
  OutputDebugStringW(line.ConvertToWideChar().c_str());
}

}  // namespace zrk::tools
