#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <ctime>
#include <thread>

using std::chrono::steady_clock;

namespace {

long Milliseconds(steady_clock::duration duration) {
  return static_cast<long>(std::chrono::duration_cast<std::chrono::milliseconds>(duration).count());
}

}  // namespace

TEST(Clock, CountsMillisecondsThatPassWithoutWork) {
  const auto outerStart = steady_clock::now();
  const clock_t start = clock();
  const auto innerStart = steady_clock::now();
  std::this_thread::sleep_for(std::chrono::milliseconds(30));
  const long inner = Milliseconds(steady_clock::now() - innerStart);
  const clock_t end = clock();
  const long outer = Milliseconds(steady_clock::now() - outerStart);
  EXPECT_GE(inner, 30);
  EXPECT_GE(end - start, inner);
  EXPECT_LE(end - start, outer + 1);
}

TEST(Clock, StartsWithTheProcess) {
  EXPECT_GE(clock(), 0);
  EXPECT_LT(clock(), 24 * 3600 * 1000) << "the clock counts from somewhere else";
}
