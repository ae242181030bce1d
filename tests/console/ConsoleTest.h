#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "console/ProgramRun.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

using Json = nlohmann::json;

// Calls of zrkhost in a folder of their own.
class ConsoleTest : public testing::Test {
protected:
  // Writes a session file and gives its path.
  std::string Session(std::string_view json, const std::string& name = "session.json") const;
  // One product named "car", without children, with a document.
  std::string CarSession() const {
    return Session(R"({"root": "car", "products": {"car": {"document": "car.CATProduct"}}})");
  }
  // A car with two axles and a wheel below each.
  std::string AxlesSession() const;

  ProgramResult Zrkhost(const std::vector<std::string>& arguments, const std::string& input = "") const {
    return RunProgram(Program(), arguments, input);
  }

  // The report of a call with these arguments; the call must end with `status`.
  Json Report(std::vector<std::string> arguments, int status = 0) const;

  static std::filesystem::path Program();
  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  // The folder as it is named by a program that made it absolute.
  std::string Host(const std::string& name) const { return folder_.Host(name); }

  TemporaryFolder folder_;
};

// The command's entry of a report.
inline const Json& CommandOf(const Json& report, std::size_t position) {
  return report.at("commands").at(position);
}

// Kinds of a command's events, in order.
std::vector<std::string> EventKinds(const Json& command);
