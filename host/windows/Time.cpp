#include <atomic>
#include <chrono>
#include <cstdint>
#include <ctime>

#include "windows/WindowsControl.h"

namespace {

using std::chrono::steady_clock;

const steady_clock::time_point kProcessStart = steady_clock::now();
std::atomic<std::int64_t> moved = 0;

}  // namespace

void standin::MoveClock(std::int64_t milliseconds) {
  moved += milliseconds;
}

// Stands in the place of clock in everything that is linked with this library: waiting for a client
// counts, which takes no processor time.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the linker gives the name
extern "C" std::clock_t __wrap_clock() {
  using std::chrono::milliseconds;
  return std::chrono::duration_cast<milliseconds>(steady_clock::now() - kProcessStart).count() + moved;
}
