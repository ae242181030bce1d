#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "plugin/Plugin.h"
#include "session/HostSession.h"

// The console's commands, as the rest of the program sees them. What they are called and what they take
// stands in CommandTable, what they call in ManagerCommands and ProductCommands.
namespace zrkhost {

struct CommandKind;

struct Command {
  // As it was given.
  std::string Line;
  const CommandKind* Kind = nullptr;
  // Absent: the root.
  std::optional<std::string> ProductPath;
  // Of a command that takes a file.
  std::string File;
  // Only of `refresh` and `status`: ask the manager of the root, not that of the product.
  bool ByRoot = false;
  // Only of `status`: ask about the product itself, not about its reference.
  bool Instance = false;
};

struct Refresh {
  // Where the product stands whose manager was asked.
  const Place* Asked;
  // And that which it was given.
  const Place* Given;
};

struct Outcome {
  // Absent when the operation has none.
  std::optional<std::int32_t> Result = {};
  // Whether the result is an answer, so that 0 and 1 are both good.
  bool IsAnswer = false;
  // What `storage` was given.
  std::optional<std::string> Text = {};
  // What `status` was given, by field.
  std::optional<nlohmann::ordered_json> Record = {};
  // For a person, behind what the library itself wrote.
  std::string Shown = {};
  bool ShowTree = false;
  // Only of `refresh`.
  std::optional<Refresh> Refreshed = {};
  bool Quit = false;

  bool Failed() const { return Result && *Result != 0 && !IsAnswer; }
};

// Absent for a line without words. Throws CallError for an unknown command or arguments that it does not
// take.
std::optional<Command> ParseCommand(const std::string& line);

// Throws CallError when the command is about a product that is not in the tree.
void CheckProduct(const Command& command, const HostSession& session);

// Throws when the product lacks an interface of the component.
Outcome RunCommand(const Command& command, const HostSession& session, const Plugin& plugin);

}  // namespace zrkhost
