// zrk_bench [--json FILE] [NAME...]: runs the benchmarks named, or all, and prints a table.

#include <cstdio>
#include <exception>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "Measurement.h"

namespace {

struct Benchmark {
  const char* Name;
  Measurements (*Run)();
};

constexpr Benchmark kBenchmarks[] = {
    {"output", MeasureOutputCapture}, {"status", MeasureStatusReport},     {"entries", MeasureEntriesFile},
    {"xml", MeasureXMLReport},        {"refresh", MeasureScriptedRefresh}, {"cvs", MeasureCVSRefresh},
};

void Print(const Measurement& measurement) {
  const std::string goal = measurement.Goal ? std::to_string(*measurement.Goal).substr(0, 4) : "";
  std::printf("| %s | %.3g %s | %s | %s |\n", measurement.Name.c_str(), measurement.Value,
              measurement.Unit.c_str(), goal.c_str(), measurement.Detail.c_str());
  std::fflush(stdout);
}

nlohmann::ordered_json ToJson(const Measurement& measurement) {
  nlohmann::ordered_json json = {
      {"name", measurement.Name}, {"value", measurement.Value}, {"unit", measurement.Unit}};
  json["goal"] = measurement.Goal ? nlohmann::ordered_json(*measurement.Goal) : nlohmann::ordered_json();
  json["detail"] = measurement.Detail;
  return json;
}

int Run(const std::set<std::string>& names, const std::string& jsonFile) {
  nlohmann::ordered_json all = nlohmann::ordered_json::array();
  std::printf("| Measured | Value | Goal, at most | From |\n|---|---|---|---|\n");
  for (const Benchmark& benchmark : kBenchmarks) {
    if (!names.empty() && !names.contains(benchmark.Name)) continue;
    for (const Measurement& measurement : benchmark.Run()) {
      Print(measurement);
      all.push_back(ToJson(measurement));
    }
  }
  if (!jsonFile.empty()) std::ofstream(jsonFile) << all.dump(2) << '\n';
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::set<std::string> names;
  std::string jsonFile;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == "--json" && i + 1 < argc) {
      jsonFile = argv[++i];
    } else {
      names.insert(argument);
    }
  }
  try {
    return Run(names, jsonFile);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zrk_bench: %s\n", error.what());
    return 1;
  }
}
