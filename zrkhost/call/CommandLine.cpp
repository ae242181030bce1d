#include "call/CommandLine.h"

#include <CLI/CLI.hpp>
#include <memory>

#include "call/ExitStatus.h"
#include "call/ShortHelp.h"
#include "commands/CommandTable.h"

namespace zrkhost {

namespace {

std::string Footer() {
  return "Commands (PATH is such as car/axle.1; without it the root; help says more):\n" + CommandsHelp() +
         "Examples:\n"
         "  zrkhost --folder wc/proj -c refresh\n"
         "  zrkhost car.json -c \"edit car/axle.1\" --answer no\n"
         "  zrkhost car.json --commands nightly.txt --report nightly.json\n"
         "Exit status: 0 all is well; 1 a command gave another result; 2 nothing was run.\n";
}

constexpr auto kUsage =
    "zrkhost SESSION.json [options]\n       zrkhost --folder DIR [options]\n       zrkhost check-host [PATH] "
    "[options]\n";

std::string NotEmpty(const std::string& value) {
  return value.empty() ? "must not be empty" : "";
}

std::string YesOrNo(const std::string& value) {
  return value == "yes" || value == "no" ? "" : value + " is neither yes nor no";
}

void AddOptions(CLI::App& app, Options& options) {
  auto* session =
      app.add_option("SESSION", options.SessionFile, "Session file (JSON) with the product structure")
          ->check(NotEmpty);
  auto* folder =
      app.add_option("--folder", options.Folder, "Make the products of the files of a working copy");
  folder->type_name("DIR")->check(NotEmpty)->excludes(session);
  app.add_option("--root", options.Root, "With --folder: the file whose product is the root")
      ->type_name("FILE")
      ->check(NotEmpty)
      ->needs(folder);
  app.add_option("-c", options.Commands, "Run this command; may be given several times")
      ->type_name("COMMAND")
      ->allow_extra_args(false);
  app.add_option("--commands", options.CommandFile,
                 "Run the commands of FILE, a line each; - is standard input")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_option("--answer", options.Answer, "Answer every question so; else a terminal is asked, or no")
      ->type_name("yes|no")
      ->check(YesOrNo);
  app.add_flag("--verbose", options.Verbose, "Show client runs and debugger messages on standard error");
  app.add_option("--report", options.Report, "Write a JSON report in the end")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_option("--page", options.Page, "Write the product tree as an HTML page in the end")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_option("--plugin", options.Plugin, "Component library; default: the one beside zrkhost")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_option("--clients", options.Clients, "Folder to append to PATH; default: the client adapters'")
      ->type_name("DIR|none")
      ->check(NotEmpty);
}

}  // namespace

std::optional<Options> ParseCommandLine(int argc, char** argv, int& status) {
  Options options;
  CLI::App app(
      "Plays the CAD host: builds a product structure, loads the component library and\n"
      "runs commands on it; without -c and --commands those of standard input.",
      "zrkhost");
  // A session file may begin with "/" on every platform.
  app.allow_windows_style_options(false);
  app.footer(Footer());
  app.formatter(std::make_shared<ShortHelp>(kUsage));
  app.set_help_flag("-h,--help", "Print this");
  app.set_version_flag("--version", "zrkhost " ZRKHOST_VERSION, "Print the version");
  AddOptions(app, options);

  try {
    app.parse(argc, argv);
    if (!options.SessionFile && !options.Folder) {
      throw CLI::RequiredError("A session file or --folder");
    }
    return options;
  } catch (const CLI::ParseError& error) {
    status = app.exit(error) == 0 ? kAllWell : kNothingRun;
    return std::nullopt;
  }
}

}  // namespace zrkhost
