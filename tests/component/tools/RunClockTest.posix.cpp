// The clock of the C runtime has 32 bits, and a user may set it back.

#include "tools/RunClock.h"

#include <gtest/gtest.h>

#include "windows/WindowsControl.h"

using zrk::tools::RunClock;

namespace {

// Moves the clock, and at the end back to where it was.
class MovedClock {
public:
  explicit MovedClock(std::int64_t milliseconds) : milliseconds_(milliseconds) {
    standin::MoveClock(milliseconds_);
  }
  MovedClock(const MovedClock&) = delete;
  MovedClock& operator=(const MovedClock&) = delete;
  ~MovedClock() { standin::MoveClock(-milliseconds_); }

private:
  const std::int64_t milliseconds_;
};

constexpr std::int64_t kOneHour = 3'600'000;

}  // namespace

TEST(RunClock, MeasuresInMilliseconds) {
  const RunClock clock;
  const MovedClock later(kOneHour);
  EXPECT_GE(clock.Elapsed(), kOneHour);
  EXPECT_LT(clock.Elapsed(), 2 * kOneHour);
}

TEST(RunClock, GivesLessThanNothingWhenTheClockIsSetBack) {
  const RunClock clock;
  const MovedClock earlier(-2 * kOneHour);
  EXPECT_GE(clock.Elapsed(), -2 * kOneHour);
  EXPECT_LT(clock.Elapsed(), -kOneHour);
}

TEST(RunClock, MeasuresOnWhenTheClockRunsOver) {
  const MovedClock nearTheEnd((std::int64_t{1} << 32) - kOneHour);
  const RunClock clock;
  const MovedClock later(2 * kOneHour);
  EXPECT_GE(clock.Elapsed(), 2 * kOneHour);
  EXPECT_LT(clock.Elapsed(), 3 * kOneHour);
}
