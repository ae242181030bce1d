#include "Measurement.h"

const std::vector<Benchmark>& Benchmarks() {
  static const std::vector<Benchmark> benchmarks = {
      {"output", MeasureClientOutput},     {"status", MeasureStatusReport},
      {"entries", MeasureEntriesFile},     {"xml", MeasureXMLReport},
      {"refresh", MeasureScriptedRefresh}, {"cvs", MeasureCVSRefresh},
      {"svn", MeasureSVNRefresh},          {"page", MeasurePage},
  };
  return benchmarks;
}
