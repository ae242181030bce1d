#include "call/CommandLine.h"

#include <CLI/CLI.hpp>

#include "call/ExitStatus.h"
#include "commands/CommandTable.h"

namespace zrkhost {

namespace {

std::string Footer() {
  return "With neither -c nor --commands, commands are read from standard input: with a prompt when it is a\n"
         "terminal. The prompt tells what is wrong with a line and goes on.\n"
         "\n"
         "Commands (PATH is a product path such as car/axle.1, left out: the root; arguments may stand in\n"
         "double quotes; # begins a comment):\n" +
         CommandsHelp() +
         "\n"
         "For remove and delete FILE is a full path, or is meant from the current folder.\n"
         "refresh and status ask the manager of PATH; with --by-root that of the root.\n"
         "\n"
         "Exit status: 0 when every command gave result 0 or has none; 1 when a command gave another "
         "result;\n"
         "2 for a bad call, a wrong session, an unknown command or product, or a component library that\n"
         "cannot be loaded. With 2 nothing was run.\n";
}

std::string NotEmpty(const std::string& value) {
  return value.empty() ? "must not be empty" : "";
}

void AddOptions(CLI::App& app, Options& options) {
  auto* session =
      app.add_option("SESSION", options.SessionFile, "Session file (JSON) with the product structure")
          ->check(NotEmpty);
  auto* folder = app.add_option("--folder", options.Folder,
                                "Make the product structure from the files of a working copy");
  folder->type_name("DIR")->check(NotEmpty)->excludes(session);
  app.add_option("--root", options.Root,
                 "File below DIR whose product is the root; default: the first by name")
      ->type_name("FILE")
      ->check(NotEmpty)
      ->needs(folder);
  app.add_option("-c", options.Commands, "Run this console command; may be given several times")
      ->type_name("COMMAND")
      ->allow_extra_args(false);
  app.add_option("--commands", options.CommandFile,
                 "Run the commands of FILE, one a line, after those of -c; - is standard input")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_option("--answer", options.Answer,
                 "Answer to every question dialog; default: ask on a terminal, else no")
      ->type_name("yes|no")
      ->check(CLI::IsMember({"yes", "no"}));
  app.add_flag("--verbose", options.Verbose, "Print client launches and debugger messages on standard error");
  app.add_option("--report", options.Report, "Write a JSON report when all commands have run")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_option("--page", options.Page,
                 "Write the product tree after the last command as an HTML page")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_option("--plugin", options.Plugin,
                 "Component library to load; default: the one built or installed beside zrkhost")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_option("--clients", options.Clients,
                 "Folder to append to PATH; default: that of the client adapters; none: PATH stays as it is")
      ->type_name("DIR|none")
      ->check(NotEmpty);
}

}  // namespace

std::optional<Options> ParseCommandLine(int argc, char** argv, int& status) {
  Options options;
  CLI::App app(
      "Plays the CAD host for a version-control component library: builds a product structure, loads\n"
      "the library and calls it.",
      "zrkhost");
  // A session file may begin with "/" on every platform.
  app.allow_windows_style_options(false);
  app.footer(Footer());
  app.set_version_flag("--version", "zrkhost " ZRKHOST_VERSION);
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
