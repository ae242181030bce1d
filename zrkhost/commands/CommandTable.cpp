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

// For the command alone: the program's own help is to fit a screen.
std::string CommandsNotes() {
  return "PATH is a product path such as car/axle.1; left out, it is the root.\n"
         "FILE is a full path, or is meant from the current folder.\n"
         "What holds blanks stands in double quotes; # begins a comment.\n"
         "--by-root asks the manager of the root, not that of PATH.\n"
         "--instance asks with the product itself, not with its reference.\n";
}

Outcome RunHelp(const CommandCall&) {
  return {.Shown = CommandsHelp() + CommandsNotes()};
}

Outcome RunQuit(const CommandCall&) {
  return {.Quit = true};
}

constexpr std::array<CommandOption, 2> kStatusOptions = {
    {{"--by-root", &Command::ByRoot}, {"--instance", &Command::Instance}}};
constexpr auto kByRoot = std::span(kStatusOptions).first<1>();

constexpr std::array<CommandKind, 13> kCommands = {{
    {"tree", Takes::Nothing, {}, RunTree, "print the product tree"},
    {"refresh", Takes::Product, kByRoot, RunRefresh, "bring it up to date and print it"},
    {"status", Takes::Product, kStatusOptions, RunStatus, "ask the client about a document"},
    {"edit", Takes::Product, {}, RunEdit, "take the document for editing"},
    {"unedit", Takes::Product, {}, RunUnedit, "give it back"},
    {"remove", Takes::File, {}, RunRemove, "remove a file from CVS"},
    {"delete", Takes::File, {}, RunDelete, "delete a file from Subversion"},
    {"commtime", Takes::Nothing, {}, RunCommTime, "time spent waiting for CVS"},
    {"storage", Takes::Product, {}, RunStorage, "full path of the document"},
    {"cvsable", Takes::Product, {}, RunCVSable, "1: can be under version control"},
    {"modifiable", Takes::Product, {}, RunModifiable, "1: may be modified"},
    {"help", Takes::Nothing, {}, RunHelp, "print this list, and more"},
    {"quit", Takes::Nothing, {}, RunQuit, "end; what follows is not run"},
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
