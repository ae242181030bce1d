#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

// One figure and what it means.
struct Measurement {
  std::string Name;
  double Value = 0.0;
  std::string Unit;
  // The value should not be above; nothing where a figure has no goal.
  std::optional<double> Goal;
  // What was measured to get it.
  std::string Detail;
};

using Measurements = std::vector<Measurement>;

// Seconds that the work takes, done once.
double Seconds(const std::function<void()>& work);

// Two works in turns, so that what disturbs one disturbs the other; the fastest of each: what is slower was
// disturbed.
struct SideBySide {
  double First = 0.0;
  double Second = 0.0;

  double Ratio() const { return First / Second; }
  std::string Detail(const std::string& first, const std::string& second) const;
};
SideBySide Compare(int rounds, const std::function<void()>& first, const std::function<void()>& second);

// How much the work grows beyond its input: 1 when ten times the input costs ten times as much.
Measurement Growth(const std::string& name, int rounds, double factor, const std::function<void()>& small,
                   const std::function<void()>& large, double goal);

// A benchmark under the name that the user calls it by.
struct Benchmark {
  const char* Name;
  Measurements (*Run)();
};

// Those of this platform, in the order of the table.
const std::vector<Benchmark>& Benchmarks();

Measurements MeasureClientOutput();
Measurements MeasureStatusReport();
Measurements MeasureEntriesFile();
Measurements MeasureXMLReport();
Measurements MeasureScriptedRefresh();
Measurements MeasureCVSRefresh();
Measurements MeasureSVNRefresh();
Measurements MeasurePage();
