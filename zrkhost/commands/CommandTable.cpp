#include "commands/CommandTable.h"

#include <algorithm>
#include <array>

#include "commands/ManagerCommands.h"
#include "commands/ProductCommands.h"

namespace zrkhost {

namespace {

Outcome RunTree(const CommandCall&) {
  return {.ShowTree = true};
}

Outcome RunHelp(const CommandCall&) {
  return {.Shown = CommandsHelp()};
}

Outcome RunQuit(const CommandCall&) {
  return {.Quit = true};
}

constexpr std::array<CommandOption, 2> kStatusOptions = {
    {{"--by-root", &Command::ByRoot}, {"--instance", &Command::Instance}}};
constexpr auto kByRoot = std::span(kStatusOptions).first<1>();

constexpr std::array<CommandKind, 13> kCommands = {{
    {"tree", Takes::Nothing, {}, RunTree, "print the product tree with its attributes"},
    {"refresh", Takes::Product, kByRoot, RunRefresh, "bring the tree at PATH up to date and print the tree"},
    {"status", Takes::Product, kStatusOptions, RunStatus, "ask the client about a document"},
    {"edit", Takes::Product, {}, RunEdit, "take the product's document for editing"},
    {"unedit", Takes::Product, {}, RunUnedit, "give the product's document back"},
    {"remove", Takes::File, {}, RunRemove, "remove a file from CVS"},
    {"delete", Takes::File, {}, RunDelete, "schedule a file for deletion from Subversion"},
    {"commtime", Takes::Nothing, {}, RunCommTime, "print and reset the time spent waiting for CVS"},
    {"storage", Takes::Product, {}, RunStorage, "print the full path of the product's document"},
    {"cvsable", Takes::Product, {}, RunCVSable, "1 when it can be under version control, else 0"},
    {"modifiable", Takes::Product, {}, RunModifiable, "1 when it may be modified, else 0"},
    {"help", Takes::Nothing, {}, RunHelp, "print this list"},
    {"quit", Takes::Nothing, {}, RunQuit, "end; commands after it are not run"},
}};

}  // namespace

std::span<const CommandKind> AllCommands() {
  return kCommands;
}

const CommandKind* FindCommand(std::string_view name) {
  const auto kind = std::find_if(kCommands.begin(), kCommands.end(),
                                 [name](const CommandKind& known) { return name == known.Name; });
  return kind == kCommands.end() ? nullptr : &*kind;
}

std::string UsageOf(const CommandKind& kind) {
  std::string usage = kind.Name;
  for (const CommandOption& option : kind.Options) usage += std::string(" [") + option.Name + "]";
  if (kind.Arguments == Takes::Product) usage += " [PATH]";
  if (kind.Arguments == Takes::File) usage += " FILE";
  return usage;
}

std::string CommandsHelp() {
  std::size_t widest = 0;
  for (const CommandKind& kind : kCommands) widest = std::max(widest, UsageOf(kind).size());
  std::string text;
  for (const CommandKind& kind : kCommands) {
    auto usage = UsageOf(kind);
    usage.resize(widest + 2, ' ');
    text += "  " + usage + kind.Explanation + "\n";
  }
  return text;
}

}  // namespace zrkhost
