// zrk_bench [--json FILE] [NAME...]: runs the benchmarks named, or all, and prints a table. Ends with 2 when
// a name is not a benchmark's, and with 1 when a benchmark fails.

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>
#include <string>

#include "Measurement.h"

namespace {

bool IsBenchmark(const std::string& name) {
  return std::any_of(Benchmarks().begin(), Benchmarks().end(),
                     [&](const Benchmark& benchmark) { return name == benchmark.Name; });
}

int RefuseName(const std::string& name) {
  std::fprintf(stderr, "zrk_bench: no benchmark is called \"%s\"; there are:", name.c_str());
  for (const Benchmark& benchmark : Benchmarks()) std::fprintf(stderr, " %s", benchmark.Name);
  std::fputc('\n', stderr);
  return 2;
}

// Three digits, or all of those before the point.
std::string Rounded(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), value >= 1000 ? "%.0f" : "%.3g", value);
  return text.data();
}

void Print(const Measurement& measurement) {
  const std::string goal = measurement.Goal ? Rounded(*measurement.Goal) : "";
  std::printf("| %s | %s %s | %s | %s |\n", measurement.Name.c_str(), Rounded(measurement.Value).c_str(),
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

void Run(const std::set<std::string>& names, const std::string& jsonFile) {
  nlohmann::ordered_json all = nlohmann::ordered_json::array();
  std::printf("| Measured | Value | Goal, at most | From |\n|---|---|---|---|\n");
  for (const Benchmark& benchmark : Benchmarks()) {
    if (!names.empty() && !names.contains(benchmark.Name)) continue;
    for (const Measurement& measurement : benchmark.Run()) {
      Print(measurement);
      all.push_back(ToJson(measurement));
    }
  }
  if (jsonFile.empty()) return;
  std::ofstream file(jsonFile);
  if (!(file << all.dump(2) << std::endl)) throw std::runtime_error(jsonFile + " cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
  std::set<std::string> names;
  std::string jsonFile;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == "--json" && i + 1 < argc) {
      jsonFile = argv[++i];
    } else if (IsBenchmark(argument)) {
      names.insert(argument);
    } else {
      return RefuseName(argument);
    }
  }
  try {
    Run(names, jsonFile);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zrk_bench: %s\n", error.what());
    return 1;
  }
}
