#include "Measurement.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::string SideBySide::Detail(const std::string& first, const std::string& second) const {
  char text[200];
  std::snprintf(text, sizeof(text), "%s %.4g s, %s %.4g s", first.c_str(), First, second.c_str(), Second);
  return text;
}

SideBySide Compare(int rounds, const std::function<void()>& first, const std::function<void()>& second) {
  constexpr double kNone = std::numeric_limits<double>::infinity();
  SideBySide result{kNone, kNone};
  for (int round = 0; round < rounds; ++round) {
    result.First = std::min(result.First, Seconds(first));
    result.Second = std::min(result.Second, Seconds(second));
  }
  return result;
}

Measurement Growth(const std::string& name, int rounds, double factor, const std::function<void()>& small,
                   const std::function<void()>& large, double goal) {
  const SideBySide result = Compare(rounds, large, small);
  return {name, result.Ratio() / factor, "of linear", goal, result.Detail("large", "small")};
}
