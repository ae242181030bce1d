#include "commands/Commands.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "ZRKICVS.h"
#include "ZRKICVSManager.h"
#include "base/CallError.h"
#include "base/Encoding.h"
#include "base/Hexadecimal.h"
#include "commands/CommandText.h"
#include "commands/StatusRecordText.h"
#include "session/ProductFacts.h"
#include "terminal/DisplayText.h"

namespace zrkhost {

namespace {

enum class Takes { Nothing, Product, ProductOrInstance, File };

struct Call {
  const Command& Given;
  const HostSession& Session;
  const Plugin& Component;
  // The product that the command is about.
  const CATBaseUnknown_var& Product;
};

template <class Interface>
CATHandle<Interface> InterfaceOf(const CATBaseUnknown_var& product) {
  CATHandle<Interface> handle(product);
  if (!handle)
    throw std::runtime_error("the component gives the product no " +
                             std::string(Interface::MetaObject()->Name()));
  return handle;
}

ZRKICVSManager_var RootManager(const Call& call) {
  return InterfaceOf<ZRKICVSManager>(call.Session.Root().Product);
}

Outcome WithResult(const Call& call, HRESULT result) {
  Outcome outcome;
  outcome.Result = result;
  const auto shown =
      result < 0 ? "0x" + Hexadecimal(static_cast<std::uint32_t>(result)) : std::to_string(result);
  outcome.Shown = DisplayText(Utf8FromNative(call.Given.Line)) + ": result " + shown + "\n";
  return outcome;
}

Outcome Answer(int answer) {
  Outcome outcome;
  outcome.Result = answer;
  outcome.IsAnswer = true;
  outcome.Shown = std::to_string(answer) + "\n";
  return outcome;
}

Outcome Tree(const Call&) {
  return {.ShowTree = true};
}

Outcome Refresh(const Call& call) {
  RootManager(call)->RefreshStatus(call.Product);
  return {.ShowTree = true};
}

Outcome Status(const Call& call) {
  const CATBaseUnknown_var product =
      call.Given.Instance ? call.Product : CATBaseUnknown_var(ReferenceOf(call.Product));
  StatusRecord record(call.Component);
  const HRESULT result = RootManager(call)->GetFileStatus(product, record.Get());
  Outcome outcome;
  outcome.Result = result;
  outcome.Record = RecordFields(record.Get());
  outcome.Shown = ShowRecord(*outcome.Record);
  return outcome;
}

Outcome Edit(const Call& call) {
  return WithResult(call, InterfaceOf<ZRKICVSManager>(call.Product)->Edit());
}

Outcome Unedit(const Call& call) {
  return WithResult(call, InterfaceOf<ZRKICVSManager>(call.Product)->Unedit());
}

CATUnicodeString HostForm(std::string file) {
  std::replace(file.begin(), file.end(), '/', '\\');
  return file.c_str();
}

Outcome Remove(const Call& call) {
  return WithResult(call, RootManager(call)->CVSRemove(HostForm(call.Given.File)));
}

Outcome Delete(const Call& call) {
  return WithResult(call, RootManager(call)->SVNDelete(HostForm(call.Given.File)));
}

Outcome CommTime(const Call& call) {
  Outcome outcome;
  outcome.Result = RootManager(call)->PrintCommTime();
  return outcome;
}

Outcome Storage(const Call& call) {
  CATUnicodeString path;
  InterfaceOf<ZRKICVS>(call.Product)->GetStorageName(path);
  Outcome outcome;
  outcome.Text = Utf8FromNative(path.ConvertToChar());
  outcome.Shown = DisplayText(*outcome.Text) + "\n";
  return outcome;
}

Outcome CVSable(const Call& call) {
  return Answer(call.Component.IsCVSable(call.Product.Get()));
}

Outcome Modifiable(const Call& call) {
  return Answer(call.Component.IsCVSModifiable(call.Product.Get()));
}

Outcome Help(const Call&) {
  return {.Shown = CommandsHelp()};
}

Outcome Quit(const Call&) {
  return {.Quit = true};
}

}  // namespace

struct CommandKind {
  const char* Name;
  Takes Arguments;
  Outcome (*Run)(const Call&);
  const char* Explanation;
};

namespace {

constexpr std::array<CommandKind, 13> kCommands = {{
    {"tree", Takes::Nothing, Tree, "print the product tree with its attributes"},
    {"refresh", Takes::Product, Refresh,
     "bring the attributes of the tree at PATH up to date, then print the tree"},
    {"status", Takes::ProductOrInstance, Status,
     "ask the client about the document of a product's reference"},
    {"edit", Takes::Product, Edit, "take the product's document for editing"},
    {"unedit", Takes::Product, Unedit, "give the product's document back"},
    {"remove", Takes::File, Remove, "remove a file from CVS"},
    {"delete", Takes::File, Delete, "schedule a file for deletion from Subversion"},
    {"commtime", Takes::Nothing, CommTime, "print and reset the time spent waiting for the CVS client"},
    {"storage", Takes::Product, Storage, "print the full path of the product's document"},
    {"cvsable", Takes::Product, CVSable, "1 when the product can be put under version control, else 0"},
    {"modifiable", Takes::Product, Modifiable, "1 when the product may be modified, else 0"},
    {"help", Takes::Nothing, Help, "print this list"},
    {"quit", Takes::Nothing, Quit, "end; commands after it are not run"},
}};

const char* ArgumentsText(Takes takes) {
  switch (takes) {
    case Takes::Product:
      return "[PATH]";
    case Takes::ProductOrInstance:
      return "[--instance] [PATH]";
    case Takes::File:
      return "FILE";
    case Takes::Nothing:
      break;
  }
  return "";
}

std::string UsageOf(const CommandKind& kind) {
  const std::string arguments = ArgumentsText(kind.Arguments);
  return arguments.empty() ? kind.Name : kind.Name + (" " + arguments);
}

}  // namespace

std::optional<Command> ParseCommand(const std::string& line) {
  auto words = SplitCommand(line);
  if (words.empty()) return std::nullopt;
  const auto kind = std::find_if(kCommands.begin(), kCommands.end(),
                                 [&](const auto& known) { return words[0].Text == known.Name; });
  if (kind == kCommands.end()) throw CallError("unknown command \"" + Utf8FromNative(words[0].Text) + "\"");
  words.erase(words.begin());

  Command command;
  command.Line = line;
  command.Kind = &*kind;
  if (kind->Arguments == Takes::ProductOrInstance && !words.empty() &&
      words[0] == Word{"--instance", false}) {
    command.Instance = true;
    words.erase(words.begin());
  }
  const std::size_t most = kind->Arguments == Takes::Nothing ? 0 : 1;
  const std::size_t least = kind->Arguments == Takes::File ? 1 : 0;
  if (words.size() < least || words.size() > most) throw CallError("use: " + UsageOf(*kind));
  if (words.empty()) return command;
  if (kind->Arguments == Takes::File) {
    command.File = words[0].Text;
  } else {
    command.ProductPath = words[0].Text;
  }
  return command;
}

void CheckProduct(const Command& command, const HostSession& session) {
  if (command.ProductPath && !session.Find(*command.ProductPath)) {
    throw CallError("there is no product \"" + Utf8FromNative(*command.ProductPath) + "\" in the tree");
  }
}

Outcome RunCommand(const Command& command, const HostSession& session, const Plugin& plugin) {
  const Place* place = command.ProductPath ? session.Find(*command.ProductPath) : &session.Root();
  return command.Kind->Run({command, session, plugin, place->Product});
}

std::string CommandsHelp() {
  constexpr std::size_t kColumn = 29;
  std::string text;
  for (const auto& kind : kCommands) {
    auto usage = UsageOf(kind);
    usage.resize(std::max(usage.size() + 1, kColumn), ' ');
    text += "  " + usage + kind.Explanation + "\n";
  }
  return text;
}

}  // namespace zrkhost
