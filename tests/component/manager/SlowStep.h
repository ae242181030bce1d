#pragma once

#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <string>

#include "product/ProductModel.h"
#include "windows/LaunchLog.h"

// What the clocks of a refresh measure, shown by a step that is made to take longer than all others. All is
// read from the clock that the component reads, so that what it measured is never more than what passed
// around it here and never less than what passed within it, however busy the machine is.

struct Stretch {
  std::clock_t Begin;
  std::clock_t End;
  std::clock_t Length() const { return End - Begin; }
};

inline Stretch LetTimePass() {
  constexpr std::clock_t ticks = 100;
  const std::clock_t begin = std::clock();
  std::clock_t end = begin;
  while (end - begin < ticks) end = std::clock();
  return {begin, end};
}

// Ticks that a call took before, in and after its slow step.
struct TimesAround {
  std::clock_t Before;
  std::clock_t Within;
  std::clock_t After;
};

namespace slow_step {

inline TimesAround Measure(const Stretch& step, const std::function<void()>& call) {
  const std::clock_t begin = std::clock();
  call();
  const std::clock_t end = std::clock();
  EXPECT_GT(step.Length(), 0) << "the step was not made";
  return {step.Begin - begin, step.Length(), end - step.End};
}

}  // namespace slow_step

// The step is the launch, of which there is one, whose command line holds the text.
inline TimesAround WithSlowLaunch(const wchar_t* command, const std::function<void()>& call) {
  Stretch step{};
  standin::SetLaunchListener([&](const standin::Launch& launch) {
    if (launch.CommandLine.find(command) != std::wstring::npos) step = LetTimePass();
  });
  const TimesAround times = slow_step::Measure(step, call);
  standin::SetLaunchListener({});
  return times;
}

// The step is the redraw of the one product that is redrawn.
inline TimesAround WithSlowRedraw(const std::function<void()>& call) {
  Stretch step{};
  standin::SetRedrawListener([&](const CATBaseUnknown_var&) { step = LetTimePass(); });
  const TimesAround times = slow_step::Measure(step, call);
  standin::SetRedrawListener({});
  return times;
}
