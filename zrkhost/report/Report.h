#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/OutputFile.h"
#include "commands/Commands.h"
#include "session/HostSession.h"

namespace zrkhost {

// What happened in one command.
struct CommandRecord {
  const Command& Given;
  const Outcome& Result;
  double Seconds = 0;
  // What the library wrote to standard output.
  std::string Output;
  std::vector<nlohmann::ordered_json> Events;
};

// The JSON report of a call.
class Report {
public:
  // Opens the file, so that one that cannot be written is known before anything is run. Throws CallError.
  explicit Report(const std::filesystem::path& file);

  void Add(const CommandRecord& record);

  // Writes what was added and the products as they are now. False when the file does not take it.
  bool Write(const HostSession& session);

private:
  OutputFile file_;
  nlohmann::ordered_json commands_ = nlohmann::ordered_json::array();
};

}  // namespace zrkhost
