#include "Measurement.h"

// The others need the adapter of the real client, or read the process's memory from /proc.
const std::vector<Benchmark>& Benchmarks() {
  static const std::vector<Benchmark> benchmarks = {
      {"output", MeasureClientOutput},
      {"status", MeasureStatusReport},
      {"entries", MeasureEntriesFile},
      {"xml", MeasureXMLReport},
  };
  return benchmarks;
}
