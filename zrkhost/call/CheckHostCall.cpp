#include "call/CheckHostCall.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/CallError.h"
#include "base/Encoding.h"
#include "call/ExitStatus.h"
#include "call/ShortHelp.h"
#include "call/Surroundings.h"
#include "plugin/HostCheck.h"
#include "session/FolderSession.h"
#include "session/HostSession.h"
#include "session/SessionFile.h"
#include "terminal/DisplayText.h"

namespace zrkhost {

namespace {

constexpr auto kName = "check-host";

struct CheckHostOptions {
  std::optional<std::string> ProductPath;
  std::optional<std::string> SessionFile;
  std::optional<std::string> Folder;
  std::optional<std::string> Library;
};

// The smallest assembly that shows a check everything it looks at.
SessionDescription SmallAssembly() {
  const auto document = [](const char* name) { return std::filesystem::absolute(name); };
  SessionDescription session;
  session.Root = "car";
  session.Products = {
      {.Name = "car",
       .Document = document("car.CATProduct"),
       .Attributes = {},
       .Children = {{"axle.1", "axle", {}}, {"axle.2", "axle", {}}}},
      {.Name = "axle", .Document = document("axle.CATPart"), .Attributes = {}, .Children = {}},
  };
  return session;
}

SessionDescription Describe(const CheckHostOptions& options) {
  if (options.SessionFile) return ReadSessionFile(PathFromNative(*options.SessionFile));
  if (options.Folder) return SessionOfFolder(PathFromNative(*options.Folder), std::nullopt);
  return SmallAssembly();
}

struct Counts {
  int Checks = 0;
  int Failed = 0;
  int NotSeen = 0;
};

// Prints a line of the table and counts it.
void Show(void* context, const char* check, int result, const char* found) {
  auto& counts = *static_cast<Counts*>(context);
  ++counts.Checks;
  const char* word = "holds   ";
  std::string rest;
  if (result == ZRKHostCheckFails) {
    ++counts.Failed;
    word = "FAILS   ";
    rest = "  found: ";
  } else if (result != ZRKHostCheckHolds) {
    ++counts.NotSeen;
    word = "not seen";
    rest = "  needs: ";
  }
  if (!rest.empty()) rest += DisplayText(Utf8FromNative(found));
  std::cout << word << "  " << check << rest << "\n";
}

int Run(const CheckHostOptions& options) {
  const HostCheck check(options.Library ? PathFromNative(*options.Library) : DefaultHostCheck());
  const HostSession session(Describe(options));
  const Place* const place = options.ProductPath ? session.Find(*options.ProductPath) : &session.Root();
  if (!place) {
    throw CallError("there is no product \"" + Utf8FromNative(*options.ProductPath) + "\" in the tree");
  }
  Counts counts;
  const int notHolding = check.Run(place->Product.Get(), &Show, &counts);
  std::cout << counts.Checks << " checks: " << counts.Checks - counts.Failed - counts.NotSeen << " hold, "
            << counts.Failed << " fail, " << counts.NotSeen << " not seen\n";
  return notHolding == 0 && std::cout.flush() ? kAllWell : kCommandFailed;
}

}  // namespace

bool IsCheckHostCall(int argc, char** argv) {
  return argc > 1 && std::string_view(argv[1]) == kName;
}

int RunCheckHostCall(int argc, char** argv) {
  CheckHostOptions options;
  CLI::App app(
      "Checks that a host behaves as the component library expects, here the one that\n"
      "zrkhost plays, on the product PATH and those below it; prints a table.",
      "zrkhost check-host");
  app.allow_windows_style_options(false);
  app.formatter(std::make_shared<ShortHelp>("zrkhost check-host [PATH] [options]\n"));
  app.footer(
      "PATH is such as car/axle.1; without it the root.\n"
      "Exit status: 0 all hold; 1 one fails or finds nothing to look at; 2 nothing was\n"
      "checked.\n");
  app.set_help_flag("-h,--help", "Print this");
  app.add_option("PATH", options.ProductPath);
  auto* session = app.add_option("--session", options.SessionFile,
                                 "Session file (JSON); default: a small assembly of its own");
  session->type_name("FILE");
  app.add_option("--folder", options.Folder, "Make the products of the files of a working copy")
      ->type_name("DIR")
      ->excludes(session);
  app.add_option("--library", options.Library, "Host check; default: the one beside zrkhost")
      ->type_name("FILE");
  try {
    app.parse(argc - 1, argv + 1);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kAllWell : kNothingRun;
  }
  return Run(options);
}

}  // namespace zrkhost
