#pragma once

#include <ctime>
#include <functional>
#include <string>

#include "product/ProductModel.h"
#include "windows/LaunchLog.h"

// What the clocks of a refresh measure, shown by steps that are made to take longer than all others. All is
// read from the clock that the component reads, so that what it measured is never more than what passed
// around it here and never less than what passed within it, however busy the machine is.

// Gives the ticks that passed.
inline std::clock_t LetTimePass() {
  constexpr std::clock_t ticks = 100;
  const std::clock_t begin = std::clock();
  std::clock_t end = begin;
  while (end - begin < ticks) end = std::clock();
  return end - begin;
}

// Ticks that a call took, in its slow steps and in all else.
struct SlowTimes {
  int Steps = 0;
  std::clock_t Within = 0;
  std::clock_t Outside = 0;
};

namespace slow_step {

inline SlowTimes Measure(SlowTimes& times, const std::function<void()>& call) {
  const std::clock_t begin = std::clock();
  call();
  times.Outside = std::clock() - begin - times.Within;
  standin::SetLaunchListener({});
  standin::SetRedrawListener({});
  return times;
}

inline void Take(SlowTimes& times) {
  ++times.Steps;
  times.Within += LetTimePass();
}

}  // namespace slow_step

// The steps are the launches whose command line holds the text.
inline SlowTimes WithSlowLaunches(const std::wstring& command, const std::function<void()>& call) {
  SlowTimes times;
  standin::SetLaunchListener([&](const standin::Launch& launch) {
    if (launch.CommandLine.find(command) != std::wstring::npos) slow_step::Take(times);
  });
  return slow_step::Measure(times, call);
}

inline SlowTimes WithSlowRedraws(const std::function<void()>& call) {
  SlowTimes times;
  standin::SetRedrawListener([&](const CATBaseUnknown_var&) { slow_step::Take(times); });
  return slow_step::Measure(times, call);
}
